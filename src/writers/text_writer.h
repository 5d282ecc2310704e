// Renders a run: an a:r with its a:rPr, made only if a format or a link asks
// for it, and its a:t. The run's formats and the nine character formats it
// inherits set attributes on a:rPr or append children to it.
#pragma once

#include <vector>

#include "nodes/text.h"
#include "writers/element_writer.h"

namespace deckforge {
namespace ppt {

class TextWriter : public ElementWriter {
public:
    TextWriter(TextImpl const* text, PPTWriter* writer, xercesc::DOMNode* parent);

    // A line break in the text (LF, CR, CR LF or vertical tab) ends the a:r
    // and writes an a:br, as PowerPoint does for a line break that stays in
    // the paragraph; the formats apply to every piece and to the breaks.
    // Characters that XML can't hold are dropped (see xmlSafeText).
    void write() override;
    void applyFormat(FormatImpl const* format) override;
    // Bold, Italic, FontColor, FontFamily, FontSize, Strike, Subscript,
    // Superscript, Underline.
    std::vector<FormatType> const& getInheritableFormatTypes() const override;
    // Called after the formats and before the run is built; a plain run has
    // no link.
    virtual void writeLink();

    // For the formats. a:rPr is created on first use and attached by write().
    xercesc::DOMElement* ensureRunProperties();
    // Always adds a new child of that name to a:rPr, after the children that
    // the schema puts before it or beside it and before those it puts after
    // it: formats run own first and inherited after, so a plain append could
    // put a fill behind a font. Like ensure, null when no slide is being
    // written.
    xercesc::DOMElement* addRunProperty(XMLCh const* name);
    // "1" or "0".
    void setRunAttribute(XMLCh const* name, bool value);
    void setRunAttribute(XMLCh const* name, XMLCh const* value);

    TextImpl const* getText() const { return text; }
    xercesc::DOMElement* getRunProperties() const { return runProperties; }

private:
    TextImpl const* text;
    xercesc::DOMElement* runProperties = nullptr;
};

}  // namespace ppt
}  // namespace deckforge
