// The writer of a chart: its chart part and workbook, and the p:graphicFrame
// that shows it, appended as a new shape or in the place and box of the
// placeholder it replaced.
#pragma once

#include "nodes/chart.h"
#include "writers/shape_writer.h"

namespace deckforge {
namespace ppt {

class ChartWriter : public ShapeWriter {
public:
    ChartWriter(ChartImpl const* chart, PPTWriter* writer, xercesc::DOMNode* parent)
        : ShapeWriter(chart, writer, parent), chart(chart) {}

    void write() override;

private:
    ChartImpl const* chart;
};

}  // namespace ppt
}  // namespace deckforge
