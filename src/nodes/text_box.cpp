#include "nodes/text_box.h"

#include "writers/text_box_writer.h"

namespace deckforge {
namespace ppt {

TextBoxImpl::TextBoxImpl() {
    reportCreated();
}

TextBoxImpl::TextBoxImpl(u16string const& name) : BaseTextBoxImpl(name) {
    reportCreated();
}

TextBoxImpl::TextBoxImpl(u16string const& name, u16string const& templateUid)
    : BaseTextBoxImpl(name, templateUid) {
    reportCreated();
}

TextBoxImpl::TextBoxImpl(TextBoxImpl const& other) : BaseTextBoxImpl(other) {
    reportCreated();
}

TextBoxImpl::~TextBoxImpl() {
    reportDestroyed();
}

char const* TextBoxImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.TextBox";
}

void TextBoxImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    TextBoxWriter(this, writer, parent).write();
}

PPTNodePtr TextBoxImpl::makeInterface() {
    return boost::make_shared<TextBox>(this);
}

PPTNodePtr TextBoxImpl::clone() const {
    return (new TextBoxImpl(*this))->makeInterface();
}

NodeType TextBoxImpl::getNodeType() const {
    return NodeType::TextBox;
}

bool TextBoxImpl::isA(NodeType type) const {
    return type == NodeType::TextBox || BaseTextBoxImpl::isA(type);
}

TextBox::TextBox() : BaseTextBox(new TextBoxImpl()) {}

TextBox::TextBox(u16string const& name) : BaseTextBox(new TextBoxImpl(name)) {}

}  // namespace ppt
}  // namespace deckforge
