#include "writers/shape_markup.h"

#include <algorithm>
#include <cmath>
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

// EMU for a pixel of an image that has no size of its own on the slide.
double const kEmuPerPixel = 9525.0;

// Truncated toward zero into 32 bits, as the markup's coordinates are;
// clamped rather than wrapped, so no size turns negative by overflow.
u16string emuText(double value) {
    if (std::isnan(value)) value = 0.0;
    value = std::clamp(value, -2147483648.0, 2147483647.0);
    return plainInteger(static_cast<int>(value));
}

// The r prefix must be declared where r:embed is used; slide documents
// declare it on the root as a rule, but a template may have had no use for it.
void declareRelationshipPrefix(DOMDocument* document) {
    DOMElement* root = document->getDocumentElement();
    if (root && !root->hasAttribute(xml::kXmlnsR))
        root->setAttribute(xml::kXmlnsR,
                           u"http://schemas.openxmlformats.org/officeDocument/2006/relationships");
}

DOMElement* newNonVisualPictureProperties(DOMDocument* document) {
    DOMElement* cNvPicPr = document->createElement(xml::kCNvPicPr);
    DOMElement* locks = appendNew(cNvPicPr, xml::kPicLocks);
    locks->setAttribute(xml::kNoGrp, u"1");
    locks->setAttribute(xml::kNoChangeAspect, u"1");
    return cNvPicPr;
}

// A p:pic with an empty p:nvPicPr and its p:blipFill; the caller fills the
// non-visual properties and appends the p:spPr.
DOMElement* pictureSkeleton(DOMDocument* document, u16string const& relationshipId, DOMElement*& nvPicPr) {
    DOMElement* pic = document->createElement(xml::kPic);
    nvPicPr = appendNew(pic, xml::kNvPicPr);
    DOMElement* blipFill = appendNew(pic, xml::kBlipFill);
    DOMElement* blip = appendNew(blipFill, xml::kBlip);
    if (!relationshipId.empty()) {
        declareRelationshipPrefix(document);
        blip->setAttribute(xml::kEmbed, relationshipId.c_str());
    }
    appendNew(appendNew(blipFill, xml::kStretch), xml::kFillRect);
    return pic;
}

// A p:cNvPr with the slide's next shape id and the shape's Name, or
// "Picture <id>" when it has none: a name that follows from the slide alone
// keeps the output the same from run to run.
DOMElement* newShapeName(TemplateSlide& slide, ShapeImpl const& shape) {
    DOMElement* cNvPr = slide.document->createElement(xml::kCNvPr);
    u16string const id = plainInteger(static_cast<unsigned int>(slide.nextShapeId++));
    cNvPr->setAttribute(xml::kId, id.c_str());
    auto const& name = shape.getNameAttribute();
    cNvPr->setAttribute(xml::kName, (name.isSet() ? name.getValue() : u"Picture " + id).c_str());
    return cNvPr;
}

// Fills `nvPicPr` from the old shape's non-visual properties: its p:cNvPr,
// the picture's own p:cNvPicPr, its p:nvPr, in the order the schema wants.
// Moving them keeps id, name and p:ph. What the old shape lacks is made new,
// since a p:pic without them isn't valid.
void takeOverNonVisual(DOMElement* nvPicPr, DOMElement* oldNonVisual, TemplateSlide& slide,
                       ShapeImpl const& shape) {
    DOMElement* cNvPr = ElementWriter::findChildElement(oldNonVisual, xml::kCNvPr);
    DOMElement* nvPr = ElementWriter::findChildElement(oldNonVisual, xml::kNvPr);
    nvPicPr->appendChild(cNvPr ? cNvPr : newShapeName(slide, shape));
    nvPicPr->appendChild(newNonVisualPictureProperties(slide.document));
    nvPicPr->appendChild(nvPr ? nvPr : slide.document->createElement(xml::kNvPr));
}

void fitPicture(DOMElement* pic, TemplateSlide const& slide, DOMElement const* spPr, DOMElement const* nvSpPr,
                ShapeImpl const& shape, double width, double height) {
    DOMElement* properties = appendNew(pic, xml::kSpPr);
    DOMElement const* xfrm = spPr ? boxTransform(slide, spPr, nvSpPr) : nullptr;
    DOMElement const* boxOff = ElementWriter::findChildElement(xfrm, xml::kOff);
    DOMElement const* boxExt = ElementWriter::findChildElement(xfrm, xml::kExt);
    if (!boxOff || !boxExt) return;

    bool const widthSet = shape.getWidth().isSet(), heightSet = shape.getHeight().isSet();
    double w = 0.0, h = 0.0;
    if (widthSet) {
        w = shape.getWidth().getValue().getEMUNumber();
        if (!heightSet) h = height * w / width;
    } else {
        w = width * kEmuPerPixel;
        if (!heightSet) h = kEmuPerPixel * height;
    }
    if (heightSet) {
        h = shape.getHeight().getValue().getEMUNumber();
        if (!widthSet) w = width * h / height;
    }

    double const boxW = str2double(boxExt->getAttribute(xml::kCx));
    double const boxH = str2double(boxExt->getAttribute(xml::kCy));
    double x = str2double(boxOff->getAttribute(xml::kX));
    double y = str2double(boxOff->getAttribute(xml::kY));
    // A dimension below one EMU isn't scaled: it would blow the other up.
    if (h > boxH) {
        if (h > 1.0) w = w * boxH / h;
        h = boxH;
    }
    if (w > boxW) {
        if (w > 1.0) h = h * boxW / w;
        w = boxW;
    } else if (boxW > w) {
        x += (boxW - w) * 0.5;
    }
    if (boxH > h) y += (boxH - h) * 0.5;
    if (shape.getX().isSet()) x = shape.getX().getValue().getEMUNumber();
    if (shape.getY().isSet()) y = shape.getY().getValue().getEMUNumber();

    setPosition(appendNew(properties, xml::kXfrm), emuText(x), emuText(y), emuText(w), emuText(h));
    appendNew(properties, xml::kPrstGeom)->setAttribute(xml::kPrst, xml::kRect);
}

}  // namespace

DOMElement const* boxTransform(TemplateSlide const& slide, DOMElement const* spPr, DOMElement const* nvSpPr) {
    if (DOMElement const* xfrm = ElementWriter::findChildElement(spPr, xml::kXfrm)) return xfrm;
    if (!slide.layout || !slide.layout->master || !nvSpPr) return nullptr;
    // Layout and master shapes share ids only by custom, not by rule: a
    // layout whose ids differ finds no box and inherits its geometry.
    DOMElement const* cNvPr = ElementWriter::findChildElement(nvSpPr, xml::kCNvPr);
    u16string const id = cNvPr ? u16string(cNvPr->getAttribute(xml::kId)) : u16string();
    if (id.empty()) return nullptr;
    auto const& byId = slide.layout->master->shapeElementsById;
    auto const it = byId.find(id);
    if (it == byId.end() || !it->second) return nullptr;
    return ElementWriter::findChildElement(ElementWriter::findChildElement(it->second, xml::kSpPr),
                                           xml::kXfrm);
}

// Appends to `pic` the p:spPr of a picture fitted into the box of the given
// shape properties: the image is scaled down to fit with its aspect kept and
// centred in the box, but never scaled up; a size given by script code is
// fitted too, a position given by script code wins over the centring.
// Without a box the p:spPr stays empty and the placeholder's geometry is
// inherited.
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
    u16string const id = plainInteger(static_cast<unsigned int>(slide.nextShapeId++));
    cNvPr->setAttribute(xml::kId, id.c_str());
    auto const& name = shape.getNameAttribute();
    cNvPr->setAttribute(xml::kName, (name.isSet() ? name.getValue() : u"TextBox " + id).c_str());
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

DOMElement* createPicture(u16string const& relationshipId, TemplateSlide& slide, ShapeImpl const& shape) {
    DOMElement* tree = PresentationModel::getShapeTree(slide.document);
    if (!tree) return nullptr;
    DOMElement* nvPicPr = nullptr;
    DOMElement* pic = pictureSkeleton(slide.document, relationshipId, nvPicPr);

    takeOverNonVisual(nvPicPr, nullptr, slide, shape);

    DOMElement* spPr = appendNew(pic, xml::kSpPr);
    setPosition(appendNew(spPr, xml::kXfrm), emuOr(shape.getX(), u"0"), emuOr(shape.getY(), u"0"),
                emuOr(shape.getWidth(), kDefaultShapeExtent), emuOr(shape.getHeight(), kDefaultShapeExtent));
    appendNew(spPr, xml::kPrstGeom)->setAttribute(xml::kPrst, xml::kRect);

    tree->appendChild(pic);
    return pic;
}

void addSvgBlip(DOMElement* pic, u16string const& relationshipId) {
    DOMElement* blipFill = ElementWriter::findChildElement(pic, xml::kBlipFill);
    DOMElement* blip = ElementWriter::findChildElement(blipFill, xml::kBlip);
    if (!blip || relationshipId.empty()) return;
    DOMElement* ext = appendNew(appendNew(blip, xml::kExtLst), xml::kExt);
    ext->setAttribute(xml::kUri, u"{96DAC541-7B7A-43D3-8B79-37D633B846F1}");
    DOMElement* svgBlip = appendNew(ext, xml::kSvgBlip);
    svgBlip->setAttribute(xml::kXmlnsAsvg, u"http://schemas.microsoft.com/office/drawing/2016/SVG/main");
    svgBlip->setAttribute(xml::kEmbed, relationshipId.c_str());
}

DOMElement* createPictureFromPlaceholder(u16string const& relationshipId, TemplateSlide& slide,
                                         DOMElement* element, DOMElement const* layoutElement,
                                         ShapeImpl const& shape, double width, double height) {
    if (!slide.document) return nullptr;
    DOMElement* nvPicPr = nullptr;
    DOMElement* pic = pictureSkeleton(slide.document, relationshipId, nvPicPr);
    takeOverNonVisual(nvPicPr, ElementWriter::findChildElement(element, xml::kNvSpPr), slide, shape);
    fitPicture(pic, slide, ElementWriter::findChildElement(layoutElement, xml::kSpPr),
               ElementWriter::findChildElement(layoutElement, xml::kNvSpPr), shape, width, height);
    return pic;
}

DOMElement* createPictureFromPicture(u16string const& relationshipId, TemplateSlide& slide,
                                     DOMElement* element, DOMElement const*, ShapeImpl const& shape,
                                     double width, double height) {
    if (!slide.document) return nullptr;
    DOMElement* nvPicPr = nullptr;
    DOMElement* pic = pictureSkeleton(slide.document, relationshipId, nvPicPr);
    takeOverNonVisual(nvPicPr, ElementWriter::findChildElement(element, xml::kNvPicPr), slide, shape);
    // The template's picture has its box on the slide; there is no p:nvSpPr
    // through which to ask the master.
    fitPicture(pic, slide, ElementWriter::findChildElement(element, xml::kSpPr), nullptr, shape, width,
               height);
    return pic;
}

}  // namespace ppt
}  // namespace deckforge
