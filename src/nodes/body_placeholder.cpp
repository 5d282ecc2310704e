#include "nodes/body_placeholder.h"

namespace deckforge {
namespace ppt {

BodyPlaceholderImpl::BodyPlaceholderImpl() {
    reportCreated();
}

BodyPlaceholderImpl::BodyPlaceholderImpl(u16string const& name) : TextBoxPlaceholderImpl(name) {
    reportCreated();
}

BodyPlaceholderImpl::BodyPlaceholderImpl(u16string const& name, u16string const& templateUid)
    : TextBoxPlaceholderImpl(name, templateUid) {
    reportCreated();
}

BodyPlaceholderImpl::BodyPlaceholderImpl(u16string const& name, u16string const& templateUid,
                                         u16string const& placeholderType)
    : TextBoxPlaceholderImpl(name, templateUid, placeholderType) {
    reportCreated();
}

BodyPlaceholderImpl::BodyPlaceholderImpl(BodyPlaceholderImpl const& other) : TextBoxPlaceholderImpl(other) {
    reportCreated();
}

BodyPlaceholderImpl::~BodyPlaceholderImpl() {
    reportDestroyed();
}

char const* BodyPlaceholderImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.BodyPlaceholder";
}

PPTNodePtr BodyPlaceholderImpl::makeInterface() {
    return boost::make_shared<BodyPlaceholder>(this);
}

PPTNodePtr BodyPlaceholderImpl::clone() const {
    return (new BodyPlaceholderImpl(*this))->makeInterface();
}

NodeType BodyPlaceholderImpl::getNodeType() const {
    return NodeType::BodyPlaceholder;
}

bool BodyPlaceholderImpl::isA(NodeType type) const {
    return type == NodeType::BodyPlaceholder || TextBoxPlaceholderImpl::isA(type);
}

BodyPlaceholder::BodyPlaceholder() : TextBoxPlaceholder(new BodyPlaceholderImpl()) {}

}  // namespace ppt
}  // namespace deckforge
