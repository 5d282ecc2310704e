#include "writers/shape_markup.h"

#include <algorithm>
#include <cstdint>

#include <xercesc/dom/DOM.hpp>

#include "common/dimension.h"
#include "nodes/shape.h"
#include "template/presentation_model.h"
#include "template/template_records.h"
#include "writers/element_writer.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

char16_t const* const kDefaultShapeExtent = u"1234567";

namespace {

using xercesc::DOMDocument;
using xercesc::DOMElement;

DOMElement* appendNew(DOMElement* parent, XMLCh const* name) {
    DOMElement* child = parent->getOwnerDocument()->createElement(name);
    parent->appendChild(child);
    return child;
}

u16string emuOr(BaseAttribute<Dimension> const& value, u16string const& fallback) {
    return value.isSet() ? value.getValue().getEMUValue() : fallback;
}

void setPosition(DOMElement* xfrm, u16string const& x, u16string const& y, u16string const& cx,
                 u16string const& cy) {
    // a:off comes before a:ext, whichever of them exists already.
    DOMElement* off = ElementWriter::findChildElement(xfrm, xml::kOff);
    if (!off)
        off = static_cast<DOMElement*>(
            xfrm->insertBefore(xfrm->getOwnerDocument()->createElement(xml::kOff), xfrm->getFirstChild()));
    off->setAttribute(xml::kX, x.c_str());
    off->setAttribute(xml::kY, y.c_str());
    DOMElement* ext = ElementWriter::findChildElement(xfrm, xml::kExt);
    if (!ext)
        ext = static_cast<DOMElement*>(
            xfrm->insertBefore(xfrm->getOwnerDocument()->createElement(xml::kExt), off->getNextSibling()));
    ext->setAttribute(xml::kCx, cx.c_str());
    ext->setAttribute(xml::kCy, cy.c_str());
}

// A coordinate of the layout's a:off in the form the shape's attributes take.
u16string layoutCoordinate(DOMElement const* off, XMLCh const* name) {
    if (!off) return u16string();
    u16string value = off->getAttribute(name);
    if (value.empty()) return value;
    return Dimension(value + u"emus").getEMUValue();
}

// The highest "id" of a p:cNvPr at or below `element`.
std::uint32_t highestShapeId(DOMElement const* element) {
    std::uint32_t highest = 0;
    for (DOMElement const* child = element->getFirstElementChild(); child;
         child = child->getNextElementSibling()) {
        if (xercesc::XMLString::equals(child->getTagName(), xml::kCNvPr)) {
            u16string const id = child->getAttribute(xml::kId);
            if (!id.empty()) highest = std::max<std::uint32_t>(highest, str2uint(id));
        } else {
            highest = std::max(highest, highestShapeId(child));
        }
    }
    return highest;
}

}  // namespace

void reserveShapeIds(TemplateSlide& slide) {
    DOMElement const* tree = PresentationModel::getShapeTree(slide.document);
    if (!tree) return;
    std::uint32_t const highest = highestShapeId(tree);
    if (highest >= slide.nextShapeId) slide.nextShapeId = highest + 1;
}

DOMElement* createTextBoxShape(TemplateSlide& slide, ShapeImpl const& shape) {
    DOMElement* tree = PresentationModel::getShapeTree(slide.document);
    if (!tree) return nullptr;
    DOMDocument* document = slide.document;

    DOMElement* sp = document->createElement(xml::kSp);
    DOMElement* nvSpPr = appendNew(sp, xml::kNvSpPr);
    DOMElement* cNvPr = appendNew(nvSpPr, xml::kCNvPr);
    cNvPr->setAttribute(xml::kId, num2str(static_cast<unsigned int>(slide.nextShapeId++)).c_str());
    auto const& name = shape.getNameAttribute();
    cNvPr->setAttribute(xml::kName, (name.isSet() ? name.getValue() : uuid_gen()).c_str());
    appendNew(nvSpPr, xml::kCNvSpPr);
    appendNew(nvSpPr, xml::kNvPr);

    DOMElement* spPr = appendNew(sp, xml::kSpPr);
    setPosition(appendNew(spPr, xml::kXfrm), emuOr(shape.getX(), u"0"), emuOr(shape.getY(), u"0"),
                emuOr(shape.getWidth(), kDefaultShapeExtent), emuOr(shape.getHeight(), kDefaultShapeExtent));
    appendNew(spPr, xml::kPrstGeom)->setAttribute(xml::kPrst, xml::kRect);

    DOMElement* txBody = appendNew(sp, xml::kTxBody);
    appendNew(txBody, xml::kBodyPr);
    appendNew(txBody, xml::kLstStyle);

    tree->appendChild(sp);
    return sp;
}

void applyShapeGeometry(DOMElement* shapeElement, TemplateSlide&, DOMElement const* layoutElement,
                        ShapeImpl const& shape) {
    if (!shapeElement) return;
    if (!shape.getX().isSet() && !shape.getY().isSet() && !shape.getWidth().isSet() &&
        !shape.getHeight().isSet())
        return;

    // Only the layout's offset is taken over; its size is not, so a shape
    // given only X comes out at the layout's y with the default size.
    DOMElement const* layoutOff = nullptr;
    if (layoutElement) {
        DOMElement const* layoutXfrm = ElementWriter::findChildElement(
            ElementWriter::findChildElement(layoutElement, xml::kSpPr), xml::kXfrm);
        layoutOff = ElementWriter::findChildElement(layoutXfrm, xml::kOff);
    }
    u16string x =
        shape.getX().isSet() ? shape.getX().getValue().getEMUValue() : layoutCoordinate(layoutOff, xml::kX);
    u16string y =
        shape.getY().isSet() ? shape.getY().getValue().getEMUValue() : layoutCoordinate(layoutOff, xml::kY);
    if (x.empty()) x = u"0";
    if (y.empty()) y = u"0";

    DOMElement* spPr = ElementWriter::findChildElement(shapeElement, xml::kSpPr);
    if (!spPr) {
        // A placeholder always has one; made after p:nvSpPr to stay valid.
        spPr = shapeElement->getOwnerDocument()->createElement(xml::kSpPr);
        DOMElement* nvSpPr = ElementWriter::findChildElement(shapeElement, xml::kNvSpPr);
        shapeElement->insertBefore(spPr, nvSpPr ? nvSpPr->getNextSibling() : shapeElement->getFirstChild());
    }
    DOMElement* xfrm = ElementWriter::findChildElement(spPr, xml::kXfrm);
    if (!xfrm) {
        // a:xfrm leads the shape properties; after a:prstGeom it wouldn't be valid.
        xfrm = spPr->getOwnerDocument()->createElement(xml::kXfrm);
        spPr->insertBefore(xfrm, spPr->getFirstChild());
    }
    setPosition(xfrm, x, y, emuOr(shape.getWidth(), kDefaultShapeExtent),
                emuOr(shape.getHeight(), kDefaultShapeExtent));
}

}  // namespace ppt
}  // namespace deckforge
