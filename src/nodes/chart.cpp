#include "nodes/chart.h"

#include <algorithm>
#include <utility>

#include "formats/color.h"
#include "platform/msg_ids.h"
#include "writers/ppt_writer.h"

namespace deckforge {
namespace ppt {

namespace {

struct TypeName {
    ChartType type;
    char16_t const* name;
};

TypeName const kTypeNames[] = {{ChartType::Column, u"column"},
                               {ChartType::StackedColumn, u"stackedColumn"},
                               {ChartType::PercentColumn, u"percentColumn"},
                               {ChartType::Bar, u"bar"},
                               {ChartType::StackedBar, u"stackedBar"},
                               {ChartType::Line, u"line"},
                               {ChartType::LineMarkers, u"lineMarkers"},
                               {ChartType::Area, u"area"},
                               {ChartType::StackedArea, u"stackedArea"},
                               {ChartType::Pie, u"pie"},
                               {ChartType::Doughnut, u"doughnut"},
                               {ChartType::Scatter, u"scatter"}};

u16string countText(std::size_t count) {
    return num2str(static_cast<unsigned long>(count));
}

}  // namespace

std::vector<std::vector<double>> ChartImpl::checked(ChartType type,
                                                    std::vector<std::vector<double>> columns) {
    std::size_t const rows = columns.empty() ? 0 : columns.front().size();
    bool const ragged = std::any_of(columns.begin(), columns.end(),
                                    [rows](std::vector<double> const& c) { return c.size() != rows; });
    if (rows == 0 || ragged) deckforge::raise<ppt_error::invalidChartValues>();
    if (type == ChartType::Scatter && columns.size() < 2) deckforge::raise<ppt_error::chartNeedsXColumn>();
    if ((type == ChartType::Pie || type == ChartType::Doughnut) && columns.size() != 1)
        deckforge::raise<ppt_error::chartNeedsOneSeries>(typeName(type), countText(columns.size()));
    return columns;
}

ChartImpl::ChartImpl(ChartType type, std::vector<std::vector<double>> columns)
    : mType(type), mColumns(checked(type, std::move(columns))) {
    for (std::size_t i = 0; i < getPointCount(); ++i) mCategoryNumbers.push_back(static_cast<double>(i + 1));
    for (std::size_t i = 0; i < getSeriesCount(); ++i) mSeriesNames.push_back(u"Series " + countText(i + 1));
    mSecondaryAxis.assign(getSeriesCount(), false);
    reportCreated();
}

ChartImpl::ChartImpl(ChartImpl const& other)
    : ShapeImpl(other),
      mType(other.mType),
      mColumns(other.mColumns),
      mCategoryText(other.mCategoryText),
      mCategoryNumbers(other.mCategoryNumbers),
      mSeriesNames(other.mSeriesNames),
      mSecondaryAxis(other.mSecondaryAxis),
      mColors(other.mColors),
      mColorNames(other.mColorNames),
      mLegend(other.mLegend),
      mTitle(other.mTitle),
      mXTitle(other.mXTitle),
      mYTitle(other.mYTitle),
      mNumberFormat(other.mNumberFormat) {
    reportCreated();
}

ChartImpl::~ChartImpl() {
    reportDestroyed();
}

char const* ChartImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Chart";
}

void ChartImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    writer->writeChart(this, parent);
}

PPTNodePtr ChartImpl::makeInterface() {
    return boost::make_shared<Chart>(this);
}

PPTNodePtr ChartImpl::clone() const {
    return (new ChartImpl(*this))->makeInterface();
}

NodeType ChartImpl::getNodeType() const {
    return NodeType::Chart;
}

ChartType ChartImpl::parseType(u16string const& name) {
    for (auto const& known : kTypeNames)
        if (name == known.name) return known.type;
    deckforge::raise<ppt_error::invalidChartType>(name);
}

u16string ChartImpl::typeName(ChartType type) {
    for (auto const& known : kTypeNames)
        if (type == known.type) return known.name;
    return u16string();
}

std::vector<double> const& ChartImpl::getXValues() const {
    static std::vector<double> const none;
    return isScatter() ? mColumns.front() : none;
}

void ChartImpl::setCategories(std::vector<u16string> const& categories) {
    if (categories.size() != getPointCount())
        deckforge::raise<ppt_error::chartPropertySize>(u"Categories", u"row of values",
                                                       countText(getPointCount()));
    mCategoryText = categories;
    mCategoryNumbers.clear();
}

void ChartImpl::setCategories(std::vector<double> const& categories) {
    if (categories.size() != getPointCount())
        deckforge::raise<ppt_error::chartPropertySize>(u"Categories", u"row of values",
                                                       countText(getPointCount()));
    mCategoryNumbers = categories;
    mCategoryText.clear();
}

void ChartImpl::setSeriesNames(std::vector<u16string> const& names) {
    if (names.size() != getSeriesCount())
        deckforge::raise<ppt_error::chartPropertySize>(u"SeriesNames", u"series",
                                                       countText(getSeriesCount()));
    mSeriesNames = names;
}

void ChartImpl::setSecondaryAxis(std::vector<bool> const& secondary) {
    if (secondary.size() != getSeriesCount())
        deckforge::raise<ppt_error::chartPropertySize>(u"SecondaryAxis", u"series",
                                                       countText(getSeriesCount()));
    bool const any = std::find(secondary.begin(), secondary.end(), true) != secondary.end();
    if (any && (isPieLike() || isScatter() || isHorizontal()))
        deckforge::raise<ppt_error::chartHasNoSecondaryAxis>(typeName(mType));
    mSecondaryAxis = secondary;
}

bool ChartImpl::hasSecondaryAxis() const {
    return std::find(mSecondaryAxis.begin(), mSecondaryAxis.end(), true) != mSecondaryAxis.end();
}

void ChartImpl::setColors(std::vector<u16string> const& colors) {
    if (!colors.empty() && colors.size() != getColorCount())
        deckforge::raise<ppt_error::chartPropertySize>(u"Colors", isPieLike() ? u"slice" : u"series",
                                                       countText(getColorCount()));
    std::vector<u16string> hex, names;
    for (auto const& text : colors) {
        ColorImpl color;
        color.setValue(text);
        hex.push_back(color.getHexValue());
        names.push_back(color.getValue());
    }
    mColors = std::move(hex);
    mColorNames = std::move(names);
}

void ChartImpl::setLegend(u16string const& legend) {
    static char16_t const* const kPlaces[] = {u"right", u"bottom", u"top", u"left", u"none"};
    for (auto const* place : kPlaces)
        if (legend == place) {
            mLegend = legend;
            return;
        }
    deckforge::raise<ppt_error::invalidPropertyValue>(legend);
}

Chart::Chart(ChartType type, std::vector<std::vector<double>> columns)
    : Shape(new ChartImpl(type, ChartImpl::checked(type, std::move(columns)))) {}

}  // namespace ppt
}  // namespace deckforge
