#include "writers/chart_writer.h"

#include <xercesc/dom/DOM.hpp>

#include "writers/chart_markup.h"
#include "writers/element_writer.h"
#include "writers/ppt_part_writer.h"
#include "writers/table_markup.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

namespace {

char16_t const kChartUri[] = u"http://schemas.openxmlformats.org/drawingml/2006/chart";

// A table's frame becomes a chart's: the a:graphicData names the chart
// part instead of holding a grid. Position, ids and p:ph stay.
void makeChartFrame(xercesc::DOMElement* frame, u16string const& relationshipId) {
    xercesc::DOMElement* data = ElementWriter::findChildElement(
        ElementWriter::findChildElement(frame, u"a:graphic"), u"a:graphicData");
    if (!data) return;
    while (data->getFirstChild()) data->removeChild(data->getFirstChild())->release();
    data->setAttribute(u"uri", kChartUri);
    xercesc::DOMElement* reference = frame->getOwnerDocument()->createElement(u"c:chart");
    reference->setAttribute(u"xmlns:c", kChartUri);
    reference->setAttribute(xml::kXmlnsR,
                            u"http://schemas.openxmlformats.org/officeDocument/2006/relationships");
    reference->setAttribute(u"r:id", relationshipId.c_str());
    data->appendChild(reference);
}

// A chart added without a box gets one that reads well on slides of either
// aspect (1in from the left, 1.5in from the top, 6in by 4in), rather than a
// new table's small square.
void defaultBox(xercesc::DOMElement* frame, ChartImpl const& chart) {
    xercesc::DOMElement* xfrm = ElementWriter::findChildElement(frame, u"p:xfrm");
    xercesc::DOMElement* off = ElementWriter::findChildElement(xfrm, xml::kOff);
    xercesc::DOMElement* ext = ElementWriter::findChildElement(xfrm, xml::kExt);
    if (!off || !ext) return;
    if (!chart.getX().isSet()) off->setAttribute(xml::kX, u"914400");
    if (!chart.getY().isSet()) off->setAttribute(xml::kY, u"1371600");
    if (!chart.getWidth().isSet()) ext->setAttribute(xml::kCx, u"5486400");
    if (!chart.getHeight().isSet()) ext->setAttribute(xml::kCy, u"3657600");
}

}  // namespace

void ChartWriter::write() {
    auto const& slide = getCurrentSlide();
    if (!slide) return;
    u16string const relationshipId = getPartWriter()->addChart(
        getCurrentSlidePartName(), chartSpaceXml(*chart, PPTPartWriter::kChartWorkbookId),
        chartWorkbook(*chart));
    if (relationshipId.empty()) return;

    xercesc::DOMElement* element = findShapeElement();
    xercesc::DOMElement* frame = nullptr;
    if (element) {
        xercesc::DOMNode* parent = element->getParentNode();
        frame = createTableFromPlaceholder(*slide, element, findLayoutShapeElement(), 0, *chart);
        // The placeholder goes, and its marker with it.
        if (frame && parent) parent->replaceChild(frame, element);
    } else {
        frame = createTable(*slide, *chart, 0);
        defaultBox(frame, *chart);
        // A new frame is named after what it shows.
        xercesc::DOMElement* cNvPr = ElementWriter::findChildElement(
            ElementWriter::findChildElement(frame, u"p:nvGraphicFramePr"), xml::kCNvPr);
        if (cNvPr && !chart->getNameAttribute().isSet())
            cNvPr->setAttribute(xml::kName, (u"Chart " + u16string(cNvPr->getAttribute(xml::kId))).c_str());
    }
    if (frame) makeChartFrame(frame, relationshipId);
}

}  // namespace ppt
}  // namespace deckforge
