// A shape that holds paragraphs: the base of the free text box and of the
// placeholders. Its children are its paragraphs, in order.
#pragma once

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
};

class BaseTextBox : public Shape {
public:
    BaseTextBox();
    explicit BaseTextBox(u16string const& name);
    explicit BaseTextBox(PPTObjectImpl* impl) : Shape(impl) {}

    static boost::shared_ptr<BaseTextBox> cast(PPTNodePtr const& node) { return castNode<BaseTextBox>(node); }

    BaseTextBoxImpl* baseTextBoxImpl() const { return getImplAs<BaseTextBoxImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
