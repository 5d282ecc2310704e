// The physical side of a package: named items of bytes in a zip file or a
// folder. The package model (opc/package.h) maps parts, content types and
// relationships onto items; nothing else uses this interface.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "platform/opc/deflate.h"

namespace opc {
namespace interfaces {

class IPhysicalPackage {
public:
    // No part of a package may be larger than this when read: it keeps a
    // crafted file from exhausting memory.
    static constexpr std::size_t kMaxItemSize = std::size_t(1) << 30;

    virtual ~IPhysicalPackage() = default;

    virtual bool isReadable() const = 0;  // has items to read
    virtual bool isWritable() const = 0;  // takes writes, completed by commit
    // Whether items are stored deflated, so that content deflated before it
    // is written is stored as it stands.
    virtual bool keepsItemsDeflated() const { return false; }

    // Item names as stored ("ppt/slides/slide1.xml"), in stored order.
    // Directories are not items.
    virtual std::vector<std::u16string> getItemNames() = 0;
    virtual std::shared_ptr<std::string const> readItem(std::u16string const& name) = 0;
    // Buffers a new content for the item, replacing an earlier one; nothing
    // reaches the file before commit.
    virtual void writeItem(std::u16string const& name, std::shared_ptr<std::string const> content,
                           bool compress) = 0;
    // The same for content deflated already. A package that doesn't keep
    // items deflated takes the inflated bytes.
    virtual void writeDeflatedItem(std::u16string const& name, std::shared_ptr<DeflatedContent const> content) {
        writeItem(name, std::make_shared<std::string const>(inflate(*content, "the item")), true);
    }
    // Drops a stored or buffered item at commit.
    virtual void deleteItem(std::u16string const& name) = 0;
    // Writes the buffered items out, in the order in which they were first
    // written, and completes the file.
    virtual void commit() = 0;
};

}  // namespace interfaces
}  // namespace opc
