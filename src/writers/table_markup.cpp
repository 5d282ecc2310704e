#include "writers/table_markup.h"

#include <algorithm>
#include <cmath>

#include <xercesc/dom/DOM.hpp>

#include "common/dimension.h"
#include "nodes/shape.h"
#include "template/presentation_model.h"
#include "template/template_records.h"
#include "writers/element_writer.h"
#include "writers/shape_markup.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

char16_t const* const kDefaultTableExtent = u"3234567";
double const kDefaultFrameSize = 3234567.0;

namespace {

using xercesc::DOMDocument;
using xercesc::DOMElement;

xml::Name const kGraphicFrame{u"p:graphicFrame"};
xml::Name const kNvGraphicFramePr{u"p:nvGraphicFramePr"};
xml::Name const kCNvGraphicFramePr{u"p:cNvGraphicFramePr"};
xml::Name const kGraphicFrameLocks{u"a:graphicFrameLocks"};
xml::Name const kFrameXfrm{u"p:xfrm"};
xml::Name const kGraphic{u"a:graphic"};
xml::Name const kGraphicData{u"a:graphicData"};
xml::Name const kUri{u"uri"};
xml::Name const kTbl{u"a:tbl"};
xml::Name const kTblPr{u"a:tblPr"};
xml::Name const kTableStyleId{u"a:tableStyleId"};
xml::Name const kTblGrid{u"a:tblGrid"};
xml::Name const kGridCol{u"a:gridCol"};
xml::Name const kW{u"w"};
char16_t const kTableUri[] = u"http://schemas.openxmlformats.org/drawingml/2006/table";

// A column without a width of its own when the others took all the room.
double const kNarrowColumn = 208080.0;

DOMElement* appendNew(DOMElement* parent, XMLCh const* name) {
    return static_cast<DOMElement*>(parent->appendChild(parent->getOwnerDocument()->createElement(name)));
}

// Truncated toward zero into 32 bits, as the markup's coordinates are;
// clamped rather than wrapped.
u16string emuText(double value) {
    if (std::isnan(value)) value = 0.0;
    return plainInteger(static_cast<int>(std::clamp(value, -2147483648.0, 2147483647.0)));
}

// The frame without position and without non-visual names:
// p:graphicFrame / p:nvGraphicFramePr / p:cNvGraphicFramePr / a:graphicFrameLocks,
// then a:graphic / a:graphicData / a:tbl / a:tblGrid.
DOMElement* frameSkeleton(DOMDocument* document) {
    DOMElement* frame = document->createElement(kGraphicFrame);
    DOMElement* locks =
        appendNew(appendNew(appendNew(frame, kNvGraphicFramePr), kCNvGraphicFramePr), kGraphicFrameLocks);
    locks->setAttribute(xml::kNoGrp, u"1");
    DOMElement* data = appendNew(appendNew(frame, kGraphic), kGraphicData);
    data->setAttribute(kUri, kTableUri);
    appendNew(appendNew(data, kTbl), kTblGrid);
    return frame;
}

DOMElement* nonVisual(DOMElement const* frame) {
    return ElementWriter::findChildElement(frame, kNvGraphicFramePr);
}

// The old shape's p:cNvPr and p:nvPr move into the frame, so its id, name and
// p:ph stay; what it lacks is made new, since the frame needs both.
void takeOverNonVisual(DOMElement* frame, DOMElement* oldNonVisual, TemplateSlide& slide,
                       ShapeImpl const& shape) {
    DOMElement* properties = nonVisual(frame);
    DOMElement* cNvPr = ElementWriter::findChildElement(oldNonVisual, xml::kCNvPr);
    DOMElement* nvPr = ElementWriter::findChildElement(oldNonVisual, xml::kNvPr);
    if (!cNvPr) {
        cNvPr = slide.document->createElement(xml::kCNvPr);
        u16string const id = plainInteger(static_cast<unsigned int>(slide.nextShapeId++));
        cNvPr->setAttribute(xml::kId, id.c_str());
        auto const& name = shape.getNameAttribute();
        cNvPr->setAttribute(xml::kName, (name.isSet() ? name.getValue() : u"Table " + id).c_str());
    }
    properties->insertBefore(cNvPr, properties->getFirstChild());
    properties->appendChild(nvPr ? nvPr : slide.document->createElement(xml::kNvPr));
}

void setFramePosition(DOMElement* frame, u16string const& x, u16string const& y, u16string const& cx,
                      u16string const& cy) {
    DOMElement* xfrm = frame->getOwnerDocument()->createElement(kFrameXfrm);
    DOMElement* off = appendNew(xfrm, xml::kOff);
    off->setAttribute(xml::kX, x.c_str());
    off->setAttribute(xml::kY, y.c_str());
    DOMElement* ext = appendNew(xfrm, xml::kExt);
    ext->setAttribute(xml::kCx, cx.c_str());
    ext->setAttribute(xml::kCy, cy.c_str());
    frame->insertBefore(xfrm, ElementWriter::findChildElement(frame, kGraphic));
}

DOMElement* findGrid(DOMElement const* tbl) {
    return ElementWriter::findChildElement(tbl, kTblGrid);
}

void appendGridColumns(DOMElement* frame, std::uint64_t nCols, double width) {
    DOMElement* grid = findGrid(findTableElement(frame));
    if (!grid || nCols == 0) return;
    u16string const w = emuText(width / static_cast<double>(nCols));
    for (std::uint64_t i = 0; i < nCols; ++i) appendNew(grid, kGridCol)->setAttribute(kW, w.c_str());
}

// The box a placeholder inherits: the layout element's own a:xfrm, or,
// when the layout has none, the master's shape of the same id. A new
// slide's copy of a placeholder has no a:xfrm, and a graphic frame can't
// inherit its box the way a shape does: without p:xfrm the frame is
// invalid, and readers draw the table as a sliver.
DOMElement const* inheritedTransform(TemplateSlide const& slide, DOMElement const* layoutSpPr,
                                     DOMElement const* layoutNvSpPr) {
    return layoutSpPr ? boxTransform(slide, layoutSpPr, layoutNvSpPr) : nullptr;
}

// Gives the frame the box of `source` (an a:xfrm or p:xfrm), or the one the
// placeholder inherits, with the shape's own geometry winning, and the grid
// columns sharing its width. With no box anywhere the frame takes a new
// table's default box, so that it stays a valid frame.
void placeFrame(DOMElement* frame, DOMElement const* source, TemplateSlide const& slide,
                DOMElement const* layoutElement, std::uint64_t nCols, ShapeImpl const& shape) {
    if (!source)
        source = inheritedTransform(slide, ElementWriter::findChildElement(layoutElement, xml::kSpPr),
                                    ElementWriter::findChildElement(layoutElement, xml::kNvSpPr));
    DOMElement const* off = ElementWriter::findChildElement(source, xml::kOff);
    DOMElement const* ext = ElementWriter::findChildElement(source, xml::kExt);

    auto value = [](BaseAttribute<Dimension> const& attribute, DOMElement const* element, XMLCh const* name,
                    double fallback) {
        if (attribute.isSet()) return static_cast<double>(attribute.getValue().getEMUNumber());
        return element ? str2double(element->getAttribute(name)) : fallback;
    };
    bool const known = off && ext;
    double const cx = value(shape.getWidth(), known ? ext : nullptr, xml::kCx, kDefaultFrameSize);
    double const cy = value(shape.getHeight(), known ? ext : nullptr, xml::kCy, kDefaultFrameSize);
    double const x = value(shape.getX(), known ? off : nullptr, xml::kX, 0);
    double const y = value(shape.getY(), known ? off : nullptr, xml::kY, 0);
    setFramePosition(frame, emuText(x), emuText(y), emuText(cx), emuText(cy));
    appendGridColumns(frame, nCols, cx);
}

DOMElement* createFrom(TemplateSlide& slide, DOMElement* element, DOMElement const* layoutElement,
                       std::uint64_t nCols, ShapeImpl const& shape, bool fromFrame) {
    if (!slide.document) return nullptr;
    DOMElement* frame = frameSkeleton(slide.document);
    takeOverNonVisual(frame,
                      ElementWriter::findChildElement(element, fromFrame ? kNvGraphicFramePr : xml::kNvSpPr),
                      slide, shape);
    DOMElement const* source = fromFrame
                                   ? ElementWriter::findChildElement(element, kFrameXfrm)
                                   : ElementWriter::findChildElement(
                                         ElementWriter::findChildElement(element, xml::kSpPr), xml::kXfrm);
    placeFrame(frame, source, slide, layoutElement, nCols, shape);
    return frame;
}

DOMElement* ensureTableProperties(DOMElement* tbl) {
    if (DOMElement* properties = ElementWriter::findChildElement(tbl, kTblPr)) return properties;
    return static_cast<DOMElement*>(
        tbl->insertBefore(tbl->getOwnerDocument()->createElement(kTblPr), tbl->getFirstChild()));
}

}  // namespace

DOMElement* createTable(TemplateSlide& slide, ShapeImpl const& shape, std::uint64_t nCols) {
    DOMElement* tree = PresentationModel::getShapeTree(slide.document);
    if (!tree) return nullptr;
    DOMElement* frame = frameSkeleton(slide.document);
    takeOverNonVisual(frame, nullptr, slide, shape);
    auto text = [](BaseAttribute<Dimension> const& value, u16string const& fallback) {
        return value.isSet() ? value.getValue().getEMUValue() : fallback;
    };
    u16string const cx = text(shape.getWidth(), kDefaultTableExtent);
    setFramePosition(frame, text(shape.getX(), u"0"), text(shape.getY(), u"0"), cx,
                     text(shape.getHeight(), kDefaultTableExtent));
    appendGridColumns(frame, nCols, str2double(cx));
    tree->appendChild(frame);
    return frame;
}

DOMElement* createTableFromPlaceholder(TemplateSlide& slide, DOMElement* element,
                                       DOMElement const* layoutElement, std::uint64_t nCols,
                                       ShapeImpl const& shape) {
    return createFrom(slide, element, layoutElement, nCols, shape, false);
}

DOMElement* createTableFromGraphicFrame(TemplateSlide& slide, DOMElement* element,
                                        DOMElement const* layoutElement, std::uint64_t nCols,
                                        ShapeImpl const& shape) {
    return createFrom(slide, element, layoutElement, nCols, shape, true);
}

DOMElement* findTableElement(DOMElement const* frame) {
    return ElementWriter::findChildElement(
        ElementWriter::findChildElement(ElementWriter::findChildElement(frame, kGraphic), kGraphicData),
        kTbl);
}

bool applyTableStyle(PresentationModel const& model, DOMElement* tbl, u16string const& styleName) {
    boost::shared_ptr<TemplateTableStyle> const style = model.findTableStyle(styleName);
    if (!style || !tbl) return false;
    DOMElement* properties = ensureTableProperties(tbl);
    DOMElement* id = ElementWriter::findChildElement(properties, kTableStyleId);
    if (!id) id = appendNew(properties, kTableStyleId);
    id->setTextContent(style->styleId.c_str());
    return true;
}

void applyTableStyleOptions(DOMElement* tbl, TemplateTableStyleOptions const& options) {
    if (!tbl) return;
    DOMElement* properties = ensureTableProperties(tbl);
    std::pair<bool, char16_t const*> const flags[] = {
        {options.firstRow, u"firstRow"}, {options.lastRow, u"lastRow"}, {options.bandRow, u"bandRow"},
        {options.firstCol, u"firstCol"}, {options.lastCol, u"lastCol"}, {options.bandCol, u"bandCol"}};
    for (auto const& flag : flags)
        if (flag.first) properties->setAttribute(flag.second, u"1");
}

void applyColumnWidths(DOMElement* tbl, std::vector<BaseAttribute<unsigned int>> const& columnWidths) {
    double specified = 0.0;
    std::size_t unspecified = 0;
    for (auto const& width : columnWidths) {
        if (width.isSet())
            specified += width.getValue();
        else
            ++unspecified;
    }
    if (unspecified == columnWidths.size()) return;
    DOMElement* grid = findGrid(tbl);
    if (!grid) return;

    double existing = 0.0;
    for (DOMElement* column = grid->getFirstElementChild(); column; column = column->getNextElementSibling())
        if (xercesc::XMLString::equals(column->getTagName(), kGridCol))
            existing += str2double(column->getAttribute(kW));
    double const share = unspecified != 0 && specified < existing
                             ? (existing - specified) / static_cast<double>(unspecified)
                             : kNarrowColumn;

    ElementWriter::removeChildElements(grid, kGridCol);
    for (auto const& width : columnWidths)
        appendNew(grid, kGridCol)
            ->setAttribute(kW,
                           emuText(width.isSet() ? static_cast<double>(width.getValue()) : share).c_str());
}

}  // namespace ppt
}  // namespace deckforge
