#include "nodes/picture_placeholder.h"

namespace deckforge {
namespace ppt {

PicturePlaceholderImpl::PicturePlaceholderImpl() {
    reportCreated();
}

PicturePlaceholderImpl::PicturePlaceholderImpl(u16string const& name) : BodyPlaceholderImpl(name) {
    reportCreated();
}

PicturePlaceholderImpl::PicturePlaceholderImpl(u16string const& name, u16string const& templateUid)
    : BodyPlaceholderImpl(name, templateUid) {
    reportCreated();
}

PicturePlaceholderImpl::PicturePlaceholderImpl(u16string const& name, u16string const& templateUid,
                                               u16string const& placeholderType)
    : BodyPlaceholderImpl(name, templateUid, placeholderType) {
    reportCreated();
}

PicturePlaceholderImpl::PicturePlaceholderImpl(PicturePlaceholderImpl const& other)
    : BodyPlaceholderImpl(other) {
    reportCreated();
}

PicturePlaceholderImpl::~PicturePlaceholderImpl() {
    reportDestroyed();
}

char const* PicturePlaceholderImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.PicturePlaceholder";
}

PPTNodePtr PicturePlaceholderImpl::makeInterface() {
    return boost::make_shared<PicturePlaceholder>(this);
}

PPTNodePtr PicturePlaceholderImpl::clone() const {
    return (new PicturePlaceholderImpl(*this))->makeInterface();
}

NodeType PicturePlaceholderImpl::getNodeType() const {
    return NodeType::PicturePlaceholder;
}

bool PicturePlaceholderImpl::isA(NodeType type) const {
    return type == NodeType::PicturePlaceholder || BodyPlaceholderImpl::isA(type);
}

Picture PicturePlaceholderImpl::replace(Picture const& picture) {
    return Picture(yieldPlaceTo(picture.makeInterface())->getImpl());
}

PicturePlaceholder::PicturePlaceholder() : BodyPlaceholder(new PicturePlaceholderImpl()) {}

}  // namespace ppt
}  // namespace deckforge
