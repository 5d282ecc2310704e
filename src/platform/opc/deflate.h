// Raw deflate, as zip entries hold it, for content that is compressed once
// and then kept or written in that form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct z_stream_s;

namespace opc {

// Bytes in their deflated form, with what a zip entry's header says of them.
struct DeflatedContent {
    std::string bytes;
    std::uint32_t crc = 0;   // of the inflated bytes
    std::uint64_t size = 0;  // inflated
};

// Deflates at the strongest level. One deflate state (some 300 KB) serves
// every call: setting one up per call costs more than compressing a small
// part.
class Deflater {
public:
    Deflater();
    ~Deflater();
    Deflater(Deflater const&) = delete;
    Deflater& operator=(Deflater const&) = delete;

    // Raises opc::Exception, naming `what`, if zlib fails.
    DeflatedContent deflate(void const* data, std::size_t count, std::string const& what);

private:
    std::unique_ptr<z_stream_s> stream_;
    std::vector<unsigned char> out_;  // reused from call to call
};

// The inflated bytes; raises opc::Exception, naming `what`, if they don't
// inflate to the size and CRC recorded.
std::string inflate(DeflatedContent const& content, std::string const& what);

}  // namespace opc
