// A run of characters: the leaf of the text side of the tree. Its content is
// a string or a number; a number keeps its value and is shown in its printed
// form. A run holds no children.
#pragma once

#include "engine/ppt_node.h"
#include "formats/element_style.h"

namespace deckforge {
namespace ppt {

class TextImpl : public ElementImpl {
public:
    TextImpl();
    explicit TextImpl(u16string const& text);
    explicit TextImpl(double value);
    TextImpl(TextImpl const& other);
    ~TextImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;

    // Always valid: for a number, its printed form.
    u16string const& getTextContent() const { return mTextContent; }
    // The run becomes text; the last number is kept but no longer shown.
    void setTextContent(u16string const& text);
    // The number last set while the run is a number, else the text read as a
    // number (NaN when it isn't one), so it never reports a stale value.
    double getNumContent() const;
    void setNumContent(double value);
    bool isNumContent() const { return mIsNum; }

private:
    u16string mTextContent;
    double mNumContent = 0.0;
    bool mIsNum = false;
};

class Text : public Element, public CharacterStyle<Text> {
public:
    Text();
    explicit Text(u16string const& text);
    explicit Text(double value);
    explicit Text(PPTObjectImpl* impl) : Element(impl) {}

    // Empty if the node is no Text (an ExternalLink is one).
    static boost::shared_ptr<Text> cast(PPTNodePtr const& node) { return castNode<Text>(node); }

    u16string const& getTextContent() const { return textImpl()->getTextContent(); }
    void setTextContent(u16string const& text) { textImpl()->setTextContent(text); }
    double getNumContent() const { return textImpl()->getNumContent(); }
    void setNumContent(double value) { textImpl()->setNumContent(value); }
    bool isNumContent() const { return textImpl()->isNumContent(); }

    TextImpl* textImpl() const { return getImplAs<TextImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
