#include "nodes/picture.h"

#include "common/image_info.h"
#include "engine/slide.h"
#include "platform/msg_ids.h"
#include "writers/ppt_writer.h"

namespace deckforge {
namespace ppt {

PictureImpl::PictureImpl() {
    reportCreated();
}

PictureImpl::PictureImpl(u16string const& name) : ShapeImpl(name) {
    reportCreated();
}

PictureImpl::PictureImpl(u16string const& name, u16string const& templateUid) : ShapeImpl(name, templateUid) {
    reportCreated();
}

PictureImpl::PictureImpl(PictureImpl const& other) : ShapeImpl(other), mPath(other.mPath) {
    reportCreated();
}

PictureImpl::PictureImpl(ShapeImpl const& replaced, PictureImpl const& given) : mPath(given.mPath) {
    // The old picture's name stays in every case, so a lookup by name finds
    // the new one.
    takeOverShape(replaced, true);
    if (given.getWidth().isSet()) setWidth(given.getWidth().getValue().getText());
    if (given.getHeight().isSet()) setHeight(given.getHeight().getValue().getText());
    if (given.getX().isSet()) setX(given.getX().getValue().getText());
    if (given.getY().isSet()) setY(given.getY().getValue().getText());
    reportCreated();
}

PictureImpl::~PictureImpl() {
    reportDestroyed();
}

char const* PictureImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Picture";
}

void PictureImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    writer->writePicture(this, parent);
}

PPTNodePtr PictureImpl::makeInterface() {
    return boost::make_shared<Picture>(this);
}

PPTNodePtr PictureImpl::clone() const {
    return (new PictureImpl(*this))->makeInterface();
}

NodeType PictureImpl::getNodeType() const {
    return NodeType::Picture;
}

void PictureImpl::setPath(u16string const& path) {
    ImageInfo const info = InfoUtils::getImageInfo(path);
    mPath = path;
    // Plain numbers, which a Dimension reads as pixels.
    setWidth(num2str(info.width));
    setHeight(num2str(info.height));
}

PPTNodeImpl* PictureImpl::replaceGuard() const {
    if (!getParent()) deckforge::raise<ppt_error::pictureCannotBeReplaced>();
    return getParent();
}

Picture PictureImpl::replace(Picture const& picture) {
    auto* slide = dynamic_cast<SlideImpl*>(replaceGuard());
    if (!slide) return picture;
    bool found = false;
    for (auto const& child : slide->getChildren()) found = found || (child && child->getImpl() == this);
    if (!found) return picture;
    PPTNodePtr const successor = (new PictureImpl(*this, *picture.pictureImpl()))->makeInterface();
    slide->putInPlaceOf(this, successor);
    return Picture(successor->getImpl());
}

Picture::Picture() : Shape(new PictureImpl()) {}

Picture::Picture(u16string const& path) : Shape(new PictureImpl()) {
    setPath(path);
}

}  // namespace ppt
}  // namespace deckforge
