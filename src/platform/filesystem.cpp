#include "platform/filesystem.h"

#include <system_error>

#include <unicode/unistr.h>

namespace fl {
namespace filesystem {

namespace fs = std::filesystem;

namespace {

// Unpaired surrogates become U+FFFD rather than failing: a path that can't be
// named exactly will simply not be found.
std::string toUtf8(std::u16string const& text) {
    std::string out;
    icu::UnicodeString(text.data(), static_cast<int32_t>(text.size())).toUTF8String(out);
    return out;
}

std::u16string fromUtf8(std::string const& text) {
    icu::UnicodeString u = icu::UnicodeString::fromUTF8(text);
    return std::u16string(u.getBuffer(), static_cast<std::size_t>(u.length()));
}

bool isNotFound(std::error_code const& ec) {
    return ec == std::errc::no_such_file_or_directory;
}

[[noreturn]] void fail(char const* what, path const& p, std::error_code const& ec) {
    std::string message = std::string(what) + ": " + ec.message() + " [" + toUtf8(p.string()) + "]";
    if (isNotFound(ec)) throw not_found_error(message);
    throw filesystem_error(message);
}

}  // namespace

path::path(std::u16string const& text) : p_(toUtf8(text)) {}

path::path(char16_t const* text) : p_(toUtf8(text)) {}

std::u16string path::string() const {
    return fromUtf8(p_.native());
}

std::u16string path::generic_string() const {
    return fromUtf8(p_.generic_string());
}

path& path::make_preferred() {
    p_.make_preferred();
    return *this;
}

std::vector<path> path::elements() const {
    std::vector<path> out;
    for (auto const& element : p_.relative_path()) out.emplace_back(element);
    return out;
}

path& path::operator/=(path const& other) {
    p_ /= other.p_;
    return *this;
}

path absolute(path const& p, path const& base) {
    if (p.is_absolute()) return p;
    if (base.is_absolute()) return base / p;
    std::error_code ec;
    fs::path abs = fs::absolute(base.std_path() / p.std_path(), ec);
    if (ec) fail("cannot make absolute path", p, ec);
    return path(abs);
}

path canonical(path const& p, path const& base) {
    path abs = absolute(p, base);
    std::error_code ec;
    fs::path result = fs::canonical(abs.std_path(), ec);
    if (ec) fail("cannot make canonical path", abs, ec);
    return path(result);
}

bool exists(path const& p) {
    std::error_code ec;
    bool result = fs::exists(p.std_path(), ec);
    if (ec) fail("cannot query file state", p, ec);
    return result;
}

file_status status(path const& p) {
    std::error_code ec;
    file_status result = fs::status(p.std_path(), ec);
    // A missing file is a valid answer here (file_type::not_found), not a failure.
    if (ec && !isNotFound(ec)) fail("cannot query file status", p, ec);
    return result;
}

file_status symlink_status(path const& p) {
    std::error_code ec;
    file_status result = fs::symlink_status(p.std_path(), ec);
    if (ec && !isNotFound(ec)) fail("cannot query file status", p, ec);
    return result;
}

void permissions(path const& p, perms permissions) {
    std::error_code ec;
    fs::permissions(p.std_path(), permissions, fs::perm_options::replace, ec);
    if (ec) fail("cannot set permissions", p, ec);
}

std::uintmax_t remove_all(path const& p) {
    std::error_code ec;
    std::uintmax_t count = fs::remove_all(p.std_path(), ec);
    if (ec) fail("cannot remove", p, ec);
    return count;
}

bool create_directory(path const& p) {
    std::error_code ec;
    bool created = fs::create_directory(p.std_path(), ec);
    if (ec) fail("cannot create directory", p, ec);
    return created;
}

void copy_file(path const& from, path const& to) {
    std::error_code ec;
    fs::copy_file(from.std_path(), to.std_path(), fs::copy_options::none, ec);
    if (ec) fail("cannot copy file", from, ec);
}

}  // namespace filesystem
}  // namespace fl
