#include "nodes/picture.h"

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

Picture::Picture() : Shape(new PictureImpl()) {}

}  // namespace ppt
}  // namespace deckforge
