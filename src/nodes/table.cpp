#include "nodes/table.h"

namespace deckforge {
namespace ppt {

TableImpl::TableImpl() {
    reportCreated();
}

TableImpl::TableImpl(u16string const& name) : ShapeImpl(name) {
    reportCreated();
}

TableImpl::TableImpl(u16string const& name, u16string const& templateUid) : ShapeImpl(name, templateUid) {
    reportCreated();
}

TableImpl::TableImpl(std::uint64_t nCols) : mNCols(nCols) {
    reportCreated();
}

// The column specifications are shared, not copied.
TableImpl::TableImpl(TableImpl const& other)
    : ShapeImpl(other), mNCols(other.mNCols), mStyleName(other.mStyleName), mColSpecs(other.mColSpecs) {
    reportCreated();
}

TableImpl::~TableImpl() {
    reportDestroyed();
}

char const* TableImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Table";
}

PPTNodePtr TableImpl::makeInterface() {
    return boost::make_shared<Table>(this);
}

PPTNodePtr TableImpl::clone() const {
    return (new TableImpl(*this))->makeInterface();
}

NodeType TableImpl::getNodeType() const {
    return NodeType::Table;
}

Table::Table() : Shape(new TableImpl()) {}

Table::Table(std::uint64_t nCols) : Shape(new TableImpl(nCols)) {}

}  // namespace ppt
}  // namespace deckforge
