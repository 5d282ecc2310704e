#include "nodes/base_text_box.h"

namespace deckforge {
namespace ppt {

BaseTextBoxImpl::BaseTextBoxImpl() {
    reportCreated();
}

BaseTextBoxImpl::BaseTextBoxImpl(u16string const& name) : ShapeImpl(name) {
    reportCreated();
}

BaseTextBoxImpl::BaseTextBoxImpl(u16string const& name, u16string const& templateUid)
    : ShapeImpl(name, templateUid) {
    reportCreated();
}

BaseTextBoxImpl::BaseTextBoxImpl(BaseTextBoxImpl const& other) : ShapeImpl(other) {
    reportCreated();
}

BaseTextBoxImpl::~BaseTextBoxImpl() {
    reportDestroyed();
}

char const* BaseTextBoxImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.BaseTextBox";
}

PPTNodePtr BaseTextBoxImpl::makeInterface() {
    return boost::make_shared<BaseTextBox>(this);
}

PPTNodePtr BaseTextBoxImpl::clone() const {
    return (new BaseTextBoxImpl(*this))->makeInterface();
}

NodeType BaseTextBoxImpl::getNodeType() const {
    return NodeType::BaseTextBox;
}

bool BaseTextBoxImpl::isA(NodeType type) const {
    return type == NodeType::BaseTextBox || type == getNodeType();
}

BaseTextBox::BaseTextBox() : Shape(new BaseTextBoxImpl()) {}

BaseTextBox::BaseTextBox(u16string const& name) : Shape(new BaseTextBoxImpl(name)) {}

}  // namespace ppt
}  // namespace deckforge
