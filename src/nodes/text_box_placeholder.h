// A text box that a slide layout provides. The slide makes one for each
// placeholder of the layout; script code fills it with text, or, for the
// subclasses that allow it, lets a picture or a table take its place.
#pragma once

#include "nodes/base_text_box.h"

namespace deckforge {
namespace ppt {

class TextBoxPlaceholderImpl : public BaseTextBoxImpl {
public:
    TextBoxPlaceholderImpl();
    explicit TextBoxPlaceholderImpl(u16string const& name);
    TextBoxPlaceholderImpl(u16string const& name, u16string const& templateUid);
    // The form that the slide uses.
    TextBoxPlaceholderImpl(u16string const& name, u16string const& templateUid,
                           u16string const& placeholderType);
    TextBoxPlaceholderImpl(TextBoxPlaceholderImpl const& other);
    ~TextBoxPlaceholderImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    // Every placeholder class renders as a text box until an object takes
    // its place.
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;

    // The parent, or placeholderWasReplacedByObject: a placeholder without a
    // parent was replaced by an object, or was never on a slide.
    virtual PPTNodeImpl* replaceGuard() const;
    virtual PPTNodeImpl* addGuard() const;

    u16string const& getPlaceholderType() const { return mPlaceholderType; }

private:
    u16string mPlaceholderType;
};

class TextBoxPlaceholder : public BaseTextBox {
public:
    TextBoxPlaceholder();
    explicit TextBoxPlaceholder(PPTObjectImpl* impl) : BaseTextBox(impl) {}

    static boost::shared_ptr<TextBoxPlaceholder> cast(PPTNodePtr const& node) {
        return castNode<TextBoxPlaceholder>(node);
    }

    TextBoxPlaceholderImpl* textBoxPlaceholderImpl() const { return getImplAs<TextBoxPlaceholderImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
