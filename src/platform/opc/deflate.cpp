#include "platform/opc/deflate.h"

#include <zlib.h>

#include <algorithm>
#include <climits>

#include "platform/opc/exception.h"

namespace opc {

Deflater::Deflater() = default;

Deflater::~Deflater() {
    if (stream_) deflateEnd(stream_.get());
}

DeflatedContent Deflater::deflate(void const* data, std::size_t count, std::string const& what) {
    if (count > UINT_MAX) throw Exception("cannot deflate " + what + ": it holds 4 GiB or more");
    if (!stream_) {
        auto z = std::make_unique<z_stream_s>();
        // Negative window bits: raw deflate, without zlib's header and trailer.
        if (deflateInit2(z.get(), Z_BEST_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY) != Z_OK)
            throw Exception("cannot deflate " + what + ": zlib can't start deflating");
        stream_ = std::move(z);
    } else if (deflateReset(stream_.get()) != Z_OK) {
        throw Exception("cannot deflate " + what + ": zlib can't restart deflating");
    }
    auto const* in = static_cast<Bytef const*>(data);
    z_stream_s& z = *stream_;
    std::size_t const bound = deflateBound(&z, static_cast<uLong>(count));
    if (out_.size() < bound) out_.resize(bound);
    z.next_in = const_cast<Bytef*>(in);
    z.avail_in = static_cast<uInt>(count);
    z.next_out = out_.data();
    z.avail_out = static_cast<uInt>(std::min<std::size_t>(out_.size(), UINT_MAX));
    // With deflateBound's room, one call finishes; the loop only guards that.
    int rc;
    while ((rc = ::deflate(&z, Z_FINISH)) == Z_OK) {
        std::size_t used = out_.size() - z.avail_out;
        out_.resize(out_.size() * 2);
        z.next_out = out_.data() + used;
        z.avail_out = static_cast<uInt>(std::min<std::size_t>(out_.size() - used, UINT_MAX));
    }
    if (rc != Z_STREAM_END)
        throw Exception("cannot deflate " + what + ": zlib failed (" + std::to_string(rc) + ")");
    DeflatedContent result;
    result.bytes.assign(reinterpret_cast<char const*>(out_.data()),
                        static_cast<std::size_t>(z.next_out - out_.data()));
    result.crc = static_cast<std::uint32_t>(crc32_z(crc32_z(0, nullptr, 0), in, count));
    result.size = count;
    return result;
}

std::string inflate(DeflatedContent const& content, std::string const& what) {
    std::string out(static_cast<std::size_t>(content.size), '\0');
    z_stream_s z{};
    if (inflateInit2(&z, -MAX_WBITS) != Z_OK)
        throw Exception("cannot inflate " + what + ": zlib can't start");
    z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(content.bytes.data()));
    z.avail_in = static_cast<uInt>(content.bytes.size());
    z.next_out = reinterpret_cast<Bytef*>(&out[0]);
    z.avail_out = static_cast<uInt>(out.size());
    int const rc = ::inflate(&z, Z_FINISH);
    std::size_t const produced = out.size() - z.avail_out;
    inflateEnd(&z);
    if (rc != Z_STREAM_END || produced != content.size ||
        crc32_z(crc32_z(0, nullptr, 0), reinterpret_cast<Bytef const*>(out.data()), out.size()) !=
            content.crc)
        throw Exception("cannot inflate " + what + ": the deflated bytes are damaged");
    return out;
}

}  // namespace opc
