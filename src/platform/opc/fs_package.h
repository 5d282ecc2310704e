// A package laid out as a folder: each item is a file under it.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "platform/opc/physical_package.h"

namespace opc {
namespace fspackage {

// Looks at the disk only when first asked for its items, so that a folder
// package to be written may not exist yet. Symbolic links are not followed,
// so that a package can't reach files outside its folder.
class FileSystemPhysicalPackage : public interfaces::IPhysicalPackage {
public:
    explicit FileSystemPhysicalPackage(std::u16string const& folder);

    bool isReadable() const override { return true; }
    bool isWritable() const override { return true; }
    std::vector<std::u16string> getItemNames() override;
    std::shared_ptr<std::string const> readItem(std::u16string const& name) override;
    void writeItem(std::u16string const& name, std::shared_ptr<std::string const> content,
                   bool compress) override;
    void deleteItem(std::u16string const& name) override;
    void commit() override;

private:
    std::string folder_;  // UTF-8
    std::vector<std::pair<std::u16string, std::shared_ptr<std::string const>>> pending_;
    std::unordered_map<std::u16string, std::size_t> pendingIndex_;
};

}  // namespace fspackage
}  // namespace opc
