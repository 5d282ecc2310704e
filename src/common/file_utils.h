// All direct contact with the file system. Paths are UTF-16 and leave this
// class in generic form (forward slashes).
#pragma once

#include <stdexcept>
#include <string>

#include <boost/system/error_code.hpp>

#include "common/strings.h"

namespace deckforge {

// Failures of the file layer that callers turn into message ids.
class Exception : public std::runtime_error {
public:
    Exception(std::string const& message, boost::system::error_code const& code)
        : std::runtime_error(message), code_(code) {}
    boost::system::error_code const& code() const { return code_; }

private:
    boost::system::error_code code_;
};

// A file-system failure while resolving `path()`.
class FileSystem : public Exception {
public:
    FileSystem(std::string const& message, u16string const& path, boost::system::error_code const& code)
        : Exception(message, code), path_(path) {}
    u16string const& path() const { return path_; }

private:
    u16string path_;
};

// Path resolution found no such path.
class PathNotFound : public FileSystem {
public:
    using FileSystem::FileSystem;
};

class FileUtils {
public:
    FileUtils() = delete;

    // Network paths ("\\server\share") are kept as they are.
    static u16string normalizePath(u16string const& path);
    // Canonical absolute path against the host's current directory; throws
    // PathNotFound or FileSystem.
    static u16string resolvePath(u16string const& path);
    // The parent directory; with `resolve`, of the path completed to its
    // weak canonical form first (the file itself need not exist). Throws FileSystem.
    static u16string extractPath(u16string const& path, bool resolve);
    static u16string extractFilename(u16string const& path);
    static u16string getFileNameStem(u16string const& path);
    // Without the dot.
    static u16string getFileNameExtension(u16string const& path);
    static u16string appendPath(u16string const& first, u16string const& second);

    // The host's current directory, which isn't the process's.
    static u16string getCurrentDirectory();
    static u16string getQuorixroot();
    static u16string getToolboxdir(u16string const& name);
    static u16string getTempName();
    static u16string makeTempDirectory();

    static bool fileExists(u16string const& path);
    // False for a path that doesn't exist.
    static bool isReadOnlyFile(u16string const& path);
    // One level only; true also if the path exists.
    static bool createDirectory(u16string const& path);
    static bool removeDirectory(u16string const& path);
    // True also when there was nothing to remove.
    static bool removeFile(u16string const& path);
    // Replaces the target rather than writing into it, so a read-only target
    // in a writable directory is no obstacle.
    static bool copyFile(u16string const& source, u16string const& target, bool makeWritable);
    static bool copyFileToFolder(u16string const& source, u16string const& folder, bool makeWritable);
    static bool unzip(u16string const& zipFile, u16string const& folder);

    // Refuses names that would fail on Windows: reserved device names and
    // reserved characters in the file's stem.
    static void validateFileName(u16string const& path);
    // The media type for the file's extension, or empty text.
    static u16string getContentType(u16string const& path);

    // Copies a package, giving its main part `contentType`: a byte copy when
    // it has that type already, otherwise part by part.
    static void copyPackage(u16string const& source, u16string const& target, u16string const& contentType);
    // Writes a Strict package as Transitional: the same parts, reached by the
    // same relationships, with Strict namespaces and relationship types read as
    // their transitional equivalents. Gives an empty text on success, or what
    // could not be mapped (a namespace or relationship type, with its part).
    static u16string convertStrictPackage(u16string const& source, u16string const& target);
};

}  // namespace deckforge
