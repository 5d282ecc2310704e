#include "platform/opc/streams.h"

#include <cstring>
#include <filesystem>
#include <fstream>

#include "platform/opc/exception.h"
#include "platform/opc/text.h"

namespace opc {

std::size_t StdIStreamAdaptor::read(void* buffer, std::size_t count) {
    if (count == 0 || !stream_.good()) return 0;
    stream_.read(static_cast<char*>(buffer), static_cast<std::streamsize>(count));
    if (stream_.bad()) throw Exception("reading from a stream failed");
    return static_cast<std::size_t>(stream_.gcount());
}

void StdOStreamAdaptor::write(void const* buffer, std::size_t count) {
    stream_.write(static_cast<char const*>(buffer), static_cast<std::streamsize>(count));
    if (!stream_) throw Exception("writing to a stream failed");
}

void StdOStreamAdaptor::close() {
    stream_.flush();
    if (!stream_) throw Exception("writing to a stream failed");
}

MemoryInputStream::MemoryInputStream(std::shared_ptr<std::string const> bytes) : bytes_(std::move(bytes)) {}

std::size_t MemoryInputStream::read(void* buffer, std::size_t count) {
    if (!bytes_) return 0;
    std::size_t n = std::min(count, bytes_->size() - position_);
    if (n) std::memcpy(buffer, bytes_->data() + position_, n);
    position_ += n;
    return n;
}

boost::shared_ptr<std::istream> LocalFileSystemOps::createInputStream(std::u16string const& path,
                                                                      std::ios_base::openmode mode) const {
    std::string native = detail::toUtf8(path);
    std::error_code ec;
    // A directory opens as a stream on Linux and then reads nothing; say what it is instead.
    if (std::filesystem::is_directory(native, ec))
        throw Exception("cannot open " + native + " for reading: it is a directory");
    auto stream = boost::shared_ptr<std::ifstream>(new std::ifstream(native, mode | std::ios_base::in));
    if (!stream->is_open())
        throw Exception("cannot open " + native + " for reading: " + std::strerror(errno));
    return stream;
}

boost::shared_ptr<std::ostream> LocalFileSystemOps::createOutputStream(std::u16string const& path,
                                                                       std::ios_base::openmode mode) const {
    std::string native = detail::toUtf8(path);
    auto stream = boost::shared_ptr<std::ofstream>(new std::ofstream(native, mode | std::ios_base::out));
    if (!stream->is_open())
        throw Exception("cannot open " + native + " for writing: " + std::strerror(errno));
    return stream;
}

std::size_t StreamHelper::copyStreamToStream(InputStream& in, OutputStream& out) {
    char buffer[64 * 1024];
    std::size_t total = 0;
    while (std::size_t n = in.read(buffer, sizeof buffer)) {
        out.write(buffer, n);
        total += n;
    }
    return total;
}

std::string StreamHelper::readAll(InputStream& in, std::size_t limit) {
    std::string bytes;
    char buffer[64 * 1024];
    while (std::size_t n = in.read(buffer, sizeof buffer)) {
        if (n > limit - bytes.size())
            throw Exception("stream is larger than " + std::to_string(limit) + " bytes");
        bytes.append(buffer, n);
    }
    return bytes;
}

}  // namespace opc
