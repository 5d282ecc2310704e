#include "nodes/table.h"

#include "platform/hv_content.h"

#include <algorithm>

#include "engine/slide.h"
#include "platform/msg_ids.h"
#include "writers/table_writer.h"

namespace deckforge {
namespace ppt {

TableImpl::TableImpl() {
    reportCreated();
}

TableImpl::TableImpl(u16string const& name) : ShapeImpl(name) {
    reportCreated();
}

TableImpl::TableImpl(u16string const& name, u16string const& templateUid) : ShapeImpl(name, templateUid) {
    reportCreated();
}

TableImpl::TableImpl(std::uint64_t nCols) : mNCols(nCols) {
    reportCreated();
}

TableImpl::TableImpl(TableImpl const& other)
    : ShapeImpl(other), mNCols(other.mNCols), mStyleName(other.mStyleName), mColSpecs(other.mColSpecs) {
    reportCreated();
}

TableImpl::TableImpl(ShapeImpl const& replaced, TableImpl const& given)
    : mNCols(given.mNCols), mColSpecs(given.mColSpecs) {
    // The old table's name stays in every case, so a lookup by name finds
    // the new one.
    takeOverShape(replaced, true);
    setStyle(given.getStyle());
    if (given.getWidth().isSet()) setWidth(given.getWidth().getValue().getText());
    if (given.getHeight().isSet()) setHeight(given.getHeight().getValue().getText());
    if (given.getX().isSet()) setX(given.getX().getValue().getText());
    if (given.getY().isSet()) setY(given.getY().getValue().getText());
    for (auto const& child : given.getChildren())
        if (child) appendChild(child->clone());
    if (given.mStyleName.isSet()) mStyleName = given.mStyleName;
    reportCreated();
}

TableImpl::~TableImpl() {
    reportDestroyed();
}

char const* TableImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Table";
}

void TableImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    TableWriter(this, writer, parent).write();
}

PPTNodePtr TableImpl::makeInterface() {
    return boost::make_shared<Table>(this);
}

PPTNodePtr TableImpl::clone() const {
    return (new TableImpl(*this))->makeInterface();
}

NodeType TableImpl::getNodeType() const {
    return NodeType::Table;
}

void TableImpl::replace(boost::shared_ptr<HvContent> const& content) {
    replaceGuard();
    ObjectContent const* object = ObjectContent::getValue(content);
    if (object && object->isA("deckforge.ppt.Table")) {
        if (auto* table = dynamic_cast<TableImpl*>(object->getNative())) {
            replace(Table(table));
            return;
        }
    }
    deckforge::raise<ppt_error::invalidReplaceArg>();
}

PPTNodeImpl* TableImpl::replaceGuard() const {
    if (!getParent()) deckforge::raise<ppt_error::tableCannotBeReplaced>();
    return getParent();
}

Table TableImpl::replace(Table const& table) {
    auto* slide = dynamic_cast<SlideImpl*>(replaceGuard());
    if (!slide) return table;
    bool found = false;
    for (auto const& child : slide->getChildren()) found = found || (child && child->getImpl() == this);
    if (!found) return table;
    PPTNodePtr const successor = (new TableImpl(*this, *table.tableImpl()))->makeInterface();
    slide->putInPlaceOf(this, successor);
    return Table(successor->getImpl());
}

void TableImpl::append(TableRow const& row) {
    appendChild(row.makeInterface());
    widenTo(row.getNChildren());
}

void TableImpl::widenTo(std::uint64_t nCols) {
    mNCols = std::max(mNCols, nCols);
}

boost::shared_ptr<TableRow> TableImpl::row(unsigned long index) const {
    if (index >= getChildren().size() || !getChildren()[index]) return {};
    auto* impl = dynamic_cast<TableRowImpl*>(getChildren()[index]->nodeImpl());
    return impl ? boost::make_shared<TableRow>(impl) : boost::shared_ptr<TableRow>();
}

boost::shared_ptr<TableEntry> TableImpl::entry(unsigned long rowIndex, unsigned long col) const {
    boost::shared_ptr<TableRow> const found = row(rowIndex);
    if (!found) return {};
    std::uint64_t const count = found->getNChildren();
    if (count != mNCols)
        deckforge::raise<dom_error::entriesColumnsMismatch>(num2str(rowIndex + 1), num2str(count),
                                                            num2str(mNCols));
    if (col >= count || !found->getChildren()[col]) return {};
    auto* impl = dynamic_cast<TableEntryImpl*>(found->getChildren()[col]->nodeImpl());
    return impl ? boost::make_shared<TableEntry>(impl) : boost::shared_ptr<TableEntry>();
}

Table::Table() : Shape(new TableImpl()) {}

Table::Table(std::uint64_t nCols) : Shape(new TableImpl(nCols)) {}

Table::Table(u16string const& name) : Shape(new TableImpl(name)) {}

}  // namespace ppt
}  // namespace deckforge
