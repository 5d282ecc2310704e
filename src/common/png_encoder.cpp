#include "common/png_encoder.h"

#include <zlib.h>

namespace deckforge {

namespace {

void appendBigEndian(std::string& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) out += static_cast<char>((value >> shift) & 0xFF);
}

void appendChunk(std::string& out, char const* type, std::string const& data) {
    appendBigEndian(out, static_cast<std::uint32_t>(data.size()));
    std::string const typed = std::string(type, 4) + data;
    out += typed;
    uLong const crc = crc32(crc32(0L, Z_NULL, 0), reinterpret_cast<Bytef const*>(typed.data()),
                            static_cast<uInt>(typed.size()));
    appendBigEndian(out, static_cast<std::uint32_t>(crc));
}

}  // namespace

std::string encodePng(std::uint32_t width, std::uint32_t height, unsigned channels, unsigned bitDepth,
                      std::vector<std::uint16_t> const& samples) {
    if (width == 0 || height == 0 || (channels != 1 && channels != 3) || (bitDepth != 8 && bitDepth != 16))
        return {};
    std::size_t const perRow = static_cast<std::size_t>(width) * channels;
    if (samples.size() != perRow * height) return {};

    // Each row starts with its filter type, 0 for none; 16-bit samples are
    // big-endian.
    std::string raw;
    raw.reserve(height * (1 + perRow * (bitDepth / 8)));
    for (std::size_t row = 0; row < height; ++row) {
        raw += '\0';
        for (std::size_t i = row * perRow; i < (row + 1) * perRow; ++i) {
            if (bitDepth == 16) raw += static_cast<char>(samples[i] >> 8);
            raw += static_cast<char>(samples[i] & 0xFF);
        }
    }
    uLongf size = compressBound(static_cast<uLong>(raw.size()));
    std::string compressed(size, '\0');
    if (compress2(reinterpret_cast<Bytef*>(compressed.data()), &size,
                  reinterpret_cast<Bytef const*>(raw.data()), static_cast<uLong>(raw.size()),
                  Z_DEFAULT_COMPRESSION) != Z_OK)
        return {};
    compressed.resize(size);

    std::string header;
    appendBigEndian(header, width);
    appendBigEndian(header, height);
    header += static_cast<char>(bitDepth);
    header += static_cast<char>(channels == 3 ? 2 : 0);  // colour type: RGB or grey
    header += std::string(3, '\0');                      // deflate, adaptive filtering, no interlace

    std::string png("\x89PNG\r\n\x1A\n", 8);
    appendChunk(png, "IHDR", header);
    appendChunk(png, "IDAT", compressed);
    appendChunk(png, "IEND", std::string());
    return png;
}

}  // namespace deckforge
