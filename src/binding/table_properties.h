// The style properties that the table classes share: a table, its rows and
// their entries offer the font of their runs (Font, ComplexScriptFont,
// FontColor, FontSize), which the writer hands down to the paragraphs.
#pragma once

#include "binding/style_properties.h"
#include "nodes/table_style.h"

namespace deckforge {
namespace ppt {
namespace mi {

template <class T>
void addFontProperties(ClassDescription& cls) {
    cls.addProperty("Font", "text or empty", style::value<T>(&T::getFontFamily, &FontFamily::getFont),
                    style::text<T>(&T::setFont, &T::unsetFont), "The Latin font of the text.");
    cls.addProperty("ComplexScriptFont", "text or empty",
                    style::value<T>(&T::getFontFamily, &FontFamily::getComplexScriptFont),
                    style::text<T>(&T::setComplexScriptFont, &T::unsetComplexScriptFont),
                    "The font of complex scripts.");
    cls.addProperty("FontColor", "text or empty", style::value<T>(&T::getFontColor, &FontColor::getValue),
                    style::text<T>(&T::setFontColor, &T::unsetFontColor),
                    "A colour name or \"#\" and six hex digits.");
    cls.addProperty("FontSize", "text or empty", style::value<T>(&T::getFontSize, &FontSize::getValue),
                    style::text<T>(&T::setFontSize, &T::unsetFontSize), "A length such as \"12pt\".");
}

// BackgroundColor alone, for rows.
template <class T>
void addBackgroundColorProperty(ClassDescription& cls) {
    cls.addProperty("BackgroundColor", "text or empty",
                    style::value<T>(&T::getBackgroundColor, &BackgroundColor::getValue),
                    style::text<T>(&T::setBackgroundColor, &T::unsetBackgroundColor),
                    "The fill: a colour name or \"#\" and six hex digits.");
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
