// The free text box that script code places on a slide; a template slide's
// own text shapes become text boxes too.
#pragma once

#include "nodes/base_text_box.h"

namespace deckforge {
namespace ppt {

class TextBoxImpl : public BaseTextBoxImpl {
public:
    TextBoxImpl();
    explicit TextBoxImpl(u16string const& name);
    TextBoxImpl(u16string const& name, u16string const& templateUid);
    TextBoxImpl(TextBoxImpl const& other);
    ~TextBoxImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;
};

class TextBox : public BaseTextBox {
public:
    TextBox();
    explicit TextBox(u16string const& name);
    explicit TextBox(PPTObjectImpl* impl) : BaseTextBox(impl) {}

    static boost::shared_ptr<TextBox> cast(PPTNodePtr const& node) { return castNode<TextBox>(node); }

    TextBoxImpl* textBoxImpl() const { return getImplAs<TextBoxImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
