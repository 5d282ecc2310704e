#include "nodes/chart_placeholder.h"

namespace deckforge {
namespace ppt {

ChartPlaceholderImpl::ChartPlaceholderImpl() {
    reportCreated();
}

ChartPlaceholderImpl::ChartPlaceholderImpl(u16string const& name) : BodyPlaceholderImpl(name) {
    reportCreated();
}

ChartPlaceholderImpl::ChartPlaceholderImpl(u16string const& name, u16string const& templateUid)
    : BodyPlaceholderImpl(name, templateUid) {
    reportCreated();
}

ChartPlaceholderImpl::ChartPlaceholderImpl(u16string const& name, u16string const& templateUid,
                                           u16string const& placeholderType)
    : BodyPlaceholderImpl(name, templateUid, placeholderType) {
    reportCreated();
}

ChartPlaceholderImpl::ChartPlaceholderImpl(ChartPlaceholderImpl const& other) : BodyPlaceholderImpl(other) {
    reportCreated();
}

ChartPlaceholderImpl::~ChartPlaceholderImpl() {
    reportDestroyed();
}

char const* ChartPlaceholderImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.ChartPlaceholder";
}

PPTNodePtr ChartPlaceholderImpl::makeInterface() {
    return boost::make_shared<ChartPlaceholder>(this);
}

PPTNodePtr ChartPlaceholderImpl::clone() const {
    return (new ChartPlaceholderImpl(*this))->makeInterface();
}

NodeType ChartPlaceholderImpl::getNodeType() const {
    return NodeType::ChartPlaceholder;
}

bool ChartPlaceholderImpl::isA(NodeType type) const {
    return type == NodeType::ChartPlaceholder || BodyPlaceholderImpl::isA(type);
}

Chart ChartPlaceholderImpl::replace(Chart const& chart) {
    return Chart(yieldPlaceTo(chart.makeInterface())->getImpl());
}

ChartPlaceholder::ChartPlaceholder() : BodyPlaceholder(new ChartPlaceholderImpl()) {}

}  // namespace ppt
}  // namespace deckforge
