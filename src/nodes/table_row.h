// One row of a table: its entries, in column order. A row has no height of
// its own; all rows of a table share its Height.
#pragma once

#include "engine/ppt_node.h"
#include "nodes/table_entry.h"
#include "formats/element_style.h"

namespace deckforge {
namespace ppt {

class TableRowImpl : public ElementImpl {
public:
    TableRowImpl();
    // Clones the entries.
    TableRowImpl(TableRowImpl const& other);
    ~TableRowImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;

    // Appends the entry itself (failedToAppendChild if it has a parent); a
    // row that stands in a table widens the table's column count to its
    // entry count.
    void append(TableEntry const& entry);
};

class TableRow : public Element, public FontStyle<TableRow>, public FillStyle<TableRow> {
public:
    TableRow();
    explicit TableRow(PPTObjectImpl* impl) : Element(impl) {}

    static boost::shared_ptr<TableRow> cast(PPTNodePtr const& node) { return castNode<TableRow>(node); }

    TableEntry append(TableEntry const& entry) {
        tableRowImpl()->append(entry);
        return entry;
    }

    TableRowImpl* tableRowImpl() const { return getImplAs<TableRowImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
