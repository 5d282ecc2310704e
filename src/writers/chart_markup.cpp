#include "writers/chart_markup.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "nodes/chart.h"
#include "platform/host_services.h"
#include "writers/xml_text.h"

namespace deckforge {
namespace ppt {

namespace {

// Axis ids: the primary category (or x) and value axes, then the hidden
// category axis and the value axis of series on the secondary axis.
char const* const kCatAxis = "50010001";
char const* const kValAxis = "50010002";
char const* const kCatAxis2 = "50010003";
char const* const kValAxis2 = "50010004";

std::string escaped(u16string const& text) {
    std::string out;
    appendEscaped(out, text);
    return out;
}

std::string numberText(double value) {
    char buffer[64];
    auto const result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

bool isGap(double value) {
    return !std::isfinite(value);
}

class ChartXml {
public:
    ChartXml(ChartImpl const& chart) : chart(chart) {}

    std::string build(u16string const& workbookId) {
        out +=
            "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
            "<c:chartSpace xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\" "
            "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" "
            "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\">"
            "<c:date1904 val=\"0\"/><c:roundedCorners val=\"0\"/><c:chart>";
        if (!chart.getTitle().empty()) title(chart.getTitle(), false);
        // Without a title of its own a reader would show a lone series' name.
        out +=
            chart.getTitle().empty() ? "<c:autoTitleDeleted val=\"1\"/>" : "<c:autoTitleDeleted val=\"0\"/>";
        out += "<c:plotArea><c:layout/>";
        plotGroups();
        axes();
        out += "</c:plotArea>";
        legend();
        out += "<c:plotVisOnly val=\"1\"/><c:dispBlanksAs val=\"gap\"/></c:chart>";
        out +=
            "<c:externalData r:id=\"" + escaped(workbookId) + "\"><c:autoUpdate val=\"0\"/></c:externalData>";
        out += "</c:chartSpace>";
        return out;
    }

private:
    std::string formula(std::size_t column, std::size_t firstRow, std::size_t lastRow) const {
        std::string const letters = "$" + columnLetters(column) + "$";
        std::string text = "Sheet1!" + letters + std::to_string(firstRow + 1);
        if (lastRow != firstRow) text += ":" + letters + std::to_string(lastRow + 1);
        return text;
    }

    std::string formatCode() const {
        return chart.getNumberFormat().empty() ? std::string("General") : escaped(chart.getNumberFormat());
    }

    // The accent of the theme by position, lighter on the second round.
    std::string colour(std::size_t index) const {
        if (index < chart.getColors().size())
            return "<a:solidFill><a:srgbClr val=\"" + toUtf8(chart.getColors()[index]) + "\"/></a:solidFill>";
        std::string const accent = "accent" + std::to_string(index % 6 + 1);
        std::size_t const round = (index / 6) % 3;
        if (round == 0) return "<a:solidFill><a:schemeClr val=\"" + accent + "\"/></a:solidFill>";
        return "<a:solidFill><a:schemeClr val=\"" + accent + "\"><a:lumMod val=\"" +
               (round == 1 ? "60000" : "50000") + "\"/>" + (round == 1 ? "<a:lumOff val=\"40000\"/>" : "") +
               "</a:schemeClr></a:solidFill>";
    }

    void richText(u16string const& text, bool vertical) {
        out += "<c:tx><c:rich><a:bodyPr";
        if (vertical) out += " rot=\"-5400000\" vert=\"horz\"";
        out += "/><a:lstStyle/><a:p><a:pPr><a:defRPr/></a:pPr><a:r><a:rPr lang=\"en-US\"/><a:t>" +
               escaped(text) + "</a:t></a:r></a:p></c:rich></c:tx>";
    }

    void title(u16string const& text, bool vertical) {
        out += "<c:title>";
        richText(text, vertical);
        out += "<c:overlay val=\"0\"/></c:title>";
    }

    void seriesName(std::size_t series) {
        out += "<c:tx><c:strRef><c:f>" + formula(series + 1, 0, 0) +
               "</c:f><c:strCache><c:ptCount val=\"1\"/><c:pt idx=\"0\"><c:v>" +
               escaped(chart.getSeriesNames()[series]) + "</c:v></c:pt></c:strCache></c:strRef></c:tx>";
    }

    void numbers(char const* element, std::size_t column, std::vector<double> const& values,
                 bool withFormat) {
        std::size_t const n = values.size();
        out +=
            std::string("<c:") + element + "><c:numRef><c:f>" + formula(column, 1, n) + "</c:f><c:numCache>";
        out += "<c:formatCode>" + (withFormat ? formatCode() : std::string("General")) + "</c:formatCode>";
        out += "<c:ptCount val=\"" + std::to_string(n) + "\"/>";
        for (std::size_t i = 0; i < n; ++i)
            if (!isGap(values[i]))
                out +=
                    "<c:pt idx=\"" + std::to_string(i) + "\"><c:v>" + numberText(values[i]) + "</c:v></c:pt>";
        out += "</c:numCache></c:numRef></c:" + std::string(element) + ">";
    }

    void categories() {
        std::size_t const n = chart.getPointCount();
        if (chart.hasNumericCategories()) {
            numbers("cat", 0, chart.getCategoryNumbers(), false);
            return;
        }
        out += "<c:cat><c:strRef><c:f>" + formula(0, 1, n) + "</c:f><c:strCache><c:ptCount val=\"" +
               std::to_string(n) + "\"/>";
        for (std::size_t i = 0; i < n; ++i)
            out += "<c:pt idx=\"" + std::to_string(i) + "\"><c:v>" + escaped(chart.getCategoryText()[i]) +
                   "</c:v></c:pt>";
        out += "</c:strCache></c:strRef></c:cat>";
    }

    void head(std::size_t series) {
        std::string const index = std::to_string(series);
        out += "<c:ser><c:idx val=\"" + index + "\"/><c:order val=\"" + index + "\"/>";
        seriesName(series);
    }

    void lineSeries(std::size_t series, bool markers) {
        head(series);
        out += "<c:spPr><a:ln w=\"28575\" cap=\"rnd\">" + colour(series) + "<a:round/></a:ln></c:spPr>";
        if (markers)
            out += "<c:marker><c:symbol val=\"circle\"/><c:size val=\"5\"/><c:spPr>" + colour(series) +
                   "<a:ln w=\"9525\">" + colour(series) + "</a:ln></c:spPr></c:marker>";
        else
            out += "<c:marker><c:symbol val=\"none\"/></c:marker>";
        categories();
        numbers("val", series + 1, chart.getSeries(series), true);
        out += "<c:smooth val=\"0\"/></c:ser>";
    }

    void filledSeries(std::size_t series, bool bar) {
        head(series);
        out += "<c:spPr>" + colour(series) + "</c:spPr>";
        if (bar) out += "<c:invertIfNegative val=\"0\"/>";
        categories();
        numbers("val", series + 1, chart.getSeries(series), true);
        out += "</c:ser>";
    }

    void pieSeries() {
        head(0);
        for (std::size_t i = 0; i < chart.getPointCount(); ++i)
            out += "<c:dPt><c:idx val=\"" + std::to_string(i) + "\"/><c:bubble3D val=\"0\"/><c:spPr>" +
                   colour(i) +
                   "<a:ln w=\"12700\"><a:solidFill><a:schemeClr "
                   "val=\"bg1\"/></a:solidFill></a:ln></c:spPr></c:dPt>";
        categories();
        numbers("val", 1, chart.getSeries(0), true);
        out += "</c:ser>";
    }

    void scatterSeries(std::size_t series) {
        head(series);
        out +=
            "<c:spPr><a:ln w=\"19050\"><a:noFill/></a:ln></c:spPr><c:marker><c:symbol val=\"circle\"/>"
            "<c:size val=\"6\"/><c:spPr>" +
            colour(series) + "<a:ln w=\"9525\">" + colour(series) + "</a:ln></c:spPr></c:marker>";
        numbers("xVal", 0, chart.getXValues(), false);
        numbers("yVal", series + 1, chart.getSeries(series), true);
        out += "<c:smooth val=\"0\"/></c:ser>";
    }

    // A second axis needs a first: with every series asked onto it, they
    // all stay on the primary axis, as lines.
    bool combo() const {
        auto const& flags = chart.getSecondaryAxis();
        return chart.hasSecondaryAxis() && std::find(flags.begin(), flags.end(), false) != flags.end();
    }
    bool onSecondaryAxis(std::size_t series) const { return combo() && chart.getSecondaryAxis()[series]; }
    bool allLines() const { return chart.hasSecondaryAxis() && !combo(); }

    // The series of one axis group: the primary ones in the chart's type,
    // or those on the secondary axis as lines.
    void categoryGroup(bool secondary) {
        ChartType const type = chart.getType();
        std::vector<std::size_t> members;
        for (std::size_t i = 0; i < chart.getSeriesCount(); ++i)
            if (onSecondaryAxis(i) == secondary) members.push_back(i);
        if (members.empty()) return;
        std::string const axes = std::string("<c:axId val=\"") + (secondary ? kCatAxis2 : kCatAxis) +
                                 "\"/><c:axId val=\"" + (secondary ? kValAxis2 : kValAxis) + "\"/>";
        bool const line =
            secondary || allLines() || type == ChartType::Line || type == ChartType::LineMarkers;
        if (line) {
            out += "<c:lineChart><c:grouping val=\"standard\"/><c:varyColors val=\"0\"/>";
            for (std::size_t i : members) lineSeries(i, !secondary && type == ChartType::LineMarkers);
            out += "<c:marker val=\"1\"/>" + axes + "</c:lineChart>";
            return;
        }
        if (type == ChartType::Area || type == ChartType::StackedArea) {
            out += std::string("<c:areaChart><c:grouping val=\"") +
                   (type == ChartType::StackedArea ? "stacked" : "standard") +
                   "\"/><c:varyColors val=\"0\"/>";
            for (std::size_t i : members) filledSeries(i, false);
            out += axes + "</c:areaChart>";
            return;
        }
        char const* grouping = "clustered";
        if (type == ChartType::StackedColumn || type == ChartType::StackedBar) grouping = "stacked";
        if (type == ChartType::PercentColumn) grouping = "percentStacked";
        bool const stacked = std::string(grouping) != "clustered";
        out += std::string("<c:barChart><c:barDir val=\"") + (chart.isHorizontal() ? "bar" : "col") +
               "\"/><c:grouping val=\"" + grouping + "\"/><c:varyColors val=\"0\"/>";
        for (std::size_t i : members) filledSeries(i, true);
        out += std::string("<c:gapWidth val=\"150\"/>") + (stacked ? "<c:overlap val=\"100\"/>" : "") + axes +
               "</c:barChart>";
    }

    void plotGroups() {
        switch (chart.getType()) {
            case ChartType::Pie:
                out += "<c:pieChart><c:varyColors val=\"1\"/>";
                pieSeries();
                out += "<c:firstSliceAng val=\"0\"/></c:pieChart>";
                return;
            case ChartType::Doughnut:
                out += "<c:doughnutChart><c:varyColors val=\"1\"/>";
                pieSeries();
                out += "<c:firstSliceAng val=\"0\"/><c:holeSize val=\"50\"/></c:doughnutChart>";
                return;
            case ChartType::Scatter:
                out += "<c:scatterChart><c:scatterStyle val=\"lineMarker\"/><c:varyColors val=\"0\"/>";
                for (std::size_t i = 0; i < chart.getSeriesCount(); ++i) scatterSeries(i);
                out += std::string("<c:axId val=\"") + kCatAxis + "\"/><c:axId val=\"" + kValAxis +
                       "\"/></c:scatterChart>";
                return;
            default:
                categoryGroup(false);
                categoryGroup(true);
        }
    }

    // One axis. `kind` is catAx or valAx; a title goes where the schema
    // wants it, after the gridlines.
    void axis(char const* kind, char const* id, char const* crossId, char const* position, bool deleted,
              bool gridlines, u16string const& titleText, bool valueFormat, char const* crosses) {
        bool const value = std::string(kind) == "valAx";
        out += std::string("<c:") + kind + "><c:axId val=\"" + id +
               "\"/><c:scaling><c:orientation val=\"minMax\"/></c:scaling><c:delete val=\"" +
               (deleted ? "1" : "0") + "\"/><c:axPos val=\"" + position + "\"/>";
        if (gridlines) out += "<c:majorGridlines/>";
        if (!titleText.empty())
            title(titleText, std::string(position) == "l" || std::string(position) == "r");
        if (valueFormat && !chart.getNumberFormat().empty())
            out += "<c:numFmt formatCode=\"" + formatCode() + "\" sourceLinked=\"0\"/>";
        else
            out += "<c:numFmt formatCode=\"General\" sourceLinked=\"1\"/>";
        out += std::string(
                   "<c:majorTickMark val=\"out\"/><c:minorTickMark val=\"none\"/>"
                   "<c:tickLblPos val=\"nextTo\"/><c:crossAx val=\"") +
               crossId + "\"/><c:crosses val=\"" + crosses + "\"/>";
        if (value) {
            bool const midCat = chart.getType() == ChartType::Area ||
                                chart.getType() == ChartType::StackedArea || chart.isScatter();
            out += std::string("<c:crossBetween val=\"") + (midCat ? "midCat" : "between") + "\"/>";
        } else {
            out +=
                "<c:auto val=\"1\"/><c:lblAlgn val=\"ctr\"/><c:lblOffset val=\"100\"/><c:noMultiLvlLbl "
                "val=\"0\"/>";
        }
        out += std::string("</c:") + kind + ">";
    }

    void axes() {
        if (chart.isPieLike()) return;
        if (chart.isScatter()) {
            axis("valAx", kCatAxis, kValAxis, "b", false, false, chart.getXTitle(), false, "autoZero");
            axis("valAx", kValAxis, kCatAxis, "l", false, true, chart.getYTitle(), true, "autoZero");
            return;
        }
        // XTitle names the horizontal axis, which is the value axis of a bar chart.
        bool const horizontal = chart.isHorizontal();
        u16string const& categoryTitle = horizontal ? chart.getYTitle() : chart.getXTitle();
        u16string const& valueTitle = horizontal ? chart.getXTitle() : chart.getYTitle();
        axis("catAx", kCatAxis, kValAxis, horizontal ? "l" : "b", false, false, categoryTitle, false,
             "autoZero");
        axis("valAx", kValAxis, kCatAxis, horizontal ? "b" : "l", false, true, valueTitle, true, "autoZero");
        if (!combo()) return;
        axis("catAx", kCatAxis2, kValAxis2, "b", true, false, u16string(), false, "autoZero");
        axis("valAx", kValAxis2, kCatAxis2, "r", false, false, u16string(), true, "max");
    }

    void legend() {
        u16string const& place = chart.getLegend();
        if (place == u"none") return;
        char const* position = place == u"bottom" ? "b"
                               : place == u"top"  ? "t"
                               : place == u"left" ? "l"
                                                  : "r";
        out +=
            std::string("<c:legend><c:legendPos val=\"") + position + "\"/><c:overlay val=\"0\"/></c:legend>";
    }

    ChartImpl const& chart;
    std::string out;
};

}  // namespace

std::string columnLetters(std::size_t column) {
    std::string letters;
    for (std::size_t n = column + 1; n > 0; n = (n - 1) / 26)
        letters.insert(letters.begin(), static_cast<char>('A' + (n - 1) % 26));
    return letters;
}

std::string chartSpaceXml(ChartImpl const& chart, u16string const& workbookId) {
    return ChartXml(chart).build(workbookId);
}

std::string chartWorkbook(ChartImpl const& chart) {
    char buffer[4096];
    host::utTmpnam(buffer, sizeof buffer);
    std::string const path = std::string(buffer) + ".xlsx";
    lxw_workbook* workbook = workbook_new(path.c_str());
    if (!workbook) return std::string();
    // The same data writes the same bytes when the build asks for it.
    if (char const* epoch = std::getenv("SOURCE_DATE_EPOCH")) {
        lxw_doc_properties properties{};
        properties.created = static_cast<time_t>(std::strtoll(epoch, nullptr, 10));
        workbook_set_properties(workbook, &properties);
    }
    lxw_worksheet* sheet = workbook_add_worksheet(workbook, "Sheet1");
    lxw_format* format = nullptr;
    if (!chart.getNumberFormat().empty()) {
        format = workbook_add_format(workbook);
        format_set_num_format(format, toUtf8(chart.getNumberFormat()).c_str());
    }
    std::size_t const rows = chart.getPointCount();
    for (std::size_t s = 0; s < chart.getSeriesCount(); ++s) {
        auto const column = static_cast<lxw_col_t>(s + 1);
        worksheet_write_string(sheet, 0, column, toUtf8(chart.getSeriesNames()[s]).c_str(), nullptr);
        std::vector<double> const& values = chart.getSeries(s);
        for (std::size_t r = 0; r < rows; ++r)
            if (!isGap(values[r]))
                worksheet_write_number(sheet, static_cast<lxw_row_t>(r + 1), column, values[r], format);
    }
    for (std::size_t r = 0; r < rows; ++r) {
        auto const row = static_cast<lxw_row_t>(r + 1);
        if (chart.isScatter()) {
            if (!isGap(chart.getXValues()[r]))
                worksheet_write_number(sheet, row, 0, chart.getXValues()[r], nullptr);
        } else if (chart.hasNumericCategories()) {
            worksheet_write_number(sheet, row, 0, chart.getCategoryNumbers()[r], nullptr);
        } else {
            worksheet_write_string(sheet, row, 0, toUtf8(chart.getCategoryText()[r]).c_str(), nullptr);
        }
    }
    std::string bytes;
    if (workbook_close(workbook) == LXW_NO_ERROR) {
        std::ifstream in(std::filesystem::u8path(path), std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    std::error_code ignored;
    std::filesystem::remove(std::filesystem::u8path(path), ignored);
    return bytes;
}

}  // namespace ppt
}  // namespace deckforge
