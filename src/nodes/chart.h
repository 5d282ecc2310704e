// A native chart: the numbers and their structure, which the chart writer
// turns into a chart part, an embedded workbook and the graphic frame that
// shows them. Values are kept one vector per column as the caller gave
// them; a scatter chart's first column is x. Everything is checked when it
// is set, so a chart that exists always writes.
#pragma once

#include <cstddef>
#include <vector>

#include "nodes/shape.h"

namespace deckforge {
namespace ppt {

class Chart;

enum class ChartType {
    Column,
    StackedColumn,
    PercentColumn,
    Bar,
    StackedBar,
    Line,
    LineMarkers,
    Area,
    StackedArea,
    Pie,
    Doughnut,
    Scatter
};

class ChartImpl : public ShapeImpl {
public:
    // `columns` as the caller gave them, each of the same length; see
    // Chart::Chart for what is refused.
    ChartImpl(ChartType type, std::vector<std::vector<double>> columns);
    ChartImpl(ChartImpl const& other);
    ~ChartImpl() override;

    // The columns, if they make a chart of the type; see Chart::Chart.
    static std::vector<std::vector<double>> checked(ChartType type, std::vector<std::vector<double>> columns);

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;

    // The type by its script name ("stackedColumn"), exactly;
    // invalidChartType for any other text.
    static ChartType parseType(u16string const& name);
    static u16string typeName(ChartType type);
    ChartType getType() const { return mType; }
    bool isPieLike() const { return mType == ChartType::Pie || mType == ChartType::Doughnut; }
    bool isScatter() const { return mType == ChartType::Scatter; }
    bool isHorizontal() const { return mType == ChartType::Bar || mType == ChartType::StackedBar; }

    std::size_t getSeriesCount() const { return mColumns.size() - (isScatter() ? 1 : 0); }
    std::size_t getPointCount() const { return mColumns.front().size(); }
    // A series' values; NaN and infinities are gaps.
    std::vector<double> const& getSeries(std::size_t index) const {
        return mColumns[index + (isScatter() ? 1 : 0)];
    }
    // A scatter chart's x values; empty for the other types.
    std::vector<double> const& getXValues() const;

    // Text categories, or numbers (1, 2, ... until set): one per row.
    // chartPropertySize for another count.
    bool hasNumericCategories() const { return mCategoryText.empty(); }
    std::vector<u16string> const& getCategoryText() const { return mCategoryText; }
    std::vector<double> const& getCategoryNumbers() const { return mCategoryNumbers; }
    void setCategories(std::vector<u16string> const& categories);
    void setCategories(std::vector<double> const& categories);

    // "Series 1", "Series 2"... until set; one per series.
    std::vector<u16string> const& getSeriesNames() const { return mSeriesNames; }
    void setSeriesNames(std::vector<u16string> const& names);

    // Per series: drawn as a line on a second value axis. Only the types
    // with a category and a value axis take it (chartHasNoSecondaryAxis).
    std::vector<bool> const& getSecondaryAxis() const { return mSecondaryAxis; }
    void setSecondaryAxis(std::vector<bool> const& secondary);
    bool hasSecondaryAxis() const;

    // One colour per series (per slice for pie and doughnut), in the forms a
    // FontColor takes; kept as six hex digits. Empty: the theme's accents.
    std::vector<u16string> const& getColors() const { return mColors; }
    std::vector<u16string> const& getColorNames() const { return mColorNames; }
    void setColors(std::vector<u16string> const& colors);
    // How many colours the chart takes: slices for pie and doughnut, series
    // otherwise.
    std::size_t getColorCount() const { return isPieLike() ? getPointCount() : getSeriesCount(); }

    // right, bottom, top, left or none; invalidPropertyValue otherwise.
    u16string const& getLegend() const { return mLegend; }
    void setLegend(u16string const& legend);

    u16string const& getTitle() const { return mTitle; }
    void setTitle(u16string const& title) { mTitle = title; }
    u16string const& getXTitle() const { return mXTitle; }
    void setXTitle(u16string const& title) { mXTitle = title; }
    u16string const& getYTitle() const { return mYTitle; }
    void setYTitle(u16string const& title) { mYTitle = title; }
    // An Excel format code for the values; empty for "General".
    u16string const& getNumberFormat() const { return mNumberFormat; }
    void setNumberFormat(u16string const& format) { mNumberFormat = format; }

private:
    ChartType mType;
    std::vector<std::vector<double>> mColumns;
    std::vector<u16string> mCategoryText;
    std::vector<double> mCategoryNumbers;
    std::vector<u16string> mSeriesNames;
    std::vector<bool> mSecondaryAxis;
    std::vector<u16string> mColors;
    std::vector<u16string> mColorNames;
    u16string mLegend = u"right";
    u16string mTitle;
    u16string mXTitle;
    u16string mYTitle;
    u16string mNumberFormat;
};

class Chart : public Shape {
public:
    // invalidChartValues without a row or a series; chartNeedsOneSeries for
    // pie and doughnut with more than one column; chartNeedsXColumn for a
    // scatter chart of one column.
    Chart(ChartType type, std::vector<std::vector<double>> columns);
    explicit Chart(PPTObjectImpl* impl) : Shape(impl) {}

    static boost::shared_ptr<Chart> cast(PPTNodePtr const& node) { return castNode<Chart>(node); }

    ChartImpl* chartImpl() const { return getImplAs<ChartImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
