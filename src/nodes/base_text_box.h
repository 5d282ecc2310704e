// A shape that holds paragraphs: the base of the free text box and of the
// placeholders. Its children are its paragraphs, in order.
#pragma once

#include "formats/element_style.h"
#include "nodes/list_item.h"
#include "nodes/paragraph.h"
#include "nodes/shape.h"

namespace deckforge {
namespace ppt {

class BaseTextBoxImpl : public ShapeImpl {
public:
    BaseTextBoxImpl();
    explicit BaseTextBoxImpl(u16string const& name);
    BaseTextBoxImpl(u16string const& name, u16string const& templateUid);
    BaseTextBoxImpl(BaseTextBoxImpl const& other);
    ~BaseTextBoxImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    // A box is a BaseTextBox whatever its concrete class.
    bool isA(NodeType type) const override;

    // Content. `add` appends after what the box holds, and at writing after
    // the template's paragraphs too. `replace` makes the new content the
    // box's only content and sets the replaced flag, so that the writer drops
    // the template's paragraphs as well.
    //
    // add(Paragraph) takes the object itself and refuses one that has a
    // parent (failedToAppendChild); replace(Paragraph) takes a clone of such
    // a paragraph instead. Placeholders guard these four.
    virtual Paragraph add(u16string const& text);
    virtual Paragraph add(Paragraph const& paragraph);
    virtual Paragraph replace(u16string const& text);
    virtual Paragraph replace(Paragraph const& paragraph);
    // Lists, with nested lists a level deeper (see list_item.h). Each
    // paragraph goes through the virtual add(Paragraph), so a placeholder's
    // guard runs for each; a replace empties the box first. Neither is
    // atomic: after an error the paragraphs added so far stay.
    void add(ListItems const& items);
    void replace(ListItems const& items);
    // Host values come through ShapeImpl::replace(HvContent): the host layer
    // turns a cell array into ListItems and calls the list forms above, so
    // there is one list routine. Until it does, the base form refuses.
    using ShapeImpl::replace;

protected:
    // The paragraphs of `items` appended in order; `level` is unset at the top.
    void appendListItems(BaseAttribute<unsigned int> const& level, ListItems const& items);
};

class BaseTextBox : public Shape, public CharacterStyle<BaseTextBox>, public BoxStyle<BaseTextBox> {
public:
    BaseTextBox();
    explicit BaseTextBox(u16string const& name);
    explicit BaseTextBox(PPTObjectImpl* impl) : Shape(impl) {}

    static boost::shared_ptr<BaseTextBox> cast(PPTNodePtr const& node) { return castNode<BaseTextBox>(node); }

    Paragraph add(u16string const& text) { return baseTextBoxImpl()->add(text); }
    Paragraph add(Paragraph const& paragraph) { return baseTextBoxImpl()->add(paragraph); }
    void add(ListItems const& items) { baseTextBoxImpl()->add(items); }
    Paragraph replace(u16string const& text) { return baseTextBoxImpl()->replace(text); }
    Paragraph replace(Paragraph const& paragraph) { return baseTextBoxImpl()->replace(paragraph); }
    void replace(ListItems const& items) { baseTextBoxImpl()->replace(items); }
    using Shape::replace;

    BaseTextBoxImpl* baseTextBoxImpl() const { return getImplAs<BaseTextBoxImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
