// The format properties of node classes (Bold, FontColor, HAlign, ...),
// registered in one call per group so that every node class reads and
// writes them the same way. Reading gives the format's value, [] when the
// node has no format of that kind; writing [] unsets it; a value the format
// refuses raises its error and leaves the node as it was.
//
// A node class T (Text, Paragraph, BaseTextBox, ...) needs a constructor
// from PPTObjectImpl* and the typed style operations of element_style.h.
#pragma once

#include "binding/accessors.h"
#include "formats/element_style.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace style {

// [] unsets; an empty character array is a text like any other.
inline bool unsets(Value const& value) {
    return value.isEmpty() && !(value.isArray() && value.array().classID() == hvClassID::Char);
}

// T is the node class; the operations may be those of its style mixin.
template <class T, class M, class F, class B, class R>
Getter value(boost::shared_ptr<F> (M::*get)() const, R (B::*read)() const) {
    return [get, read](PPTObject const& self) {
        boost::shared_ptr<F> format = (T(self.getImpl()).*get)();
        return format ? toScript((*format.*read)()) : Value();
    };
}

template <class T, class M>
Setter logical(void (M::*set)(bool), void (M::*unset)()) {
    return [set, unset](PPTObject const& self, Value const& value) {
        T target(self.getImpl());
        if (unsets(value))
            (target.*unset)();
        else
            (target.*set)(toLogical(value));
    };
}

template <class T, class M>
Setter text(void (M::*set)(u16string const&), void (M::*unset)()) {
    return [set, unset](PPTObject const& self, Value const& value) {
        T target(self.getImpl());
        if (unsets(value))
            (target.*unset)();
        else
            (target.*set)(toText(value));
    };
}

}  // namespace style

// Font, ComplexScriptFont, FontColor, FontSize, in this order: all that a
// table and its rows offer of a run's properties.
template <class T>
void addFontProperties(ClassDescription& cls) {
    cls.addProperty("Font", "text or empty", style::value<T>(&T::getFontFamily, &FontFamily::getFont),
                    style::text<T>(&T::setFont, &T::unsetFont), "The Latin font.");
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

// Bold, Font, ComplexScriptFont, FontColor, FontSize, Italic, Strike,
// Subscript, Superscript, Underline, in this order.
template <class T>
void addCharacterStyleProperties(ClassDescription& cls) {
    cls.addProperty("Bold", "logical or empty", style::value<T>(&T::getBold, &Bold::getValue),
                    style::logical<T>(&T::setBold, &T::unsetBold),
                    "Bold characters; [] to take the parent's.");
    addFontProperties<T>(cls);
    cls.addProperty("Italic", "logical or empty", style::value<T>(&T::getItalic, &Italic::getValue),
                    style::logical<T>(&T::setItalic, &T::unsetItalic));
    cls.addProperty("Strike", "text or empty", style::value<T>(&T::getStrike, &Strike::getValue),
                    style::text<T>(&T::setStrikeStyle, &T::unsetStrike), "none, single or double.");
    cls.addProperty("Subscript", "logical or empty", style::value<T>(&T::getSubscript, &Subscript::getValue),
                    style::logical<T>(&T::setSubscript, &T::unsetSubscript));
    cls.addProperty("Superscript", "logical or empty",
                    style::value<T>(&T::getSuperscript, &Superscript::getValue),
                    style::logical<T>(&T::setSuperscript, &T::unsetSuperscript));
    cls.addProperty("Underline", "text or empty", style::value<T>(&T::getUnderline, &Underline::getValue),
                    style::text<T>(&T::setUnderlineStyle, &T::unsetUnderline), "single, double, wavy, ...");
}

template <class T>
void addHAlignProperty(ClassDescription& cls) {
    cls.addProperty("HAlign", "text or empty", style::value<T>(&T::getHAlign, &HAlign::getValue),
                    style::text<T>(&T::setHAlign, &T::unsetHAlign),
                    "left, right, center, justified, justifiedLow, distributed or thaiDistributed.");
}

// BackgroundColor alone: the fill of a box, or of a row's cells.
template <class T>
void addBackgroundColorProperty(ClassDescription& cls) {
    cls.addProperty("BackgroundColor", "text or empty",
                    style::value<T>(&T::getBackgroundColor, &BackgroundColor::getValue),
                    style::text<T>(&T::setBackgroundColor, &T::unsetBackgroundColor),
                    "A colour name or \"#\" and six hex digits.");
}

// BackgroundColor and VAlign, in this order.
template <class T>
void addBoxStyleProperties(ClassDescription& cls) {
    addBackgroundColorProperty<T>(cls);
    cls.addProperty("VAlign", "text or empty", style::value<T>(&T::getVAlign, &VAlign::getValue),
                    style::text<T>(&T::setVAlign, &T::unsetVAlign),
                    "top, middle, bottom, topCentered, middleCentered or bottomCentered.");
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
