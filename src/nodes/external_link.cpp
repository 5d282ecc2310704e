#include "nodes/external_link.h"

#include "writers/external_link_writer.h"

namespace deckforge {
namespace ppt {

ExternalLinkImpl::ExternalLinkImpl() {
    reportCreated();
}

ExternalLinkImpl::ExternalLinkImpl(u16string const& target, u16string const& text)
    : TextImpl(text), mTarget(target) {
    reportCreated();
}

ExternalLinkImpl::ExternalLinkImpl(ExternalLinkImpl const& other) : TextImpl(other), mTarget(other.mTarget) {
    reportCreated();
}

ExternalLinkImpl::~ExternalLinkImpl() {
    reportDestroyed();
}

char const* ExternalLinkImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.ExternalLink";
}

void ExternalLinkImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    ExternalLinkWriter(this, writer, parent).write();
}

PPTNodePtr ExternalLinkImpl::makeInterface() {
    return boost::make_shared<ExternalLink>(this);
}

PPTNodePtr ExternalLinkImpl::clone() const {
    return (new ExternalLinkImpl(*this))->makeInterface();
}

NodeType ExternalLinkImpl::getNodeType() const {
    return NodeType::ExternalLink;
}

ExternalLink::ExternalLink() : Text(new ExternalLinkImpl()) {}

ExternalLink::ExternalLink(u16string const& target, u16string const& text)
    : Text(new ExternalLinkImpl(target, text)) {}

}  // namespace ppt
}  // namespace deckforge
