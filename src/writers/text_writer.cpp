#include "writers/text_writer.h"

#include <xercesc/dom/DOM.hpp>

#include "writers/xml_names.h"
#include "writers/xml_text.h"

namespace deckforge {
namespace ppt {

namespace {
xml::Name const kR{u"a:r"};
xml::Name const kRPr{u"a:rPr"};
xml::Name const kT{u"a:t"};
xml::Name const kBr{u"a:br"};
xml::Name const kHlinkClick{u"a:hlinkClick"};

// The position of a child in the sequence of CT_TextCharacterProperties;
// a name the table doesn't know goes last.
int runPropertyRank(XMLCh const* name) {
    static std::vector<std::pair<xml::Name, int>> const ranks{
        {xml::Name(u"a:ln"), 0},          {xml::Name(u"a:noFill"), 1},
        {xml::Name(u"a:solidFill"), 1},   {xml::Name(u"a:gradFill"), 1},
        {xml::Name(u"a:blipFill"), 1},    {xml::Name(u"a:pattFill"), 1},
        {xml::Name(u"a:grpFill"), 1},     {xml::Name(u"a:effectLst"), 2},
        {xml::Name(u"a:effectDag"), 2},   {xml::Name(u"a:highlight"), 3},
        {xml::Name(u"a:uLnTx"), 4},       {xml::Name(u"a:uLn"), 4},
        {xml::Name(u"a:uFillTx"), 5},     {xml::Name(u"a:uFill"), 5},
        {xml::Name(u"a:latin"), 6},       {xml::Name(u"a:ea"), 7},
        {xml::Name(u"a:cs"), 8},          {xml::Name(u"a:sym"), 9},
        {xml::Name(u"a:hlinkClick"), 10}, {xml::Name(u"a:hlinkMouseOver"), 11},
        {xml::Name(u"a:rtl"), 12},        {xml::Name(u"a:extLst"), 13}};
    for (auto const& entry : ranks)
        if (xercesc::XMLString::equals(entry.first, name)) return entry.second;
    return 14;
}
}  // namespace

TextWriter::TextWriter(TextImpl const* text_, PPTWriter* writer, xercesc::DOMNode* parent)
    : ElementWriter(text_, writer, parent), text(text_) {}

void TextWriter::write() {
    applyFormats(text, getInheritableFormatTypes());
    writeLink();

    xercesc::DOMNode* const parent = getParent();
    if (!parent) return;

    // The a:rPr serves the first piece; the others get copies, so that every
    // piece of a broken run looks the same. A break takes a copy too, for
    // the height of its line, but not the link: readers such as LibreOffice
    // fold a linked break into the link's text and lose the line.
    bool propertiesUsed = false;
    auto properties = [&]() -> xercesc::DOMElement* {
        if (!runProperties) return nullptr;
        if (!propertiesUsed) {
            propertiesUsed = true;
            return runProperties;
        }
        return static_cast<xercesc::DOMElement*>(runProperties->cloneNode(true));
    };
    auto breakProperties = [&]() -> xercesc::DOMElement* {
        if (!runProperties) return nullptr;
        auto* copy = static_cast<xercesc::DOMElement*>(runProperties->cloneNode(true));
        removeChildElements(copy, kHlinkClick);
        return copy;
    };

    std::vector<u16string> const lines = runLines(text->getTextContent());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            xercesc::DOMElement* lineBreak = createElement(kBr);
            if (!lineBreak) return;
            if (auto* rPr = breakProperties()) lineBreak->appendChild(rPr);
            parent->appendChild(lineBreak);
        }
        // An empty piece beside a break would be an empty run that nobody
        // asked for; a run that is empty as a whole still writes its a:r.
        if (lines[i].empty() && lines.size() > 1) continue;
        xercesc::DOMElement* run = createElement(kR);
        xercesc::DOMElement* content = createElement(kT);
        if (!run || !content) return;
        if (auto* rPr = properties()) run->appendChild(rPr);
        content->setTextContent(lines[i].c_str());
        run->appendChild(content);
        parent->appendChild(run);
    }
}

void TextWriter::applyFormat(FormatImpl const* format) {
    if (format) format->applyToText(*this);
}

std::vector<FormatType> const& TextWriter::getInheritableFormatTypes() const {
    static std::vector<FormatType> const types{
        FormatTypeBold,       FormatTypeItalic,      FormatTypeFontColor,
        FormatTypeFontFamily, FormatTypeFontSize,    FormatTypeStrike,
        FormatTypeSubscript,  FormatTypeSuperscript, FormatTypeUnderline};
    return types;
}

void TextWriter::writeLink() {}

xercesc::DOMElement* TextWriter::ensureRunProperties() {
    if (!runProperties) runProperties = createElement(kRPr);
    return runProperties;
}

xercesc::DOMElement* TextWriter::addRunProperty(XMLCh const* name) {
    xercesc::DOMElement* properties = ensureRunProperties();
    if (!properties) return nullptr;
    xercesc::DOMElement* element = createElement(name);
    int const rank = runPropertyRank(name);
    xercesc::DOMElement* before = properties->getFirstElementChild();
    while (before && runPropertyRank(before->getTagName()) <= rank) before = before->getNextElementSibling();
    properties->insertBefore(element, before);
    return element;
}

void TextWriter::setRunAttribute(XMLCh const* name, bool value) {
    setRunAttribute(name, value ? u"1" : u"0");
}

void TextWriter::setRunAttribute(XMLCh const* name, XMLCh const* value) {
    if (xercesc::DOMElement* properties = ensureRunProperties()) properties->setAttribute(name, value);
}

}  // namespace ppt
}  // namespace deckforge
