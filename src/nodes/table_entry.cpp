#include "nodes/table_entry.h"

#include "platform/msg_ids.h"
#include "writers/table_entry_writer.h"

namespace deckforge {
namespace ppt {

TableEntryImpl::TableEntryImpl() {
    reportCreated();
}

TableEntryImpl::TableEntryImpl(TableEntryImpl const& other)
    : ElementImpl(other), mColSpan(other.mColSpan), mFromNumber(other.mFromNumber) {
    reportCreated();
}

TableEntryImpl::~TableEntryImpl() {
    reportDestroyed();
}

char const* TableEntryImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.TableEntry";
}

void TableEntryImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    TableEntryWriter(this, writer, parent).write();
}

PPTNodePtr TableEntryImpl::makeInterface() {
    return boost::make_shared<TableEntry>(this);
}

PPTNodePtr TableEntryImpl::clone() const {
    return (new TableEntryImpl(*this))->makeInterface();
}

NodeType TableEntryImpl::getNodeType() const {
    return NodeType::TableEntry;
}

void TableEntryImpl::setColSpan(std::int32_t span) {
    if (span < 1) deckforge::raise<ppt_error::invalidPropertyValue>(num2str(static_cast<int>(span)));
    mColSpan = span;
}

TableEntry::TableEntry() : Element(new TableEntryImpl()) {}

TableEntry::TableEntry(u16string const& text) : TableEntry() {
    append(text);
}

TableEntry::TableEntry(Paragraph const& paragraph) : TableEntry() {
    append(paragraph);
}

Paragraph TableEntry::append(Paragraph const& paragraph) {
    tableEntryImpl()->appendChild(paragraph.makeInterface());
    return paragraph;
}

Paragraph TableEntry::append(u16string const& text) {
    return append(Paragraph(text));
}

}  // namespace ppt
}  // namespace deckforge
