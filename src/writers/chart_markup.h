// The parts of a native chart: the chart part's c:chartSpace and the
// workbook that holds the same table, so that a reader can edit the data.
// The workbook has the categories (a scatter chart's x) in column A, a
// series per further column with its name in row 1, and the values from
// row 2 on; the series' formulas in the chart point there, and their caches
// hold the same numbers for readers that don't open the workbook.
#pragma once

#include <string>

#include "common/strings.h"

namespace deckforge {
namespace ppt {

class ChartImpl;

// The chart part, UTF-8, relating to its workbook by `workbookId`.
// Colours not given are the theme's accents, so the chart follows the
// template it lands in.
std::string chartSpaceXml(ChartImpl const& chart, u16string const& workbookId);
// The bytes of the .xlsx; empty if it could not be written.
std::string chartWorkbook(ChartImpl const& chart);
// "A", "B", ..., "Z", "AA", ... for a column counted from 0.
std::string columnLetters(std::size_t column);

}  // namespace ppt
}  // namespace deckforge
