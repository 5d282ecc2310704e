// Byte streams of the package library: what parts are read from and written
// to, adaptors over standard streams, and access to local files.
#pragma once

#include <cstddef>
#include <ios>
#include <istream>
#include <memory>
#include <ostream>
#include <string>

#include <boost/shared_ptr.hpp>

namespace opc {

class InputStream {
public:
    virtual ~InputStream() = default;
    // Reads up to count bytes; gives how many were read, 0 at the end.
    virtual std::size_t read(void* buffer, std::size_t count) = 0;
};

class OutputStream {
public:
    virtual ~OutputStream() = default;
    virtual void write(void const* buffer, std::size_t count) = 0;
    // Finishes the stream. For a part's stream this is when the written bytes
    // become the part's content; without it they are lost.
    virtual void close() = 0;
};

class StdIStreamAdaptor : public InputStream {
public:
    explicit StdIStreamAdaptor(std::istream& stream) : stream_(stream) {}
    std::size_t read(void* buffer, std::size_t count) override;

private:
    std::istream& stream_;
};

class StdOStreamAdaptor : public OutputStream {
public:
    explicit StdOStreamAdaptor(std::ostream& stream) : stream_(stream) {}
    void write(void const* buffer, std::size_t count) override;
    void close() override;  // flushes; the standard stream stays open

private:
    std::ostream& stream_;
};

// Bytes held in memory, shared with whoever made them.
class MemoryInputStream : public InputStream {
public:
    explicit MemoryInputStream(std::shared_ptr<std::string const> bytes);
    std::size_t read(void* buffer, std::size_t count) override;

private:
    std::shared_ptr<std::string const> bytes_;
    std::size_t position_ = 0;
};

class FileSystemOps {
public:
    virtual ~FileSystemOps() = default;
    virtual boost::shared_ptr<std::istream> createInputStream(std::u16string const& path,
                                                              std::ios_base::openmode mode) const = 0;
    virtual boost::shared_ptr<std::ostream> createOutputStream(std::u16string const& path,
                                                               std::ios_base::openmode mode) const = 0;
};

// Files of the local file system; paths are UTF-16 and go to the system as
// UTF-8. Raises opc::Exception when a file can't be opened.
class LocalFileSystemOps : public FileSystemOps {
public:
    boost::shared_ptr<std::istream> createInputStream(std::u16string const& path,
                                                      std::ios_base::openmode mode) const override;
    boost::shared_ptr<std::ostream> createOutputStream(std::u16string const& path,
                                                       std::ios_base::openmode mode) const override;
};

class StreamHelper {
public:
    // Copies everything that is left in `in`; gives the number of bytes. Does
    // not close `out`.
    static std::size_t copyStreamToStream(InputStream& in, OutputStream& out);
    // Reads everything that is left; raises if it is more than `limit` bytes.
    static std::string readAll(InputStream& in, std::size_t limit);
};

}  // namespace opc
