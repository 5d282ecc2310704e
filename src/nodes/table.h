// A shape that holds table rows; each row holds entries, each entry
// paragraphs. The column specifications stand beside the tree, shared with
// clones and with the tables that take this one's place. The column count is
// set by the constructor and widened by appends, never narrowed; rows of
// other sizes are kept as they are and show only through entry().
#pragma once

#include <cstdint>
#include <vector>

#include "nodes/table_column.h"
#include "nodes/shape.h"
#include "nodes/table_row.h"
#include "formats/element_style.h"
#include "platform/hv_content.h"

namespace deckforge {
namespace ppt {

class Table;

class TableImpl : public ShapeImpl {
public:
    TableImpl();
    explicit TableImpl(u16string const& name);
    TableImpl(u16string const& name, u16string const& templateUid);
    explicit TableImpl(std::uint64_t nCols);
    // Host-value constructor: see table_from_host.cpp
    explicit TableImpl(boost::shared_ptr<HvTable> const& table);
    // Clones the rows; shares the ColSpecs.
    TableImpl(TableImpl const& other);
    // The table that takes `replaced`'s place (a placeholder or a table) with
    // the content of `given`: identity, Name and geometry of `replaced`, then
    // whatever of Width, Height, X and Y `given` sets, then `given`'s
    // formats, column count, clones of its rows, its ColSpecs (shared) and
    // its StyleName if set. `given` is only read.
    TableImpl(ShapeImpl const& replaced, TableImpl const& given);
    ~TableImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;

    // A host value that holds no Table is refused (invalidReplaceArg), after
    // the guard.
    void replace(boost::shared_ptr<HvContent> const& content) override;
    // A table built from this one and `table` takes this one's place among
    // the slide's children and is returned. A table in a group, or not among
    // its slide's children, changes nothing: the argument comes back.
    virtual Table replace(Table const& table);
    // The parent, or tableCannotBeReplaced: a free table, or one that was
    // replaced already.
    virtual PPTNodeImpl* replaceGuard() const;

    // Appends the row itself (failedToAppendChild if it has a parent) and
    // widens the column count to its entry count.
    void append(TableRow const& row);
    void widenTo(std::uint64_t nCols);
    // 0-based; empty past the last row.
    boost::shared_ptr<TableRow> row(unsigned long index) const;
    // 0-based; empty past the last row or past the row's last entry. A row
    // whose entry count isn't the column count raises entriesColumnsMismatch
    // (a row with a spanning entry is one).
    boost::shared_ptr<TableEntry> entry(unsigned long row, unsigned long col) const;

    std::uint64_t getNCols() const { return mNCols; }
    BaseAttribute<u16string> const& getStyleName() const { return mStyleName; }
    void setStyleName(u16string const& name) { mStyleName.setValue(name); }
    void unsetStyleName() { mStyleName.unsetValue(); }
    std::vector<boost::shared_ptr<ColSpec>> const& getColSpecs() const { return mColSpecs; }
    void setColSpecs(std::vector<boost::shared_ptr<ColSpec>> const& specs) { mColSpecs = specs; }

protected:
    std::uint64_t mNCols = 0;
    BaseAttribute<u16string> mStyleName;
    std::vector<boost::shared_ptr<ColSpec>> mColSpecs;
};

class Table : public Shape, public FontStyle<Table> {
public:
    Table();
    explicit Table(std::uint64_t nCols);
    explicit Table(u16string const& name);
    // Rows, entries and paragraphs from a host value; see table_from_host.cpp.
    explicit Table(boost::shared_ptr<HvTable> const& table);
    explicit Table(PPTObjectImpl* impl) : Shape(impl) {}

    static boost::shared_ptr<Table> cast(PPTNodePtr const& node) { return castNode<Table>(node); }

    TableRow append(TableRow const& row) {
        tableImpl()->append(row);
        return row;
    }
    std::uint64_t getNCols() const { return tableImpl()->getNCols(); }
    boost::shared_ptr<TableRow> row(unsigned long index) const { return tableImpl()->row(index); }
    boost::shared_ptr<TableEntry> entry(unsigned long row, unsigned long col) const {
        return tableImpl()->entry(row, col);
    }

    BaseAttribute<u16string> const& getStyleName() const { return tableImpl()->getStyleName(); }
    void setStyleName(u16string const& name) { tableImpl()->setStyleName(name); }
    void unsetStyleName() { tableImpl()->unsetStyleName(); }
    std::vector<boost::shared_ptr<ColSpec>> const& getColSpecs() const { return tableImpl()->getColSpecs(); }
    void setColSpecs(std::vector<boost::shared_ptr<ColSpec>> const& specs) {
        tableImpl()->setColSpecs(specs);
    }

    Table replace(Table const& table) { return tableImpl()->replace(table); }
    using Shape::replace;

    TableImpl* tableImpl() const { return getImplAs<TableImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
