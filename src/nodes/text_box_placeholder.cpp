#include "nodes/text_box_placeholder.h"

#include "engine/slide.h"
#include "platform/msg_ids.h"
#include "writers/text_box_placeholder_writer.h"

namespace deckforge {
namespace ppt {

TextBoxPlaceholderImpl::TextBoxPlaceholderImpl() {
    reportCreated();
}

TextBoxPlaceholderImpl::TextBoxPlaceholderImpl(u16string const& name) : BaseTextBoxImpl(name) {
    reportCreated();
}

TextBoxPlaceholderImpl::TextBoxPlaceholderImpl(u16string const& name, u16string const& templateUid)
    : BaseTextBoxImpl(name, templateUid) {
    reportCreated();
}

TextBoxPlaceholderImpl::TextBoxPlaceholderImpl(u16string const& name, u16string const& templateUid,
                                               u16string const& placeholderType)
    : BaseTextBoxImpl(name, templateUid), mPlaceholderType(placeholderType) {
    reportCreated();
}

TextBoxPlaceholderImpl::TextBoxPlaceholderImpl(TextBoxPlaceholderImpl const& other)
    : BaseTextBoxImpl(other), mPlaceholderType(other.mPlaceholderType) {
    reportCreated();
}

TextBoxPlaceholderImpl::~TextBoxPlaceholderImpl() {
    reportDestroyed();
}

char const* TextBoxPlaceholderImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.TextBoxPlaceholder";
}

void TextBoxPlaceholderImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    TextBoxPlaceholderWriter(this, writer, parent).write();
}

PPTNodePtr TextBoxPlaceholderImpl::makeInterface() {
    return boost::make_shared<TextBoxPlaceholder>(this);
}

PPTNodePtr TextBoxPlaceholderImpl::clone() const {
    return (new TextBoxPlaceholderImpl(*this))->makeInterface();
}

NodeType TextBoxPlaceholderImpl::getNodeType() const {
    return NodeType::TextBoxPlaceholder;
}

bool TextBoxPlaceholderImpl::isA(NodeType type) const {
    return type == NodeType::TextBoxPlaceholder || BaseTextBoxImpl::isA(type);
}

Paragraph TextBoxPlaceholderImpl::add(u16string const& text) {
    addGuard();
    return BaseTextBoxImpl::add(text);
}

Paragraph TextBoxPlaceholderImpl::add(Paragraph const& paragraph) {
    addGuard();
    return BaseTextBoxImpl::add(paragraph);
}

Paragraph TextBoxPlaceholderImpl::replace(u16string const& text) {
    replaceGuard();
    return BaseTextBoxImpl::replace(text);
}

Paragraph TextBoxPlaceholderImpl::replace(Paragraph const& paragraph) {
    replaceGuard();
    return BaseTextBoxImpl::replace(paragraph);
}

PPTNodePtr TextBoxPlaceholderImpl::yieldPlaceTo(PPTNodePtr const& given) {
    auto* slide = dynamic_cast<SlideImpl*>(replaceGuard());
    if (!slide || !given) return given;
    // Only a direct child of the slide has a place there to give up.
    bool found = false;
    for (auto const& child : slide->getChildren()) {
        if (child && child->getImpl() == this) {
            found = true;
            break;
        }
    }
    if (!found) return given;

    PPTNodePtr const successor = given->clone();
    auto* shape = dynamic_cast<ShapeImpl*>(successor->nodeImpl());
    if (!shape) return given;
    shape->takePlaceOf(*this);
    return slide->putInPlaceOf(this, successor);
}

PPTNodeImpl* TextBoxPlaceholderImpl::replaceGuard() const {
    if (!getParent()) deckforge::raise<ppt_error::placeholderWasReplacedByObject>();
    return getParent();
}

PPTNodeImpl* TextBoxPlaceholderImpl::addGuard() const {
    if (!getParent()) deckforge::raise<ppt_error::placeholderWasReplacedByObject>();
    return getParent();
}

TextBoxPlaceholder::TextBoxPlaceholder() : BaseTextBox(new TextBoxPlaceholderImpl()) {}

}  // namespace ppt
}  // namespace deckforge
