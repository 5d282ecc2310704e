// The formats that style a run's characters. Each writes one attribute or
// child of the run's a:rPr and nothing anywhere else; set on a paragraph, a
// box or a table they reach the runs by inheritance. Every format object
// writes its attribute, also with a false value: that is how a run switches
// off a bold set higher up.
#pragma once

#include "formats/format.h"

namespace deckforge {
namespace ppt {

// Bold, Italic, Subscript and Superscript hold one flag, true by default,
// and accept every value.
class BooleanFormatImpl : public FormatImpl {
public:
    explicit BooleanFormatImpl(bool value) : mValue(value) {}

    bool getValue() const { return mValue; }
    void setValue(bool value) { mValue = value; }

private:
    bool mValue;
};

class BoldImpl : public BooleanFormatImpl {
public:
    explicit BoldImpl(bool value = true) : BooleanFormatImpl(value) {}
    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // b="1" or b="0".
    void applyToText(TextWriter& writer) const override;
};

class ItalicImpl : public BooleanFormatImpl {
public:
    explicit ItalicImpl(bool value = true) : BooleanFormatImpl(value) {}
    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // i="1" or i="0".
    void applyToText(TextWriter& writer) const override;
};

// Subscript and Superscript both write "baseline"; with both on a run the
// later kind, Superscript, decides.
class SubscriptImpl : public BooleanFormatImpl {
public:
    explicit SubscriptImpl(bool value = true) : BooleanFormatImpl(value) {}
    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // baseline="-25000" or "0".
    void applyToText(TextWriter& writer) const override;
};

class SuperscriptImpl : public BooleanFormatImpl {
public:
    explicit SuperscriptImpl(bool value = true) : BooleanFormatImpl(value) {}
    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // baseline="30000" or "0".
    void applyToText(TextWriter& writer) const override;
};

class Bold : public Format {
public:
    Bold();
    explicit Bold(bool value);
    explicit Bold(FormatImpl* impl) : Format(impl) {}
    bool getValue() const { return getImplAs<BoldImpl>()->getValue(); }
    void setValue(bool value) { getImplAs<BoldImpl>()->setValue(value); }
};

class Italic : public Format {
public:
    Italic();
    explicit Italic(bool value);
    explicit Italic(FormatImpl* impl) : Format(impl) {}
    bool getValue() const { return getImplAs<ItalicImpl>()->getValue(); }
    void setValue(bool value) { getImplAs<ItalicImpl>()->setValue(value); }
};

class Subscript : public Format {
public:
    Subscript();
    explicit Subscript(bool value);
    explicit Subscript(FormatImpl* impl) : Format(impl) {}
    bool getValue() const { return getImplAs<SubscriptImpl>()->getValue(); }
    void setValue(bool value) { getImplAs<SubscriptImpl>()->setValue(value); }
};

class Superscript : public Format {
public:
    Superscript();
    explicit Superscript(bool value);
    explicit Superscript(FormatImpl* impl) : Format(impl) {}
    bool getValue() const { return getImplAs<SuperscriptImpl>()->getValue(); }
    void setValue(bool value) { getImplAs<SuperscriptImpl>()->setValue(value); }
};

// Strike and Underline hold the canonical name of a word of their
// vocabulary; the word is looked up in any letter case, without trimming,
// and a word that is no key raises invalidPropertyValue.
class StrikeImpl : public FormatImpl {
public:
    explicit StrikeImpl(u16string const& value = u"single");
    StrikeImpl(StrikeImpl const& other) = default;
    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // strike="noStrike", "sngStrike" or "dblStrike".
    void applyToText(TextWriter& writer) const override;
    boost::shared_ptr<Format> clone() const override;

    u16string const& getValue() const { return mValue; }
    void setValue(u16string const& value);

private:
    u16string mValue;
};

class UnderlineImpl : public FormatImpl {
public:
    explicit UnderlineImpl(u16string const& value = u"single");
    UnderlineImpl(UnderlineImpl const& other) = default;
    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // u= the ST_TextUnderlineType of the word.
    void applyToText(TextWriter& writer) const override;
    boost::shared_ptr<Format> clone() const override;

    u16string const& getValue() const { return mValue; }
    void setValue(u16string const& value);

private:
    u16string mValue;
};

class Strike : public Format {
public:
    Strike();
    explicit Strike(u16string const& value);
    explicit Strike(FormatImpl* impl) : Format(impl) {}
    u16string const& getValue() const { return getImplAs<StrikeImpl>()->getValue(); }
    void setValue(u16string const& value) { getImplAs<StrikeImpl>()->setValue(value); }
    boost::shared_ptr<Strike> clone() const;
};

class Underline : public Format {
public:
    Underline();
    explicit Underline(u16string const& value);
    explicit Underline(FormatImpl* impl) : Format(impl) {}
    u16string const& getValue() const { return getImplAs<UnderlineImpl>()->getValue(); }
    void setValue(u16string const& value) { getImplAs<UnderlineImpl>()->setValue(value); }
    boost::shared_ptr<Underline> clone() const;
};

// The Latin and the complex-script font of a run. Any text is accepted;
// an empty name writes no element.
class FontFamilyImpl : public FormatImpl {
public:
    explicit FontFamilyImpl(u16string const& font = u"Times New Roman",
                            u16string const& complexScriptFont = {})
        : mFont(font), mComplexScriptFont(complexScriptFont) {}
    FontFamilyImpl(FontFamilyImpl const& other) = default;
    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // a:latin typeface=font, then a:cs typeface=complexScriptFont.
    void applyToText(TextWriter& writer) const override;
    boost::shared_ptr<Format> clone() const override;

    u16string const& getFont() const { return mFont; }
    void setFont(u16string const& font) { mFont = font; }
    u16string const& getComplexScriptFont() const { return mComplexScriptFont; }
    void setComplexScriptFont(u16string const& font) { mComplexScriptFont = font; }

private:
    u16string mFont;
    u16string mComplexScriptFont;
};

class FontFamily : public Format {
public:
    FontFamily();
    explicit FontFamily(u16string const& font);
    FontFamily(u16string const& font, u16string const& complexScriptFont);
    explicit FontFamily(FormatImpl* impl) : Format(impl) {}

    u16string const& getFont() const { return familyImpl()->getFont(); }
    void setFont(u16string const& font) { familyImpl()->setFont(font); }
    u16string const& getComplexScriptFont() const { return familyImpl()->getComplexScriptFont(); }
    void setComplexScriptFont(u16string const& font) { familyImpl()->setComplexScriptFont(font); }
    boost::shared_ptr<FontFamily> clone() const;

private:
    FontFamilyImpl* familyImpl() const { return getImplAs<FontFamilyImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
