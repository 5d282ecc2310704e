#include "platform/host_services.h"

#include <dlfcn.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <random>
#include <system_error>

#include "platform/i18n.h"

namespace host {

namespace {

std::u16string& rootStorage() {
    static std::u16string root;
    return root;
}

CurrentDirectoryProvider& providerStorage() {
    static CurrentDirectoryProvider provider;
    return provider;
}

}  // namespace

std::u16string QuorixRoot() {
    return rootStorage();
}

void setQuorixRoot(std::u16string root) {
    rootStorage() = std::move(root);
}

std::u16string getToolboxPrefix() {
    return QuorixRoot() + u"/toolbox";
}

std::u16string currentDirectory() {
    if (providerStorage()) return providerStorage()();
    std::error_code ec;
    auto cwd = std::filesystem::current_path(ec);
    if (ec) return {};
    return fl::i18n::to_string(cwd.generic_string());
}

void setCurrentDirectoryProvider(CurrentDirectoryProvider provider) {
    providerStorage() = std::move(provider);
}

void utTmpnam(char* buffer, std::size_t size) {
    if (buffer == nullptr || size == 0) return;
    buffer[0] = '\0';
    std::error_code ec;
    auto dir = std::filesystem::temp_directory_path(ec);
    if (ec) dir = "/tmp";

    // Process id, a counter and random bits: unique within the process by the
    // counter, across processes by the pid, and not guessable from outside.
    static std::atomic<unsigned long> counter{0};
    static std::mt19937_64 bits{
        std::random_device{}() ^
        static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count())};
    for (int attempt = 0; attempt < 100; ++attempt) {
        char name[96];
        std::snprintf(name, sizeof name, "deckforge_%ld_%lu_%016llx", static_cast<long>(::getpid()),
                      counter.fetch_add(1), static_cast<unsigned long long>(bits()));
        auto path = (dir / name).string();
        if (std::filesystem::exists(path, ec)) continue;
        std::snprintf(buffer, size, "%s", path.c_str());
        return;
    }
}

void* utLoadLibrary(char const* fileName, int& status) {
    void* handle = fileName ? ::dlopen(fileName, RTLD_LAZY | RTLD_GLOBAL) : nullptr;
    status = handle ? 0 : 1;
    return handle;
}

}  // namespace host
