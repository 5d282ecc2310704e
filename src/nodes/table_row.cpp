#include "nodes/table_row.h"

#include "nodes/table.h"
#include "writers/table_row_writer.h"

namespace deckforge {
namespace ppt {

TableRowImpl::TableRowImpl() {
    reportCreated();
}

TableRowImpl::TableRowImpl(TableRowImpl const& other) : ElementImpl(other) {
    reportCreated();
}

TableRowImpl::~TableRowImpl() {
    reportDestroyed();
}

char const* TableRowImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.TableRow";
}

void TableRowImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    TableRowWriter(this, writer, parent).write();
}

PPTNodePtr TableRowImpl::makeInterface() {
    return boost::make_shared<TableRow>(this);
}

PPTNodePtr TableRowImpl::clone() const {
    return (new TableRowImpl(*this))->makeInterface();
}

NodeType TableRowImpl::getNodeType() const {
    return NodeType::TableRow;
}

void TableRowImpl::append(TableEntry const& entry) {
    appendChild(entry.makeInterface());
    if (auto* table = dynamic_cast<TableImpl*>(getParent())) table->widenTo(getChildren().size());
}

TableRow::TableRow() : Element(new TableRowImpl()) {}

}  // namespace ppt
}  // namespace deckforge
