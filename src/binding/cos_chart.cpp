#include <cmath>

#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "nodes/chart.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {

ChartImpl* chartOf(PPTObject const& self) {
    return Chart(self.getImpl()).chartImpl();
}

bool isText(hvArray const& a) {
    return a.classID() == hvClassID::Char && a.rows() <= 1;
}

bool isNumberArray(Value const& value) {
    return value.isArray() && value.array().isNumeric();
}

// A real matrix, one vector per column.
std::vector<std::vector<double>> matrixColumns(Value const& value) {
    if (!isNumberArray(value)) raise<ppt_error::invalidChartValues>();
    hvArray const& a = value.array();
    std::vector<std::vector<double>> columns(a.cols(), std::vector<double>(a.rows()));
    for (std::size_t c = 0; c < a.cols(); ++c)
        for (std::size_t r = 0; r < a.rows(); ++r) columns[c][r] = a.number(c * a.rows() + r);
    return columns;
}

// A struct array (a dataframe reaches us as one): the first text field
// gives the categories, each numeric field a series named after it.
// Fields of other kinds are passed over.
struct FromStruct {
    std::vector<std::vector<double>> columns;
    std::vector<u16string> names;
    std::vector<u16string> categories;
};

FromStruct structColumns(hvArray const& s) {
    FromStruct result;
    bool haveCategories = false;
    std::size_t const n = s.numel();
    for (std::string const& name : s.fieldNames()) {
        bool allText = n > 0, allNumbers = n > 0;
        for (std::size_t i = 0; i < n; ++i) {
            hvArray const* field = s.field(i, name);
            allText = allText && field && isText(*field);
            allNumbers = allNumbers && field && field->isNumeric() && field->numel() == 1;
        }
        if (allText && !haveCategories) {
            haveCategories = true;
            for (std::size_t i = 0; i < n; ++i) result.categories.push_back(s.field(i, name)->chars());
        } else if (allNumbers) {
            std::vector<double> column(n);
            for (std::size_t i = 0; i < n; ++i) column[i] = s.field(i, name)->number(0);
            result.columns.push_back(std::move(column));
            result.names.push_back(toString(name));
        }
    }
    if (result.columns.empty()) raise<ppt_error::invalidChartValues>();
    return result;
}

std::vector<u16string> textList(Value const& value) {
    std::vector<u16string> texts;
    if (!value.isCell()) {
        texts.push_back(toText(value));
        return texts;
    }
    for (Value const& element : value.elements()) texts.push_back(toText(element));
    return texts;
}

void setCategories(ChartImpl* chart, Value const& value) {
    if (isNumberArray(value)) {
        std::vector<double> numbers;
        for (std::size_t i = 0; i < value.numel(); ++i) numbers.push_back(value.array().number(i));
        chart->setCategories(numbers);
        return;
    }
    chart->setCategories(textList(value));
}

Chart makeChart(u16string const& typeName, Value const& values) {
    ChartType const type = ChartImpl::parseType(typeName);
    if (values.isArray() && values.array().classID() == hvClassID::Struct) {
        FromStruct from = structColumns(values.array());
        std::vector<u16string> names = from.names;
        if (type == ChartType::Scatter && !names.empty()) names.erase(names.begin());
        Chart chart(type, std::move(from.columns));
        chart.chartImpl()->setSeriesNames(names);
        if (!from.categories.empty() && type != ChartType::Scatter)
            chart.chartImpl()->setCategories(from.categories);
        return chart;
    }
    return Chart(type, matrixColumns(values));
}

Value numberRow(std::vector<double> const& numbers) {
    hvArray row(hvClassID::Double, 1, numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) row.setNumber(i, numbers[i]);
    return Value(row);
}

Value logicalRow(std::vector<bool> const& flags) {
    hvArray row(hvClassID::Logical, 1, flags.size());
    for (std::size_t i = 0; i < flags.size(); ++i) row.setNumber(i, flags[i] ? 1.0 : 0.0);
    return Value(row);
}

template <void (ChartImpl::*Set)(u16string const&)>
Setter chartText() {
    return [](PPTObject const& self, Value const& value) { (chartOf(self)->*Set)(toText(value)); };
}

template <u16string const& (ChartImpl::*Get)() const>
Getter chartTextGetter() {
    return [](PPTObject const& self) { return toScript((chartOf(self)->*Get)()); };
}

}  // namespace

class CosChart : public CosPPTObjectClassInfo {
public:
    CosChart() : CosPPTObjectClassInfo("Chart") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = [tempname() '.pptx'];\n"
            "p = deckforge.ppt.Presentation(f);\n"
            "s = p.add('Title and Content');\n"
            "c = deckforge.ppt.Chart('column', [3 5; 4 6], {'2024', '2025'});\n"
            "c.SeriesNames = {'North', 'South'};\n"
            "c.Title = 'Sales';\n"
            "s.replace('Content', c);\n"
            "p.close();\n"
            "delete(f);");
        cls.setHelp(
            "A native chart, editable in PowerPoint: its data travel in an embedded workbook.\n"
            "Types: column, stackedColumn, percentColumn, bar, stackedBar, line, lineMarkers,\n"
            "area, stackedArea, pie, doughnut, scatter. Values are a numeric matrix, one column\n"
            "per series and one row per category (NaN is a gap); a scatter chart's first column\n"
            "is x. A struct array or dataframe gives its first text field as the categories and\n"
            "each numeric field as a series named after it. Colours default to the theme's accents.\n"
            "  c = deckforge.ppt.Chart('column', [3 5; 4 6], {'2024', '2025'});\n"
            "  c.SeriesNames = {'North', 'South'};  c.Title = 'Sales';\n"
            "  c.SecondaryAxis = [false true];      % the second series as a line on a right axis\n"
            "  slide.add(c);  slide.replace('Content', c);  placeholder.replace(c);");
        cls.addSuperclass("deckforge.ppt.Shape");
        cls.addConstructor(
            {words::String, words::Any}, [](Call& c) { return makeChart(c.text(0), c.raw(1)); },
            "Chart(type, values): values a numeric matrix, a struct array or a dataframe");
        cls.addConstructor(
            {words::String, words::Any, words::Any},
            [](Call& c) {
                Chart chart = makeChart(c.text(0), c.raw(1));
                setCategories(chart.chartImpl(), c.raw(2));
                return chart;
            },
            "Chart(type, values, categories): categories a cellstr or numbers, one per row");
        cls.addProperty(
            "Type", "text",
            [](PPTObject const& self) { return toScript(ChartImpl::typeName(chartOf(self)->getType())); },
            nullptr, "The chart type.");
        cls.addProperty("Title", "text", chartTextGetter<&ChartImpl::getTitle>(),
                        chartText<&ChartImpl::setTitle>(), "The chart's title; '' for none.");
        cls.addProperty("XTitle", "text", chartTextGetter<&ChartImpl::getXTitle>(),
                        chartText<&ChartImpl::setXTitle>(), "The title of the horizontal axis.");
        cls.addProperty("YTitle", "text", chartTextGetter<&ChartImpl::getYTitle>(),
                        chartText<&ChartImpl::setYTitle>(), "The title of the vertical axis.");
        cls.addProperty("NumberFormat", "text", chartTextGetter<&ChartImpl::getNumberFormat>(),
                        chartText<&ChartImpl::setNumberFormat>(),
                        "An Excel format code for the values, as '0.0%' or '#,##0'; '' for General.");
        cls.addProperty("Legend", "text", chartTextGetter<&ChartImpl::getLegend>(),
                        chartText<&ChartImpl::setLegend>(),
                        "Where the legend stands: right, bottom, top, left or none.");
        cls.addProperty(
            "SeriesNames", "cell of text",
            [](PPTObject const& self) { return toScript(chartOf(self)->getSeriesNames()); },
            [](PPTObject const& self, Value const& value) { chartOf(self)->setSeriesNames(textList(value)); },
            "One name per series (a cellstr); 'Series 1', 'Series 2'... by default.");
        cls.addProperty(
            "Categories", "cell of text or numbers",
            [](PPTObject const& self) {
                ChartImpl* chart = chartOf(self);
                return chart->hasNumericCategories() ? numberRow(chart->getCategoryNumbers())
                                                     : toScript(chart->getCategoryText());
            },
            [](PPTObject const& self, Value const& value) { setCategories(chartOf(self), value); },
            "One category per row of values: a cellstr or numbers; 1, 2, ... by default.");
        cls.addProperty(
            "SecondaryAxis", "logical vector",
            [](PPTObject const& self) { return logicalRow(chartOf(self)->getSecondaryAxis()); },
            [](PPTObject const& self, Value const& value) {
                if (!value.isArray() ||
                    !(value.array().isNumeric() || value.array().classID() == hvClassID::Logical))
                    raise<ppt_error::invalidPropertyValue>(value.className());
                std::vector<bool> flags;
                for (std::size_t i = 0; i < value.numel(); ++i)
                    flags.push_back(value.array().number(i) != 0.0);
                chartOf(self)->setSecondaryAxis(flags);
            },
            "One logical per series: those series are drawn as lines on a second value axis at the right, "
            "the others keep the chart's type (a combo chart). Column, line and area types.");
        cls.addProperty(
            "Colors", "cell of text",
            [](PPTObject const& self) { return toScript(chartOf(self)->getColorNames()); },
            [](PPTObject const& self, Value const& value) {
                chartOf(self)->setColors(value.isEmpty() ? std::vector<u16string>() : textList(value));
            },
            "One colour per series (per slice for pie and doughnut), as FontColor takes them: names or "
            "'#RRGGBB'; {} for the theme's accents.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosChart() {
    return std::make_unique<CosChart>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
