#include "engine/slide.h"

#include "engine/named_content.h"
#include "engine/placeholder_roles.h"
#include "nodes/body_placeholder.h"
#include "nodes/content_placeholder.h"
#include "nodes/group.h"
#include "nodes/picture.h"
#include "nodes/picture_placeholder.h"
#include "nodes/table.h"
#include "nodes/chart_placeholder.h"
#include "nodes/table_placeholder.h"
#include "nodes/text_box.h"
#include "nodes/text_box_placeholder.h"
#include "template/presentation_model.h"
#include "writers/slide_writer.h"

namespace deckforge {
namespace ppt {

namespace {

// The node for one shape record, or null for a kind that no node stands for.
// The record's element stays in the slide's document either way.
ShapeImpl* makeShapeNode(TemplateShape const& shape) {
    u16string const name = shape.name.value_or(u16string());
    switch (shape.nodeType) {
        case ShapeKind::BodyPlaceholder:
            return new BodyPlaceholderImpl(name, shape.uid, shape.placeholderType);
        case ShapeKind::ContentPlaceholder:
            return new ContentPlaceholderImpl(name, shape.uid, shape.placeholderType);
        case ShapeKind::Group:
            return new GroupImpl(name, shape.uid);
        case ShapeKind::Picture:
            return new PictureImpl(name, shape.uid);
        case ShapeKind::PicturePlaceholder:
            return new PicturePlaceholderImpl(name, shape.uid, shape.placeholderType);
        case ShapeKind::Table:
            return new TableImpl(name, shape.uid);
        case ShapeKind::TablePlaceholder:
            return new TablePlaceholderImpl(name, shape.uid, shape.placeholderType);
        case ShapeKind::ChartPlaceholder:
            return new ChartPlaceholderImpl(name, shape.uid, shape.placeholderType);
        case ShapeKind::TextBox:
            return new TextBoxImpl(name, shape.uid);
        case ShapeKind::TextBoxPlaceholder:
            return new TextBoxPlaceholderImpl(name, shape.uid, shape.placeholderType);
        case ShapeKind::None:
            break;
    }
    return nullptr;
}

}  // namespace

SlideImpl::SlideImpl() {
    reportCreated();
}

SlideImpl::SlideImpl(SlideImpl const& other)
    : ElementImpl(other),
      mMasterName(other.mMasterName),
      mLayoutName(other.mLayoutName),
      mTemplateSlide(other.mTemplateSlide) {
    reportCreated();
}

SlideImpl::~SlideImpl() {
    reportDestroyed();
}

char const* SlideImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Slide";
}

void SlideImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    // Writers change the slide's record, never the node; the node's own
    // const-ness is the tree's promise to its visitors.
    SlideWriter slideWriter(const_cast<SlideImpl*>(this), writer, parent);
    slideWriter.write();
}

PPTNodePtr SlideImpl::makeInterface() {
    return boost::make_shared<Slide>(this);
}

PPTNodePtr SlideImpl::clone() const {
    return (new SlideImpl(*this))->makeInterface();
}

NodeType SlideImpl::getNodeType() const {
    return NodeType::Slide;
}

void SlideImpl::setName(u16string const& name) {
    PPTNodeImpl::setName(name);
}

boost::shared_ptr<Slide> SlideImpl::createFromLayout(PresentationModel const& model,
                                                     boost::shared_ptr<TemplateLayout> const& layout) {
    if (!layout || !layout->shapes) return {};
    boost::shared_ptr<TemplateSlide> record = model.createSlideRecord(layout);
    if (!record) return {};

    auto* impl = new SlideImpl();
    auto slide = boost::make_shared<Slide>(impl);
    impl->mLayoutName = layout->name;
    if (layout->master) impl->mMasterName = layout->master->name;
    impl->mTemplateSlide = record;
    impl->makeChildNodes();
    return slide;
}

void SlideImpl::makeChildNodes() {
    if (mTemplateSlide && mTemplateSlide->shapes) appendShapeNodes(*this, *mTemplateSlide->shapes);
}

void SlideImpl::appendShapeNodes(PPTNodeImpl& parent, TemplateShapeList const& shapes) {
    for (auto const& shape : shapes) {
        if (!shape) continue;
        ShapeImpl* impl = makeShapeNode(*shape);
        if (!impl) continue;
        // The handle owns the new object from here on, also if the append fails.
        PPTNodePtr node = impl->makeInterface();
        parent.appendChild(node);
        impl->setTemplateShape(shape);
        if (shape->nodeType == ShapeKind::Group && shape->children) appendShapeNodes(*impl, *shape->children);
    }
}

PPTNodeList SlideImpl::find(u16string const& name) {
    PPTNodeList result;
    findNodes(name, makeInterface(), result);
    if (result.empty()) findRole(name, result);
    return result;
}

void SlideImpl::findRole(u16string const& name, PPTNodeList& result) {
    u16string role;
    std::size_t ordinal = 0;
    if (parseRoleName(name, role, ordinal)) findByRole(*this, role, ordinal, result);
}

void SlideImpl::add(u16string const& name, u16string const& text) {
    addTextToEach(find(name), text);
}

void SlideImpl::add(u16string const& name, Paragraph const& paragraph) {
    addParagraphToEach(find(name), paragraph);
}

void SlideImpl::replace(u16string const& name, u16string const& text) {
    replaceTextInEach(find(name), text);
}

void SlideImpl::replace(u16string const& name, Paragraph const& paragraph) {
    replaceParagraphInEach(find(name), paragraph);
}

void SlideImpl::replace(u16string const& name, boost::shared_ptr<HvContent> const& content) {
    replaceContentInEach(find(name), content);
}

PPTNodePtr SlideImpl::putInPlaceOf(PPTNodeImpl* old, PPTNodePtr const& successor) {
    replaceChild(old ? old->makeInterface() : PPTNodePtr(), successor);
    return successor;
}

Slide::Slide() : Element(new SlideImpl()) {}

Picture Slide::add(Picture const& picture) {
    slideImpl()->appendChild(picture.makeInterface());
    return Picture(picture.getImpl());
}

Table Slide::add(Table const& table) {
    slideImpl()->appendChild(table.makeInterface());
    return Table(table.getImpl());
}

Chart Slide::add(Chart const& chart) {
    slideImpl()->appendChild(chart.makeInterface());
    return Chart(chart.getImpl());
}

TextBox Slide::add(TextBox const& textBox) {
    slideImpl()->appendChild(textBox.makeInterface());
    return TextBox(textBox.getImpl());
}

}  // namespace ppt
}  // namespace deckforge
