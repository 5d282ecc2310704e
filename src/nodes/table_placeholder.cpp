#include "nodes/table_placeholder.h"

namespace deckforge {
namespace ppt {

TablePlaceholderImpl::TablePlaceholderImpl() {
    reportCreated();
}

TablePlaceholderImpl::TablePlaceholderImpl(u16string const& name) : BodyPlaceholderImpl(name) {
    reportCreated();
}

TablePlaceholderImpl::TablePlaceholderImpl(u16string const& name, u16string const& templateUid)
    : BodyPlaceholderImpl(name, templateUid) {
    reportCreated();
}

TablePlaceholderImpl::TablePlaceholderImpl(u16string const& name, u16string const& templateUid,
                                           u16string const& placeholderType)
    : BodyPlaceholderImpl(name, templateUid, placeholderType) {
    reportCreated();
}

TablePlaceholderImpl::TablePlaceholderImpl(TablePlaceholderImpl const& other) : BodyPlaceholderImpl(other) {
    reportCreated();
}

TablePlaceholderImpl::~TablePlaceholderImpl() {
    reportDestroyed();
}

char const* TablePlaceholderImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.TablePlaceholder";
}

PPTNodePtr TablePlaceholderImpl::makeInterface() {
    return boost::make_shared<TablePlaceholder>(this);
}

PPTNodePtr TablePlaceholderImpl::clone() const {
    return (new TablePlaceholderImpl(*this))->makeInterface();
}

NodeType TablePlaceholderImpl::getNodeType() const {
    return NodeType::TablePlaceholder;
}

bool TablePlaceholderImpl::isA(NodeType type) const {
    return type == NodeType::TablePlaceholder || BodyPlaceholderImpl::isA(type);
}

Table TablePlaceholderImpl::replace(Table const& table) {
    return Table(yieldPlaceTo(table.makeInterface())->getImpl());
}

TablePlaceholder::TablePlaceholder() : BodyPlaceholder(new TablePlaceholderImpl()) {}

}  // namespace ppt
}  // namespace deckforge
