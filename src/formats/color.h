// Colours, given as a name of the colour table or as "#" and six hex digits.
// The text is checked when it is set, so a stored colour always renders; it
// is written as an explicit a:srgbClr, never as a theme colour.
#pragma once

#include "formats/format.h"

namespace deckforge {
namespace ppt {

class ColorImpl : public FormatImpl {
public:
    explicit ColorImpl(u16string const& value = u"black");
    ColorImpl(ColorImpl const& other) = default;

    u16string const& getValue() const { return mValue; }
    // Trimmed and folded to lower case; a text that is no colour raises
    // invalidPropertyValue with the text as given, and the value stays.
    void setValue(u16string const& value);
    // The six upper-case digits for the markup.
    u16string getHexValue() const;

private:
    u16string mValue;
};

class Color : public Format {
public:
    Color();
    explicit Color(u16string const& value);
    explicit Color(FormatImpl* impl) : Format(impl) {}

    u16string const& getValue() const { return colorImpl()->getValue(); }
    void setValue(u16string const& value) { colorImpl()->setValue(value); }

    ColorImpl* colorImpl() const { return getImplAs<ColorImpl>(); }
};

// The fill of a box's shape or of a table cell.
class BackgroundColorImpl : public ColorImpl {
public:
    explicit BackgroundColorImpl(u16string const& value = u"white") : ColorImpl(value) {}

    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // Replaces whatever fill the shape properties have.
    void applyToBaseTextBox(BaseTextBoxWriter& writer) const override;
    // The cell's a:solidFill.
    void applyToTableEntry(TableEntryWriter& writer) const override;
};

class BackgroundColor : public Color {
public:
    BackgroundColor();
    explicit BackgroundColor(u16string const& value);
    explicit BackgroundColor(FormatImpl* impl) : Color(impl) {}
};

// The colour of a run's characters.
class FontColorImpl : public ColorImpl {
public:
    explicit FontColorImpl(u16string const& value = u"black") : ColorImpl(value) {}

    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    void applyToText(TextWriter& writer) const override;
};

class FontColor : public Color {
public:
    FontColor();
    explicit FontColor(u16string const& value);
    explicit FontColor(FormatImpl* impl) : Color(impl) {}
};

}  // namespace ppt
}  // namespace deckforge
