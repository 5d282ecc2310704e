#include "writers/table_entry_writer.h"

#include <xercesc/dom/DOM.hpp>

#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

namespace {
xml::Name const kTc{u"a:tc"};
xml::Name const kTcPr{u"a:tcPr"};
xml::Name const kGridSpan{u"gridSpan"};
xml::Name const kHMerge{u"hMerge"};

xercesc::DOMElement* appendNew(xercesc::DOMElement* parent, XMLCh const* name) {
    return static_cast<xercesc::DOMElement*>(
        parent->appendChild(parent->getOwnerDocument()->createElement(name)));
}

// An a:tc with an a:txBody holding an a:bodyPr; the caller fills the body.
xercesc::DOMElement* newCell(ElementWriter const& writer, xercesc::DOMElement*& textBody) {
    xercesc::DOMElement* tc = writer.createElement(kTc);
    if (!tc) return nullptr;
    textBody = appendNew(tc, xml::kDrawingTxBody);
    appendNew(textBody, xml::kBodyPr);
    return tc;
}
}  // namespace

void TableEntryWriter::write() {
    // The current column is this entry's, so the column's formats are found.
    applyFormats(entry, getInheritableFormatTypes());

    xercesc::DOMElement* textBody = nullptr;
    xercesc::DOMElement* tc = newCell(*this, textBody);
    if (!tc) return;
    std::int32_t const span = entry->getColSpan();
    if (span >= 2) tc->setAttribute(kGridSpan, plainInteger(static_cast<int>(span)).c_str());
    writeChildren(textBody);
    addEmptyParagraph(tc);
    if (cellProperties) tc->appendChild(cellProperties);

    auto const& context = getWriter()->getTableContext();
    xercesc::DOMNode* parent = getParent();
    if (parent) parent->appendChild(tc);
    context->nextColumn();

    // The columns the span covers get cells of their own, merged into this one.
    for (std::int32_t i = 1; i < span; ++i) {
        xercesc::DOMElement* filler = newCell(*this, textBody);
        filler->setAttribute(kHMerge, u"1");
        appendNew(textBody, xml::kLstStyle);
        appendNew(appendNew(textBody, xml::kP), xml::kEndParaRPr);
        if (parent) parent->appendChild(filler);
        context->nextColumn();
    }
}

void TableEntryWriter::applyFormat(FormatImpl const* format) {
    if (format) format->applyToTableEntry(*this);
}

std::vector<FormatType> const& TableEntryWriter::getInheritableFormatTypes() const {
    static std::vector<FormatType> const types{FormatTypeBackgroundColor, FormatTypeVAlign};
    return types;
}

xercesc::DOMElement* TableEntryWriter::ensureCellProperties() {
    if (!cellProperties) cellProperties = createElement(kTcPr);
    return cellProperties;
}

xercesc::DOMElement* TableEntryWriter::addCellProperty(XMLCh const* name) {
    xercesc::DOMElement* properties = ensureCellProperties();
    return properties ? appendNew(properties, name) : nullptr;
}

void TableEntryWriter::setCellAttribute(XMLCh const* name, bool value) {
    setCellAttribute(name, value ? u"1" : u"0");
}

void TableEntryWriter::setCellAttribute(XMLCh const* name, XMLCh const* value) {
    if (xercesc::DOMElement* properties = ensureCellProperties()) properties->setAttribute(name, value);
}

void TableEntryWriter::widenColumn(double emus) {
    getWriter()->getTableContext()->widenCurrentColumn(emus);
}

}  // namespace ppt
}  // namespace deckforge
