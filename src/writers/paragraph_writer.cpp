#include "writers/paragraph_writer.h"

#include <algorithm>

#include <xercesc/dom/DOM.hpp>

#include "nodes/table_entry.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

namespace {
xml::Name const kPPr{u"a:pPr"};
xml::Name const kLvl{u"lvl"};
xml::Name const kAlgn{u"algn"};
// ST_TextIndentLevelType runs from 0 to 8.
unsigned int const kDeepestLevel = 8;
}  // namespace

ParagraphWriter::ParagraphWriter(ParagraphImpl const* paragraph_, PPTWriter* writer, xercesc::DOMNode* parent)
    : ElementWriter(paragraph_, writer, parent), paragraph(paragraph_) {}

void ParagraphWriter::write() {
    applyFormats(paragraph, getInheritableFormatTypes());
    // Numbers read best aligned on their last digit, as in any report; an
    // alignment set anywhere from the paragraph up to the table wins.
    PPTNodeImpl const* parentNode = paragraph->getParent();
    if (parentNode && parentNode->getNodeType() == NodeType::TableEntry &&
        static_cast<TableEntryImpl const*>(parentNode)->isFromNumber() &&
        !findFormat(paragraph, FormatTypeHAlign))
        setParagraphAttribute(kAlgn, u"r");

    xercesc::DOMElement* element = createElement(xml::kP);
    if (!element) return;
    BaseAttribute<unsigned int> const& level = paragraph->getLevel();
    if (level.isSet() && level.getValue() != 0)
        setParagraphAttribute(kLvl, plainInteger(std::min(level.getValue() - 1, kDeepestLevel)).c_str());
    if (paragraphProperties) element->appendChild(paragraphProperties);

    writeChildren(element);
    if (xercesc::DOMNode* parent = getParent()) parent->appendChild(element);
}

void ParagraphWriter::applyFormat(FormatImpl const* format) {
    if (format) format->applyToParagraph(*this);
}

std::vector<FormatType> const& ParagraphWriter::getInheritableFormatTypes() const {
    static std::vector<FormatType> const types{FormatTypeHAlign};
    return types;
}

xercesc::DOMElement* ParagraphWriter::ensureParagraphProperties() {
    if (!paragraphProperties) paragraphProperties = createElement(kPPr);
    return paragraphProperties;
}

void ParagraphWriter::setParagraphAttribute(XMLCh const* name, bool value) {
    setParagraphAttribute(name, value ? u"1" : u"0");
}

void ParagraphWriter::setParagraphAttribute(XMLCh const* name, XMLCh const* value) {
    if (xercesc::DOMElement* properties = ensureParagraphProperties()) properties->setAttribute(name, value);
}

}  // namespace ppt
}  // namespace deckforge
