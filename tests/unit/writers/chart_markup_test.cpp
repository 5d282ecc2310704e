// The chart part's formulas and caches, which the embedded workbook's layout
// must match cell for cell, and the workbook itself.
#include <gtest/gtest.h>

#include <cmath>

#include "nodes/chart.h"
#include "writers/chart_markup.h"

namespace deckforge {
namespace test {
namespace {

using ppt::Chart;
using ppt::ChartType;

TEST(ChartMarkup, ColumnLettersRollOverAsSpreadsheetsCount) {
    EXPECT_EQ(ppt::columnLetters(0), "A");
    EXPECT_EQ(ppt::columnLetters(25), "Z");
    EXPECT_EQ(ppt::columnLetters(26), "AA");
    EXPECT_EQ(ppt::columnLetters(701), "ZZ");
    EXPECT_EQ(ppt::columnLetters(702), "AAA");
}

TEST(ChartMarkup, SeriesPointIntoTheWorkbookAndCacheTheirValuesWithoutGaps) {
    // 27 series: the last one lives in column AB.
    std::vector<std::vector<double>> columns(27, std::vector<double>{1.5, NAN, 3.0});
    Chart chart(ChartType::Line, columns);
    chart.chartImpl()->setCategories(std::vector<u16string>{u"a<b", u"c", u"d"});
    chart.chartImpl()->setNumberFormat(u"0.0%");
    std::string const xml = ppt::chartSpaceXml(*chart.chartImpl(), u"rId1");
    EXPECT_NE(xml.find("<c:f>Sheet1!$AB$2:$AB$4</c:f>"), std::string::npos);
    EXPECT_NE(xml.find("<c:f>Sheet1!$AB$1</c:f>"), std::string::npos);
    EXPECT_NE(xml.find("<c:v>a&lt;b</c:v>"), std::string::npos);
    EXPECT_NE(xml.find("<c:formatCode>0.0%</c:formatCode>"), std::string::npos);
    EXPECT_NE(xml.find("<c:pt idx=\"2\"><c:v>3</c:v></c:pt>"), std::string::npos);
    std::size_t const val = xml.find("<c:val>");
    std::string const firstValues = xml.substr(val, xml.find("</c:val>", val) - val);
    EXPECT_EQ(firstValues.find("<c:pt idx=\"1\">"), std::string::npos) << "a gap is no cached point";
    EXPECT_EQ(xml.find("NaN"), std::string::npos);
    EXPECT_NE(xml.find("<c:externalData r:id=\"rId1\">"), std::string::npos);

    std::string const workbook = ppt::chartWorkbook(*chart.chartImpl());
    ASSERT_GT(workbook.size(), 4u);
    EXPECT_EQ(workbook.substr(0, 2), "PK");
}

}  // namespace
}  // namespace test
}  // namespace deckforge
