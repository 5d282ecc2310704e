// A shape that holds table rows. The column specifications stand beside the
// tree, shared with clones; the column count is widened by appends and never
// narrowed.
#pragma once

#include <cstdint>
#include <vector>

#include "nodes/shape.h"

namespace deckforge {
namespace ppt {

class ColSpec;

class TableImpl : public ShapeImpl {
public:
    TableImpl();
    explicit TableImpl(u16string const& name);
    TableImpl(u16string const& name, u16string const& templateUid);
    explicit TableImpl(std::uint64_t nCols);
    TableImpl(TableImpl const& other);
    ~TableImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;

    std::uint64_t getNCols() const { return mNCols; }
    BaseAttribute<u16string> const& getStyleName() const { return mStyleName; }
    std::vector<boost::shared_ptr<ColSpec>> const& getColSpecs() const { return mColSpecs; }

protected:
    std::uint64_t mNCols = 0;
    BaseAttribute<u16string> mStyleName;
    std::vector<boost::shared_ptr<ColSpec>> mColSpecs;
};

class Table : public Shape {
public:
    Table();
    explicit Table(std::uint64_t nCols);
    explicit Table(PPTObjectImpl* impl) : Shape(impl) {}

    static boost::shared_ptr<Table> cast(PPTNodePtr const& node) { return castNode<Table>(node); }

    std::uint64_t getNCols() const { return tableImpl()->getNCols(); }

    TableImpl* tableImpl() const { return getImplAs<TableImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
