#include "support/package_input.h"

#include <cstring>
#include <stdexcept>

#include <zip.h>

namespace deckforge {
namespace fuzz {

bool isZip(std::uint8_t const* data, std::size_t size) {
    return size >= 2 && data[0] == 'P' && data[1] == 'K';
}

Items splitItems(std::uint8_t const* data, std::size_t size) {
    Items items;
    char const* at = reinterpret_cast<char const*>(data);
    char const* end = at + size;
    while (at < end) {
        char const* newline =
            static_cast<char const*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
        if (!newline) break;
        char const* content = newline + 1;
        char const* nul =
            static_cast<char const*>(std::memchr(content, '\0', static_cast<std::size_t>(end - content)));
        char const* stop = nul ? nul : end;
        items.emplace_back(std::string(at, newline), std::string(content, stop));
        at = nul ? nul + 1 : end;
    }
    return items;
}

std::string joinItems(Items const& items) {
    std::string out;
    for (auto const& item : items) {
        out += item.first;
        out += '\n';
        out += item.second;
        out += '\0';
    }
    return out;
}

std::string zipItems(Items const& items) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* buffer = zip_source_buffer_create(nullptr, 0, 0, &error);
    zip_t* archive = buffer ? zip_open_from_source(buffer, ZIP_TRUNCATE, &error) : nullptr;
    zip_error_fini(&error);
    if (!archive) {
        if (buffer) zip_source_free(buffer);
        throw std::runtime_error("cannot make a zip in memory");
    }
    zip_source_keep(buffer);
    for (auto const& item : items) {
        if (item.first.empty() || item.first.back() == '/') continue;
        zip_source_t* source = zip_source_buffer(archive, item.second.data(), item.second.size(), 0);
        if (!source) continue;
        zip_int64_t index = zip_file_add(archive, item.first.c_str(), source, 0);
        if (index < 0) {
            zip_source_free(source);
            continue;
        }
        zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_STORE, 0);
    }
    std::string bytes;
    if (zip_close(archive) != 0) {
        zip_discard(archive);
    } else if (zip_source_open(buffer) == 0) {  // fails for an archive without entries: no bytes
        char chunk[64 * 1024];
        zip_int64_t n;
        while ((n = zip_source_read(buffer, chunk, sizeof chunk)) > 0)
            bytes.append(chunk, static_cast<std::size_t>(n));
        zip_source_close(buffer);
    }
    zip_source_free(buffer);
    return bytes;
}

Items unzipItems(std::string const& bytes) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
    zip_t* archive = source ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr;
    zip_error_fini(&error);
    if (!archive) {
        if (source) zip_source_free(source);
        throw std::runtime_error("not a zip");
    }
    Items items;
    zip_int64_t count = zip_get_num_entries(archive, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        auto index = static_cast<zip_uint64_t>(i);
        std::string name = zip_get_name(archive, index, 0);
        if (name.empty() || name.back() == '/') continue;
        zip_file_t* file = zip_fopen_index(archive, index, 0);
        if (!file) continue;
        std::string content;
        char chunk[64 * 1024];
        zip_int64_t n;
        while ((n = zip_fread(file, chunk, sizeof chunk)) > 0)
            content.append(chunk, static_cast<std::size_t>(n));
        zip_fclose(file);
        items.emplace_back(std::move(name), std::move(content));
    }
    zip_discard(archive);
    return items;
}

std::string packageBytes(std::uint8_t const* data, std::size_t size) {
    if (isZip(data, size)) return std::string(reinterpret_cast<char const*>(data), size);
    return zipItems(splitItems(data, size));
}

}  // namespace fuzz
}  // namespace deckforge
