// Renders a paragraph: an a:p with an a:pPr, made only if a format or a
// level asks for it, followed by the runs in order.
#pragma once

#include <vector>

#include "nodes/paragraph.h"
#include "writers/element_writer.h"

namespace deckforge {
namespace ppt {

class ParagraphWriter : public ElementWriter {
public:
    ParagraphWriter(ParagraphImpl const* paragraph, PPTWriter* writer, xercesc::DOMNode* parent);

    // Level n is written as lvl n-1, since script levels count from 1; level
    // 0 or none writes nothing, and a level past 9 is written as the deepest
    // that DrawingML has (lvl 8) rather than as a value readers refuse.
    void write() override;
    void applyFormat(FormatImpl const* format) override;
    // HAlign.
    std::vector<FormatType> const& getInheritableFormatTypes() const override;

    // For the formats. a:pPr is created on first use and attached by write().
    xercesc::DOMElement* ensureParagraphProperties();
    void setParagraphAttribute(XMLCh const* name, bool value);
    void setParagraphAttribute(XMLCh const* name, XMLCh const* value);

    ParagraphImpl const* getParagraph() const { return paragraph; }
    xercesc::DOMElement* getParagraphProperties() const { return paragraphProperties; }

private:
    ParagraphImpl const* paragraph;
    xercesc::DOMElement* paragraphProperties = nullptr;
};

}  // namespace ppt
}  // namespace deckforge
