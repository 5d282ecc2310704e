// Renders a box of paragraphs: a placeholder or template text shape changed
// in place, or a new text box appended to the slide. The box's formats reach
// the shape and body properties through the helpers below; the paragraphs
// are written by their own writers into the p:txBody.
#pragma once

#include <vector>

#include "nodes/base_text_box.h"
#include "writers/shape_writer.h"

namespace deckforge {
namespace ppt {

class BaseTextBoxWriter : public ShapeWriter {
public:
    BaseTextBoxWriter(BaseTextBoxImpl const* box, PPTWriter* writer, xercesc::DOMNode* parent);

    void write() override;
    void applyFormat(FormatImpl const* format) override;
    std::vector<FormatType> const& getInheritableFormatTypes() const override;

    // For the formats. Elements are created on first use and attached by
    // write(): the shape properties exist in every shape that has a body.
    xercesc::DOMElement* ensureShapeProperties();
    // A new element of that name in the shape properties, in place of the
    // first one of that name or else at the end.
    xercesc::DOMElement* replaceShapeProperty(XMLCh const* name);
    // A new fill element of that name (a:solidFill, a:noFill, ...) in the
    // shape properties, in place of any fill they have, so that the shape
    // keeps a single fill, placed after the transform and geometry and before
    // the outline and effects as the schema orders them.
    xercesc::DOMElement* replaceShapeFill(XMLCh const* name);
    xercesc::DOMElement* ensureBodyProperties();
    void setBodyAttribute(XMLCh const* name, bool value);
    void setBodyAttribute(XMLCh const* name, XMLCh const* value);

    BaseTextBoxImpl const* getBox() const { return box; }
    xercesc::DOMElement* getShapeElement() const { return shapeElement; }
    xercesc::DOMElement* getShapeProperties() const { return shapeProperties; }
    xercesc::DOMElement* getBodyProperties() const { return bodyProperties; }

protected:
    // The paragraphs into the body, after the template's were dropped if the
    // box was replaced.
    virtual void writeText(xercesc::DOMElement* textBody);

private:
    BaseTextBoxImpl const* box;
    xercesc::DOMElement* shapeElement = nullptr;
    xercesc::DOMElement* shapeProperties = nullptr;
    xercesc::DOMElement* bodyProperties = nullptr;
};

}  // namespace ppt
}  // namespace deckforge
