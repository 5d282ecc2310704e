#include "writers/base_text_box_writer.h"

#include <xercesc/dom/DOM.hpp>

#include "writers/shape_markup.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

BaseTextBoxWriter::BaseTextBoxWriter(BaseTextBoxImpl const* box_, PPTWriter* writer, xercesc::DOMNode* parent)
    : ShapeWriter(box_, writer, parent), box(box_) {}

void BaseTextBoxWriter::write() {
    auto const& slide = getCurrentSlide();
    if (!slide) return;

    shapeElement = findShapeElement();
    if (shapeElement) {
        applyShapeGeometry(shapeElement, *slide, findLayoutShapeElement(), *box);
        // The marker means nothing to a reader of the file.
        shapeElement->removeAttribute(xml::kDataUid);
    } else {
        shapeElement = createTextBoxShape(*slide, *box);
        if (!shapeElement) return;  // a document without p:spTree
    }

    xercesc::DOMElement* textBody = findChildElement(shapeElement, xml::kTxBody);
    shapeProperties = findChildElement(shapeElement, xml::kSpPr);
    if (!textBody) {
        applyFormats(box, getInheritableFormatTypes());
        return;
    }
    bodyProperties = findChildElement(textBody, xml::kBodyPr);
    applyFormats(box, getInheritableFormatTypes());

    if (bodyProperties && !bodyProperties->getParentNode()) {
        // The template's body had none and a format made one; it leads the body.
        textBody->insertBefore(bodyProperties, textBody->getFirstChild());
    }
    writeText(textBody);
    addEmptyParagraph(shapeElement);
}

void BaseTextBoxWriter::writeText(xercesc::DOMElement* textBody) {
    if (box->isReplaced()) removeChildElements(textBody, xml::kP);
    writeChildren(textBody);
}

void BaseTextBoxWriter::applyFormat(FormatImpl const* format) {
    if (format) format->applyToBaseTextBox(*this);
}

std::vector<FormatType> const& BaseTextBoxWriter::getInheritableFormatTypes() const {
    static std::vector<FormatType> const types{FormatTypeBackgroundColor};
    return types;
}

xercesc::DOMElement* BaseTextBoxWriter::ensureShapeProperties() {
    if (!shapeProperties) shapeProperties = createElement(xml::kDrawingSpPr);
    return shapeProperties;
}

xercesc::DOMElement* BaseTextBoxWriter::replaceShapeProperty(XMLCh const* name) {
    xercesc::DOMElement* properties = ensureShapeProperties();
    if (!properties) return nullptr;
    xercesc::DOMElement* element = createElement(name);
    if (xercesc::DOMElement* old = findChildElement(properties, name))
        properties->replaceChild(element, old);
    else
        properties->appendChild(element);
    return element;
}

xercesc::DOMElement* BaseTextBoxWriter::replaceShapeFill(XMLCh const* name) {
    static xml::Name const fills[] = {xml::Name(u"a:noFill"),   xml::Name(u"a:solidFill"),
                                      xml::Name(u"a:gradFill"), xml::Name(u"a:blipFill"),
                                      xml::Name(u"a:pattFill"), xml::Name(u"a:grpFill")};
    static xml::Name const leading[] = {xml::kXfrm, xml::Name(u"a:custGeom"), xml::kPrstGeom};
    auto isOneOf = [](XMLCh const* tag, auto const& names) {
        for (auto const& n : names)
            if (xercesc::XMLString::equals(tag, n)) return true;
        return false;
    };
    xercesc::DOMElement* properties = ensureShapeProperties();
    if (!properties) return nullptr;
    xercesc::DOMElement* element = createElement(name);
    xercesc::DOMElement* before = properties->getFirstElementChild();
    while (before && isOneOf(before->getTagName(), leading)) before = before->getNextElementSibling();
    properties->insertBefore(element, before);
    std::vector<xercesc::DOMElement*> doomed;
    for (auto* child = properties->getFirstElementChild(); child; child = child->getNextElementSibling())
        if (child != element && isOneOf(child->getTagName(), fills)) doomed.push_back(child);
    for (auto* child : doomed) properties->removeChild(child);
    return element;
}

xercesc::DOMElement* BaseTextBoxWriter::ensureBodyProperties() {
    if (!bodyProperties) bodyProperties = createElement(xml::kBodyPr);
    return bodyProperties;
}

void BaseTextBoxWriter::setBodyAttribute(XMLCh const* name, bool value) {
    setBodyAttribute(name, value ? u"1" : u"0");
}

void BaseTextBoxWriter::setBodyAttribute(XMLCh const* name, XMLCh const* value) {
    if (xercesc::DOMElement* properties = ensureBodyProperties()) properties->setAttribute(name, value);
}

}  // namespace ppt
}  // namespace deckforge
