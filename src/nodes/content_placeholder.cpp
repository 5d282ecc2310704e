#include "nodes/content_placeholder.h"

namespace deckforge {
namespace ppt {

ContentPlaceholderImpl::ContentPlaceholderImpl() {
    reportCreated();
}

ContentPlaceholderImpl::ContentPlaceholderImpl(u16string const& name) : PicturePlaceholderImpl(name) {
    reportCreated();
}

ContentPlaceholderImpl::ContentPlaceholderImpl(u16string const& name, u16string const& templateUid)
    : PicturePlaceholderImpl(name, templateUid) {
    reportCreated();
}

ContentPlaceholderImpl::ContentPlaceholderImpl(u16string const& name, u16string const& templateUid,
                                               u16string const& placeholderType)
    : PicturePlaceholderImpl(name, templateUid, placeholderType) {
    reportCreated();
}

ContentPlaceholderImpl::ContentPlaceholderImpl(ContentPlaceholderImpl const& other)
    : PicturePlaceholderImpl(other) {
    reportCreated();
}

ContentPlaceholderImpl::~ContentPlaceholderImpl() {
    reportDestroyed();
}

char const* ContentPlaceholderImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.ContentPlaceholder";
}

PPTNodePtr ContentPlaceholderImpl::makeInterface() {
    return boost::make_shared<ContentPlaceholder>(this);
}

PPTNodePtr ContentPlaceholderImpl::clone() const {
    return (new ContentPlaceholderImpl(*this))->makeInterface();
}

NodeType ContentPlaceholderImpl::getNodeType() const {
    return NodeType::ContentPlaceholder;
}

bool ContentPlaceholderImpl::isA(NodeType type) const {
    return type == NodeType::ContentPlaceholder || PicturePlaceholderImpl::isA(type);
}

Table ContentPlaceholderImpl::replace(Table const& table) {
    return Table(yieldPlaceTo(table.makeInterface())->getImpl());
}

Chart ContentPlaceholderImpl::replace(Chart const& chart) {
    return Chart(yieldPlaceTo(chart.makeInterface())->getImpl());
}

ContentPlaceholder::ContentPlaceholder() : PicturePlaceholder(new ContentPlaceholderImpl()) {}

}  // namespace ppt
}  // namespace deckforge
