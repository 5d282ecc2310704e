// A shape that holds other shapes, as a template's group does. Script code
// can't fill one, and nothing renders it: its members stay in the slide's
// document as the template had them.
#pragma once

#include "nodes/shape.h"

namespace deckforge {
namespace ppt {

class GroupImpl : public ShapeImpl {
public:
    GroupImpl();
    explicit GroupImpl(u16string const& name);
    GroupImpl(u16string const& name, u16string const& templateUid);
    GroupImpl(GroupImpl const& other);
    ~GroupImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
};

class Group : public Shape {
public:
    Group();
    explicit Group(u16string const& name);
    explicit Group(PPTObjectImpl* impl) : Shape(impl) {}

    static boost::shared_ptr<Group> cast(PPTNodePtr const& node) { return castNode<Group>(node); }

    GroupImpl* groupImpl() const { return getImplAs<GroupImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
