#include "common/file_utils.h"

#include <map>
#include <vector>

#include <boost/regex.hpp>

#include "platform/filesystem.h"
#include "platform/host_services.h"
#include "platform/hv.h"
#include "platform/msg_ids.h"

namespace deckforge {

namespace fs = fl::filesystem;

namespace {

bool isNetworkPath(u16string const& path) {
    return path.size() >= 2 && path[0] == u'\\' && path[1] == u'\\';
}

fs::path nativePath(u16string const& path) {
    return fs::path(path).make_preferred();
}

// The path made absolute against the host's current directory, its longest
// existing beginning made canonical and the rest appended as written. For
// outputs that don't exist yet.
fs::path weaklyCanonical(u16string const& text) {
    fs::path const absolute = fs::absolute(nativePath(text), nativePath(FileUtils::getCurrentDirectory()));
    std::vector<fs::path> const elements = absolute.elements();
    fs::path head = absolute.root_path();

    std::size_t next = 0;
    for (; next < elements.size(); ++next) {
        fs::path candidate = head / elements[next];
        if (!fs::exists(candidate)) break;
        head = candidate;
    }
    fs::path result = isNetworkPath(head.string()) ? head : fs::canonical(head);
    for (; next < elements.size(); ++next) {
        u16string const element = elements[next].string();
        if (element == u".") continue;
        if (element == u"..") {
            result = result.parent_path();
            continue;
        }
        result /= elements[next];
    }
    return result;
}

std::map<u16string, u16string> const& contentTypes() {
    static std::map<u16string, u16string> const table = {
        {u"bmp", u"image/bmp"},
        {u"css", u"text/css"},
        {u"txt", u"text/plain"},
        {u"cur", u"image/x-icon"},
        {u"emf", u"image/x-emf"},
        {u"eps", u"image/eps"},
        {u"emz", u"image/x-emz"},
        {u"gif", u"image/gif"},
        {u"html", u"text/html"},
        {u"jpe", u"image/jpeg"},
        {u"jpeg", u"image/jpeg"},
        {u"jpg", u"image/jpeg"},
        {u"js", u"application/javascript"},
        {u"json", u"application/json"},
        {u"png", u"image/png"},
        {u"psd", u"image/psd"},
        {u"rtf", u"text/rtf"},
        {u"svg", u"image/svg+xml"},
        {u"tif", u"image/tiff"},
        {u"tiff", u"image/tiff"},
        {u"ttf", u"application/x-font-ttf"},
    };
    return table;
}

}  // namespace

u16string FileUtils::normalizePath(u16string const& path) {
    if (isNetworkPath(path)) return path;
    return nativePath(path).generic_string();
}

u16string FileUtils::resolvePath(u16string const& path) {
    if (isNetworkPath(path)) return path;
    try {
        return fs::canonical(nativePath(path), nativePath(getCurrentDirectory())).generic_string();
    } catch (fs::not_found_error const& e) {
        throw PathNotFound(e.what(), path, boost::system::error_code(2, boost::system::generic_category()));
    } catch (fs::filesystem_error const& e) {
        throw FileSystem(e.what(), path, boost::system::error_code(0, boost::system::system_category()));
    }
}

u16string FileUtils::extractPath(u16string const& path, bool resolve) {
    try {
        fs::path const p = resolve ? weaklyCanonical(path) : fs::path(path);
        return p.parent_path().generic_string();
    } catch (fs::filesystem_error const& e) {
        throw FileSystem(e.what(), path, boost::system::error_code(0, boost::system::system_category()));
    }
}

u16string FileUtils::extractFilename(u16string const& path) {
    try {
        return fs::path(path).filename().string();
    } catch (fs::filesystem_error const&) {
        raise<dom_error::failedToDetermineFilename>();
    }
}

u16string FileUtils::getFileNameStem(u16string const& path) {
    try {
        return fs::path(path).stem().string();
    } catch (fs::filesystem_error const&) {
        raise<dom_error::failedToDetermineFilename>();
    }
}

u16string FileUtils::getFileNameExtension(u16string const& path) {
    try {
        u16string extension = fs::path(path).extension().string();
        if (!extension.empty() && extension[0] == u'.') extension.erase(0, 1);
        return extension;
    } catch (fs::filesystem_error const&) {
        raise<dom_error::failedToDetermineFilename>();
    }
}

u16string FileUtils::appendPath(u16string const& first, u16string const& second) {
    try {
        // Joining an empty path would add a trailing separator.
        if (second.empty()) return fs::path(first).generic_string();
        return (fs::path(first) / fs::path(second)).generic_string();
    } catch (fs::filesystem_error const&) {
        raise<dom_error::failedToCombinePaths>();
    }
}

u16string FileUtils::getCurrentDirectory() {
    return host::currentDirectory();
}

u16string FileUtils::getQuorixroot() {
    return host::QuorixRoot();
}

u16string FileUtils::getToolboxdir(u16string const& name) {
    u16string dir;
    try {
        hv::ArrayPtr const arg(hvCreateString_UTF16(name));
        hvArray* in[1] = {arg.get()};
        hvArray* out[1] = {nullptr};
        if (hvCallHost("toolboxdir", 1, out, 1, in) == 0) {
            hv::ArrayPtr const result(out[0]);
            dir = hvGetString(result.get());
        }
    } catch (std::exception const&) {
        // No toolbox by that name: the standard location is the best guess.
    }
    if (dir.empty()) dir = appendPath(host::getToolboxPrefix(), name);
    return dir;
}

u16string FileUtils::getTempName() {
    char buffer[4096] = {0};
    host::utTmpnam(buffer, sizeof buffer);
    return toString(std::string(buffer));
}

u16string FileUtils::makeTempDirectory() {
    u16string const name = getTempName();
    if (!createDirectory(name)) raise<dom_error::cannotCreateTemporaryDirectory>();
    return name;
}

bool FileUtils::fileExists(u16string const& path) {
    try {
        return fs::exists(nativePath(path));
    } catch (fs::filesystem_error const&) {
        raise<dom_error::failedToQueryFileState>();
    }
}

bool FileUtils::isReadOnlyFile(u16string const& path) {
    try {
        fs::path const p = nativePath(path);
        if (!fs::exists(p)) return false;
        return (fs::status(p).permissions() & fs::perms::owner_write) == fs::perms::none;
    } catch (fs::filesystem_error const& e) {
        raise<dom_error::fileSystemError>(u"determine read-write permissions",
                                          toString(std::string(e.what())));
    }
}

bool FileUtils::createDirectory(u16string const& path) {
    try {
        fs::path const p = nativePath(path);
        if (fs::exists(p)) return true;
        fs::create_directory(p);
        return true;
    } catch (fs::filesystem_error const&) {
        raise<dom_error::failedToCreateDirectory>();
    }
}

bool FileUtils::removeDirectory(u16string const& path) {
    try {
        fs::remove_all(nativePath(path));
        return true;
    } catch (fs::filesystem_error const& e) {
        throw FileSystem(e.what(), path, boost::system::error_code(0, boost::system::system_category()));
    }
}

bool FileUtils::removeFile(u16string const& path) {
    try {
        fs::path const p = nativePath(path);
        // symlink_status, so that a dangling link counts as something to remove.
        if (fs::exists(fs::symlink_status(p))) fs::remove_all(p);
        return true;
    } catch (fs::filesystem_error const&) {
        raise<dom_error::failedToCopyFile>();
    }
}

bool FileUtils::copyFile(u16string const& source, u16string const& target, bool makeWritable) {
    removeFile(target);
    try {
        fs::path const to = nativePath(target);
        fs::copy_file(nativePath(source), to);
        if (makeWritable) fs::permissions(to, fs::status(to).permissions() | fs::perms::owner_write);
        return true;
    } catch (fs::filesystem_error const&) {
        raise<dom_error::failedToCopyFile>();
    }
}

bool FileUtils::copyFileToFolder(u16string const& source, u16string const& folder, bool makeWritable) {
    return copyFile(source, appendPath(folder, extractFilename(source)), makeWritable);
}

bool FileUtils::unzip(u16string const& zipFile, u16string const& folder) {
    hv::ArrayPtr const zip(hvCreateString_UTF16(zipFile));
    hv::ArrayPtr const dir(hvCreateString_UTF16(folder));
    hvArray* in[2] = {zip.get(), dir.get()};
    hvArray* out[1] = {nullptr};
    int const status = hvCallHost("unzip", 1, out, 2, in);
    hv::ArrayPtr const files(out[0]);
    return status == 0 && files != nullptr;
}

void FileUtils::validateFileName(u16string const& path) {
    static boost::wregex const reservedName(L"^(nul)|(con)|(aux)|(prn)|(com[1-9])|(lpt[1-9])",
                                            boost::regex::perl | boost::regex::icase);
    // Eight characters; the backslash only escapes the bar.
    static boost::wregex const reservedChar(L".*[:<>\"/\\|?*].*", boost::regex::perl);

    u16string const stem = getFileNameStem(path);
    std::wstring const wide = toWide(stem);
    if (boost::regex_match(wide, reservedName)) raise<dom_error::reservedWindowsFileName>(stem);
    if (boost::regex_match(wide, reservedChar)) raise<dom_error::reservedWindowsFileNameChar>(stem);
}

u16string FileUtils::getContentType(u16string const& path) {
    auto const& table = contentTypes();
    auto it = table.find(toLowerString(getFileNameExtension(path)));
    return it == table.end() ? u16string() : it->second;
}

}  // namespace deckforge
