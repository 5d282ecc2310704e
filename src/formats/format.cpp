#include "formats/format.h"

#include <boost/make_shared.hpp>

namespace deckforge {
namespace ppt {

char const* FormatImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Format";
}

boost::shared_ptr<Format> FormatImpl::makeInterface() {
    return boost::make_shared<Format>(this);
}

FormatType FormatImpl::getFormatType() const {
    return FormatTypeNone;
}

void FormatImpl::applyToBaseTextBox(BaseTextBoxWriter&) const {}
void FormatImpl::applyToParagraph(ParagraphWriter&) const {}
void FormatImpl::applyToTable(TableWriter&) const {}
void FormatImpl::applyToTableEntry(TableEntryWriter&) const {}
void FormatImpl::applyToText(TextWriter&) const {}

boost::shared_ptr<Format> FormatImpl::clone() const {
    return {};
}

Format::Format() : PPTObject(new FormatImpl()) {}

}  // namespace ppt
}  // namespace deckforge
