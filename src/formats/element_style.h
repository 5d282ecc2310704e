// The typed style properties of elements (Bold, FontColor, HAlign, ...), all
// working on the element's Formats:
// - get gives a new handle over the element's format object, so a change
//   through it reaches the element; empty when the element has none.
// - set of a whole value builds a fresh format and puts it in place of the
//   old one, which a handle got earlier still refers to.
// - setFont, setComplexScriptFont, setStrikeStyle and setUnderlineStyle copy
//   the element's format first and change the copy, so a format object that
//   script code shares between elements isn't disturbed.
// - unset removes the format; unsetFont and unsetComplexScriptFont empty
//   their half in place and remove the format once both halves are empty.
// ElementStyle holds the rules; the mixins give them to the handle classes.
#pragma once

#include <boost/shared_ptr.hpp>

#include "engine/ppt_node.h"
#include "formats/alignment.h"
#include "formats/character_formats.h"
#include "formats/color.h"
#include "formats/dimension_formats.h"

namespace deckforge {
namespace ppt {

class ElementStyle {
public:
    // A new handle of the concrete class over the element's format of `type`.
    template <class F>
    static boost::shared_ptr<F> get(ElementImpl const& element, FormatType type) {
        boost::shared_ptr<Format> format = element.getFormat(type);
        if (!format || !format->formatImpl()) return {};
        return boost::dynamic_pointer_cast<F>(format->formatImpl()->makeInterface());
    }
    template <class F, class V>
    static void set(ElementImpl& element, V const& value) {
        element.appendFormat(boost::make_shared<F>(value));
    }

    static void setFont(ElementImpl& element, u16string const& font);
    static void setComplexScriptFont(ElementImpl& element, u16string const& font);
    static void unsetFont(ElementImpl& element);
    static void unsetComplexScriptFont(ElementImpl& element);
    static void setStrikeStyle(ElementImpl& element, u16string const& style);
    static void setUnderlineStyle(ElementImpl& element, u16string const& style);
};

// Font, ComplexScriptFont, FontColor and FontSize: all that a table and its
// rows offer of a run's properties, and part of CharacterStyle.
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

// BackgroundColor: the fill of a box, or of the cells of a row.
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

// The character properties of Text, Paragraph and the boxes.
template <class Derived>
class CharacterStyle : public FontStyle<Derived> {
public:
    boost::shared_ptr<Bold> getBold() const { return ElementStyle::get<Bold>(el(), FormatTypeBold); }
    void setBold(bool value) { ElementStyle::set<Bold>(el(), value); }
    void unsetBold() { el().unsetFormat(FormatTypeBold); }

    boost::shared_ptr<Italic> getItalic() const { return ElementStyle::get<Italic>(el(), FormatTypeItalic); }
    void setItalic(bool value) { ElementStyle::set<Italic>(el(), value); }
    void unsetItalic() { el().unsetFormat(FormatTypeItalic); }

    boost::shared_ptr<Subscript> getSubscript() const {
        return ElementStyle::get<Subscript>(el(), FormatTypeSubscript);
    }
    void setSubscript(bool value) { ElementStyle::set<Subscript>(el(), value); }
    void unsetSubscript() { el().unsetFormat(FormatTypeSubscript); }

    boost::shared_ptr<Superscript> getSuperscript() const {
        return ElementStyle::get<Superscript>(el(), FormatTypeSuperscript);
    }
    void setSuperscript(bool value) { ElementStyle::set<Superscript>(el(), value); }
    void unsetSuperscript() { el().unsetFormat(FormatTypeSuperscript); }

    boost::shared_ptr<Strike> getStrike() const { return ElementStyle::get<Strike>(el(), FormatTypeStrike); }
    void setStrikeStyle(u16string const& style) { ElementStyle::setStrikeStyle(el(), style); }
    void unsetStrike() { el().unsetFormat(FormatTypeStrike); }

    boost::shared_ptr<Underline> getUnderline() const {
        return ElementStyle::get<Underline>(el(), FormatTypeUnderline);
    }
    void setUnderlineStyle(u16string const& style) { ElementStyle::setUnderlineStyle(el(), style); }
    void unsetUnderline() { el().unsetFormat(FormatTypeUnderline); }

private:
    ElementImpl& el() const { return *static_cast<Derived const*>(this)->elementImpl(); }
};

// Horizontal alignment lives on the paragraph.
template <class Derived>
class ParagraphStyle {
public:
    boost::shared_ptr<HAlign> getHAlign() const { return ElementStyle::get<HAlign>(el(), FormatTypeHAlign); }
    void setHAlign(u16string const& value) { ElementStyle::set<HAlign>(el(), value); }
    void unsetHAlign() { el().unsetFormat(FormatTypeHAlign); }

private:
    ElementImpl& el() const { return *static_cast<Derived const*>(this)->elementImpl(); }
};

// The fill and the anchor of a box's text.
template <class Derived>
class BoxStyle : public FillStyle<Derived> {
public:
    boost::shared_ptr<VAlign> getVAlign() const { return ElementStyle::get<VAlign>(el(), FormatTypeVAlign); }
    void setVAlign(u16string const& value) { ElementStyle::set<VAlign>(el(), value); }
    void unsetVAlign() { el().unsetFormat(FormatTypeVAlign); }

private:
    ElementImpl& el() const { return *static_cast<Derived const*>(this)->elementImpl(); }
};

}  // namespace ppt
}  // namespace deckforge
