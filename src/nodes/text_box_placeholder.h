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

    // Text goes in only while the placeholder stands in a slide or a group.
    Paragraph add(u16string const& text) override;
    Paragraph add(Paragraph const& paragraph) override;
    Paragraph replace(u16string const& text) override;
    Paragraph replace(Paragraph const& paragraph) override;
    using BaseTextBoxImpl::add;
    using BaseTextBoxImpl::replace;

    // The parent, or placeholderWasReplacedByObject: a placeholder without a
    // parent was replaced by an object, or was never on a slide.
    virtual PPTNodeImpl* replaceGuard() const;
    virtual PPTNodeImpl* addGuard() const;

    u16string const& getPlaceholderType() const { return mPlaceholderType; }

protected:
    // How a Picture or Table given to a placeholder takes its place: a copy
    // of `given` takes over this placeholder's template tie, Name and
    // geometry (its own set geometry wins), goes in at the placeholder's
    // index among the slide's children, and leaves the placeholder without a
    // parent, so that its guards refuse any further change. `given` is only
    // read. The result is the copy; it is `given` itself, and nothing
    // changes, when the placeholder doesn't stand directly on a slide (a
    // member of a group). placeholderWasReplacedByObject once replaced.
    PPTNodePtr yieldPlaceTo(PPTNodePtr const& given);

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

    u16string const& getPlaceholderType() const { return textBoxPlaceholderImpl()->getPlaceholderType(); }

    TextBoxPlaceholderImpl* textBoxPlaceholderImpl() const { return getImplAs<TextBoxPlaceholderImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
