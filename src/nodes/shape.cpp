#include "nodes/shape.h"

#include "platform/msg_ids.h"
#include "template/template_records.h"

namespace deckforge {
namespace ppt {

ShapeImpl::ShapeImpl() {
    reportCreated();
}

ShapeImpl::ShapeImpl(u16string const& name) {
    ShapeImpl::setName(name);
    reportCreated();
}

ShapeImpl::ShapeImpl(u16string const& name, u16string const& templateUid) : mTemplateUid(templateUid) {
    ShapeImpl::setName(name);
    appendTemplateUidToId();
    reportCreated();
}

ShapeImpl::ShapeImpl(ShapeImpl const& other)
    : ElementImpl(other),
      mReplaced(other.mReplaced),
      mTemplateUid(other.mTemplateUid),
      mTemplateShape(other.mTemplateShape),
      mNameAttr(other.mNameAttr),
      mX(other.mX),
      mY(other.mY),
      mWidth(other.mWidth),
      mHeight(other.mHeight) {
    PPTNodeImpl::setName(other.getName());
    reportCreated();
}

ShapeImpl::~ShapeImpl() {
    reportDestroyed();
}

char const* ShapeImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Shape";
}

PPTNodePtr ShapeImpl::makeInterface() {
    return boost::make_shared<Shape>(this);
}

PPTNodePtr ShapeImpl::clone() const {
    return (new ShapeImpl(*this))->makeInterface();
}

NodeType ShapeImpl::getNodeType() const {
    return NodeType::Shape;
}

void ShapeImpl::setName(u16string const& name) {
    mNameAttr.setValue(name);
    PPTNodeImpl::setName(name);
}

void ShapeImpl::replace(boost::shared_ptr<HvContent> const&) {
    deckforge::raise<ppt_error::invalidReplaceArg>();
}

void ShapeImpl::setX(u16string const& value) {
    mX.setValue(Dimension(value));
}

void ShapeImpl::setY(u16string const& value) {
    mY.setValue(Dimension(value));
}

void ShapeImpl::setWidth(u16string const& value) {
    mWidth.setValue(Dimension(value));
}

void ShapeImpl::setHeight(u16string const& value) {
    mHeight.setValue(Dimension(value));
}

void ShapeImpl::takeOverShape(ShapeImpl const& source, bool nameAlways) {
    mTemplateUid = source.mTemplateUid;
    mTemplateShape = source.mTemplateShape;
    mNameAttr = source.mNameAttr;
    mX = source.mX;
    mY = source.mY;
    mWidth = source.mWidth;
    mHeight = source.mHeight;
    if (nameAlways || source.mNameAttr.isSet()) setName(source.getName());
    appendTemplateUidToId();
}

void ShapeImpl::takePlaceOf(ShapeImpl const& placeholder) {
    BaseAttribute<Dimension> const x = mX, y = mY, width = mWidth, height = mHeight;
    // A copy carries the source's node name; the placeholder's rule decides.
    PPTNodeImpl::setName(u16string());
    mReplaced = false;
    takeOverShape(placeholder, false);
    if (width.isSet()) mWidth = width;
    if (height.isSet()) mHeight = height;
    if (x.isSet()) mX = x;
    if (y.isSet()) mY = y;
}

void ShapeImpl::appendTemplateUidToId() {
    if (!mTemplateUid.empty()) setId(getId() + u":" + mTemplateUid);
}

Shape::Shape() : Element(new ShapeImpl()) {}

Shape::Shape(u16string const& name) : Element(new ShapeImpl(name)) {}

}  // namespace ppt
}  // namespace deckforge
