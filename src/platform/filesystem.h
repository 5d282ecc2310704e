// The host's file-system layer: UTF-16 paths over std::filesystem, with the
// few operations the engine needs. Failures come as filesystem_error, or as
// not_found_error when the path doesn't exist.
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace fl {
namespace filesystem {

using std::filesystem::file_status;
using std::filesystem::file_type;
using std::filesystem::perms;

class filesystem_error : public std::runtime_error {
public:
    explicit filesystem_error(std::string const& message) : std::runtime_error(message) {}
};

class not_found_error : public filesystem_error {
public:
    explicit not_found_error(std::string const& message) : filesystem_error(message) {}
};

// A path held as text; UTF-16 at the interface, UTF-8 towards the system.
class path {
public:
    path() = default;
    path(std::u16string const& text);  // NOLINT: paths are made from text everywhere
    path(char16_t const* text);        // NOLINT
    explicit path(std::filesystem::path p) : p_(std::move(p)) {}

    // Native form (the system's separators) and generic form (forward slashes).
    std::u16string string() const;
    std::u16string generic_string() const;
    path& make_preferred();

    bool empty() const { return p_.empty(); }
    bool is_absolute() const { return p_.is_absolute(); }
    path parent_path() const { return path(p_.parent_path()); }
    path filename() const { return path(p_.filename()); }
    path stem() const { return path(p_.stem()); }
    // With its dot, as ".pptx"; empty when there is none.
    path extension() const { return path(p_.extension()); }
    // The root name and root directory ("/" on Linux).
    path root_path() const { return path(p_.root_path()); }
    // The elements after the root, in order.
    std::vector<path> elements() const;

    path& operator/=(path const& other);
    friend path operator/(path lhs, path const& rhs) { return lhs /= rhs; }
    friend bool operator==(path const& a, path const& b) { return a.p_ == b.p_; }
    friend bool operator!=(path const& a, path const& b) { return !(a == b); }

    std::filesystem::path const& std_path() const { return p_; }

private:
    std::filesystem::path p_;
};

// Relative paths are completed against `base`, not the process's directory.
path absolute(path const& p, path const& base);
// Absolute, with symbolic links, "." and ".." resolved; the path must exist.
path canonical(path const& p, path const& base = path());

bool exists(path const& p);
file_status status(path const& p);
// Like status, but a symbolic link is reported as itself.
file_status symlink_status(path const& p);
inline bool exists(file_status s) {
    return std::filesystem::exists(s);
}
inline bool is_directory(file_status s) {
    return std::filesystem::is_directory(s);
}
inline bool is_regular_file(file_status s) {
    return std::filesystem::is_regular_file(s);
}
inline bool is_symlink(file_status s) {
    return std::filesystem::is_symlink(s);
}

// Sets the permissions to exactly `permissions`.
void permissions(path const& p, perms permissions);
std::uintmax_t remove_all(path const& p);
// One level; the parent must exist. False if the directory was there already.
bool create_directory(path const& p);
// Fails if the target exists.
void copy_file(path const& from, path const& to);

}  // namespace filesystem
}  // namespace fl
