// A package in a zip file, over libzip.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/opc/physical_package.h"
#include "platform/opc/streams.h"

struct zip;

namespace opc {
namespace zippackage {

// Reading takes the entry list in at construction and refuses archives that
// are corrupt or hostile (names leaving the package, names equal but for
// case, sizes above kMaxItemSize). Writing buffers every item in memory and
// writes the archive at commit (see zip_writer.h): entries left unchanged are
// copied as they are stored, without inflating them again.
class ZipPhysicalPackage : public interfaces::IPhysicalPackage {
public:
    // Reads the zip held by the stream.
    explicit ZipPhysicalPackage(InputStream& in);
    // Writes a new zip to the stream at commit. A stream can't be updated:
    // `update` must be false.
    ZipPhysicalPackage(OutputStream& out, bool update);
    // With `update` true, reads the existing file and at commit rewrites it
    // through a temporary file that replaces it; until then the file is
    // untouched. With false, writes a new file at the path.
    ZipPhysicalPackage(std::u16string const& path, bool update);
    ~ZipPhysicalPackage() override;
    ZipPhysicalPackage(ZipPhysicalPackage const&) = delete;
    ZipPhysicalPackage& operator=(ZipPhysicalPackage const&) = delete;

    bool isReadable() const override { return readable_; }
    bool isWritable() const override { return writable_; }
    std::vector<std::u16string> getItemNames() override { return names_; }
    std::shared_ptr<std::string const> readItem(std::u16string const& name) override;
    void writeItem(std::u16string const& name, std::shared_ptr<std::string const> content,
                   bool compress) override;
    void writeDeflatedItem(std::u16string const& name, std::shared_ptr<DeflatedContent const> content) override;
    bool keepsItemsDeflated() const override { return true; }
    void deleteItem(std::u16string const& name) override;
    void commit() override;

private:
    void indexEntries();
    void indexOrDiscard();

    struct Pending {
        std::u16string name;
        std::shared_ptr<std::string const> content;
        bool compress;
        std::shared_ptr<DeflatedContent const> deflated;
        bool removed;
    };
    // Queues an item for commit; a later item of the same name replaces it.
    void pend(Pending item);

    zip* archive_ = nullptr;
    std::string input_;               // the bytes of a zip read from a stream
    OutputStream* output_ = nullptr;  // where a zip written to a stream goes
    std::string path_;                // or the file written at commit
    bool committed_ = false;
    bool readable_ = false;
    bool writable_ = false;
    std::vector<std::u16string> names_;
    std::unordered_map<std::u16string, std::uint64_t> entries_;
    std::vector<Pending> pending_;
    std::unordered_map<std::u16string, std::size_t> pendingIndex_;
};

}  // namespace zippackage
}  // namespace opc
