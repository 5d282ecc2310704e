#include "nodes/group.h"

namespace deckforge {
namespace ppt {

GroupImpl::GroupImpl() {
    reportCreated();
}

GroupImpl::GroupImpl(u16string const& name) : ShapeImpl(name) {
    reportCreated();
}

GroupImpl::GroupImpl(u16string const& name, u16string const& templateUid) : ShapeImpl(name, templateUid) {
    reportCreated();
}

GroupImpl::GroupImpl(GroupImpl const& other) : ShapeImpl(other) {
    reportCreated();
}

GroupImpl::~GroupImpl() {
    reportDestroyed();
}

char const* GroupImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Group";
}

PPTNodePtr GroupImpl::makeInterface() {
    return boost::make_shared<Group>(this);
}

PPTNodePtr GroupImpl::clone() const {
    return (new GroupImpl(*this))->makeInterface();
}

NodeType GroupImpl::getNodeType() const {
    return NodeType::Group;
}

Group::Group() : Shape(new GroupImpl()) {}

Group::Group(u16string const& name) : Shape(new GroupImpl(name)) {}

}  // namespace ppt
}  // namespace deckforge
