// Helpers of the package library's tests: zips built byte by byte, and the
// outside tools that judge what the library wrote.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <zip.h>

#include "platform/opc/opc.h"

namespace opc_test {

// A zip with exactly these entries, in this order; stored entries where
// `store` says so. libzip checks nothing about the names.
inline void makeZip(std::filesystem::path const& path,
                    std::vector<std::pair<std::string, std::string>> const& entries, bool store = false) {
    int error = 0;
    zip_t* archive = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (!archive) throw std::runtime_error("zip_open failed");
    for (auto const& entry : entries) {
        zip_source_t* source = zip_source_buffer(archive, entry.second.data(), entry.second.size(), 0);
        zip_int64_t index = entry.first.back() == '/' ? zip_dir_add(archive, entry.first.c_str(), 0)
                                                      : zip_file_add(archive, entry.first.c_str(), source, 0);
        if (entry.first.back() == '/') zip_source_free(source);
        if (index < 0) throw std::runtime_error("zip_file_add failed: " + entry.first);
        if (store) zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_STORE, 0);
    }
    if (zip_close(archive) != 0) throw std::runtime_error("zip_close failed");
}

// Output and exit status of a shell command.
inline std::pair<std::string, int> run(std::string const& command) {
    std::string output;
    FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    char buffer[4096];
    while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe)) output.append(buffer, n);
    int status = pclose(pipe);
    return {output, WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

inline bool unzipAccepts(std::filesystem::path const& zip) {
    return run("unzip -tq '" + zip.string() + "'").second == 0;
}

inline std::string firstEntry(std::filesystem::path const& zip) {
    auto listing = run("unzip -Z1 '" + zip.string() + "'").first;
    return listing.substr(0, listing.find('\n'));
}

inline void writePart(opc::model::Part part, std::string const& bytes) {
    auto out = part.getOutputStream();
    out->write(bytes.data(), bytes.size());
    out->close();
}

inline std::string readPart(opc::model::Part const& part) {
    return opc::StreamHelper::readAll(*part.getInputStream(), std::size_t(1) << 30);
}

}  // namespace opc_test
