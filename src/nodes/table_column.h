// The description of one table column. It stands beside the tree: a table
// holds its ColSpecs in a list, shared with its clones, and they have no
// parent. Everything a ColSpec says is in its format list, its width too
// (a ColWidth); the entries of the column inherit those formats after their
// own and their row's.
#pragma once

#include "engine/ppt_node.h"
#include "formats/element_style.h"

namespace deckforge {
namespace ppt {

class ColSpecImpl : public ElementImpl {
public:
    ColSpecImpl();
    ColSpecImpl(ColSpecImpl const& other);
    ~ColSpecImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
};

class ColSpec : public Element,
                public CharacterStyle<ColSpec>,
                public ParagraphStyle<ColSpec>,
                public BoxStyle<ColSpec> {
public:
    ColSpec();
    // With a ColWidth of that length; a text that is no length raises the
    // format's error.
    explicit ColSpec(u16string const& width);
    explicit ColSpec(PPTObjectImpl* impl) : Element(impl) {}

    static boost::shared_ptr<ColSpec> cast(PPTNodePtr const& node) { return castNode<ColSpec>(node); }

    boost::shared_ptr<ColWidth> getWidth() const {
        return ElementStyle::get<ColWidth>(*elementImpl(), FormatTypeColWidth);
    }
    void setWidth(u16string const& width) { ElementStyle::set<ColWidth>(*elementImpl(), width); }
    void unsetWidth() { elementImpl()->unsetFormat(FormatTypeColWidth); }

    ColSpecImpl* colSpecImpl() const { return getImplAs<ColSpecImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
