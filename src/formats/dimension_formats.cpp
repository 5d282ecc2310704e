#include "formats/dimension_formats.h"

#include <cmath>

#include <boost/make_shared.hpp>

#include "platform/msg_ids.h"
#include "writers/table_entry_writer.h"
#include "writers/text_writer.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

namespace {
xml::Name const kSz{u"sz"};
// ST_TextFontSize.
std::int32_t const kSmallestSize = 100;
std::int32_t const kLargestSize = 400000;
}  // namespace

BaseDimensionImpl::BaseDimensionImpl(u16string const& value) {
    setValue(value);
}

void BaseDimensionImpl::setValue(u16string const& value) {
    if (!Dimension::isValid(value)) deckforge::raise<ppt_error::invalidPropertyValue>(value);
    Dimension dimension(value);
    check(dimension, value);
    mDimension = dimension;
}

void BaseDimensionImpl::check(Dimension const&, u16string const&) const {}

BaseDimension::BaseDimension() : Format(new BaseDimensionImpl()) {}
BaseDimension::BaseDimension(u16string const& value) : Format(new BaseDimensionImpl(value)) {}

// Not through the base's value constructor: the check of a subclass isn't
// in place while the base is being built.
ColWidthImpl::ColWidthImpl(u16string const& value) {
    setValue(value);
}
char const* ColWidthImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.ColWidth";
}
boost::shared_ptr<Format> ColWidthImpl::makeInterface() {
    return boost::make_shared<ColWidth>(this);
}
FormatType ColWidthImpl::getFormatType() const {
    return FormatTypeColWidth;
}
boost::shared_ptr<Format> ColWidthImpl::clone() const {
    return (new ColWidthImpl(*this))->makeInterface();
}
void ColWidthImpl::applyToTableEntry(TableEntryWriter& writer) const {
    writer.widenColumn(static_cast<double>(getDimension().getEMUNumber()));
}

ColWidth::ColWidth() : BaseDimension(new ColWidthImpl()) {}
ColWidth::ColWidth(u16string const& value) : BaseDimension(new ColWidthImpl(value)) {}
boost::shared_ptr<ColWidth> ColWidth::clone() const {
    return boost::static_pointer_cast<ColWidth>(dimensionImpl()->clone());
}

FontSizeImpl::FontSizeImpl(u16string const& value) {
    setValue(value);
}
char const* FontSizeImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.FontSize";
}
boost::shared_ptr<Format> FontSizeImpl::makeInterface() {
    return boost::make_shared<FontSize>(this);
}
FormatType FontSizeImpl::getFormatType() const {
    return FormatTypeFontSize;
}
boost::shared_ptr<Format> FontSizeImpl::clone() const {
    return (new FontSizeImpl(*this))->makeInterface();
}

std::int32_t FontSizeImpl::hundredthsOfPoint(Dimension const& dimension) {
    double const hundredths = dimension.getPointNumber() * 100.0;
    if (!(std::fabs(hundredths) < 2147483647.0)) return 0;
    return static_cast<std::int32_t>(hundredths);
}

void FontSizeImpl::check(Dimension const& dimension, u16string const& value) const {
    bool const isSize = dimension.getUnits() != Dimension::Percent &&
                        dimension.getUnits() != Dimension::Proportional &&
                        dimension.getUnits() != Dimension::Unknown;
    std::int32_t const size = hundredthsOfPoint(dimension);
    if (!isSize || size < kSmallestSize || size > kLargestSize)
        deckforge::raise<ppt_error::invalidPropertyValue>(value);
}

void FontSizeImpl::applyToText(TextWriter& writer) const {
    writer.setRunAttribute(kSz, plainInteger(hundredthsOfPoint(Dimension(getValue()))).c_str());
}

FontSize::FontSize() : BaseDimension(new FontSizeImpl()) {}
FontSize::FontSize(u16string const& value) : BaseDimension(new FontSizeImpl(value)) {}
boost::shared_ptr<FontSize> FontSize::clone() const {
    return boost::static_pointer_cast<FontSize>(dimensionImpl()->clone());
}

}  // namespace ppt
}  // namespace deckforge
