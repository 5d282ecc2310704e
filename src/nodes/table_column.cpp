#include "nodes/table_column.h"

namespace deckforge {
namespace ppt {

ColSpecImpl::ColSpecImpl() {
    reportCreated();
}

ColSpecImpl::ColSpecImpl(ColSpecImpl const& other) : ElementImpl(other) {
    reportCreated();
}

ColSpecImpl::~ColSpecImpl() {
    reportDestroyed();
}

char const* ColSpecImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.ColSpec";
}

PPTNodePtr ColSpecImpl::makeInterface() {
    return boost::make_shared<ColSpec>(this);
}

PPTNodePtr ColSpecImpl::clone() const {
    return (new ColSpecImpl(*this))->makeInterface();
}

NodeType ColSpecImpl::getNodeType() const {
    return NodeType::ColSpec;
}

ColSpec::ColSpec() : Element(new ColSpecImpl()) {}

ColSpec::ColSpec(u16string const& width) : ColSpec() {
    setWidth(width);
}

}  // namespace ppt
}  // namespace deckforge
