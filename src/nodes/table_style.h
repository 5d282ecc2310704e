// The typed style properties of the table classes that the general mixins of
// formats/element_style.h don't cover as a whole: a table and its rows offer
// only the font properties of a run, and a row only the fill of a cell.
// Everything else of theirs goes through the Style list.
#pragma once

#include "formats/element_style.h"

namespace deckforge {
namespace ppt {

// Font, ComplexScriptFont, FontColor and FontSize, by the rules of CharacterStyle.
template <class Derived>
class FontStyle {
public:
    boost::shared_ptr<FontFamily> getFontFamily() const {
        return ElementStyle::get<FontFamily>(el(), FormatTypeFontFamily);
    }
    void setFont(u16string const& font) { ElementStyle::setFont(el(), font); }
    void setComplexScriptFont(u16string const& font) { ElementStyle::setComplexScriptFont(el(), font); }
    void unsetFont() { ElementStyle::unsetFont(el()); }
    void unsetComplexScriptFont() { ElementStyle::unsetComplexScriptFont(el()); }

    boost::shared_ptr<FontColor> getFontColor() const {
        return ElementStyle::get<FontColor>(el(), FormatTypeFontColor);
    }
    void setFontColor(u16string const& value) { ElementStyle::set<FontColor>(el(), value); }
    void unsetFontColor() { el().unsetFormat(FormatTypeFontColor); }

    boost::shared_ptr<FontSize> getFontSize() const {
        return ElementStyle::get<FontSize>(el(), FormatTypeFontSize);
    }
    void setFontSize(u16string const& value) { ElementStyle::set<FontSize>(el(), value); }
    void unsetFontSize() { el().unsetFormat(FormatTypeFontSize); }

private:
    ElementImpl& el() const { return *static_cast<Derived const*>(this)->elementImpl(); }
};

// The fill of the cells of a row.
template <class Derived>
class FillStyle {
public:
    boost::shared_ptr<BackgroundColor> getBackgroundColor() const {
        return ElementStyle::get<BackgroundColor>(el(), FormatTypeBackgroundColor);
    }
    void setBackgroundColor(u16string const& value) { ElementStyle::set<BackgroundColor>(el(), value); }
    void unsetBackgroundColor() { el().unsetFormat(FormatTypeBackgroundColor); }

private:
    ElementImpl& el() const { return *static_cast<Derived const*>(this)->elementImpl(); }
};

}  // namespace ppt
}  // namespace deckforge
