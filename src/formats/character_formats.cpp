#include "formats/character_formats.h"

#include <boost/make_shared.hpp>
#include <xercesc/dom/DOM.hpp>

#include "formats/value_table.h"
#include "writers/text_writer.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

namespace {

xml::Name const kB{u"b"};
xml::Name const kI{u"i"};
xml::Name const kBaseline{u"baseline"};
xml::Name const kStrike{u"strike"};
xml::Name const kU{u"u"};
xml::Name const kLatin{u"a:latin"};
xml::Name const kCs{u"a:cs"};
xml::Name const kTypeface{u"typeface"};

ValueTable const& strikeTable() {
    static ValueTable const table({{u"none", {u"none", u"noStrike"}},
                                   {u"single", {u"single", u"sngStrike"}},
                                   {u"double", {u"double", u"dblStrike"}}});
    return table;
}

// The key "dashlongHeavy" keeps its capital, so lower-case lookups never
// reach it and "dashLongHeavy" is refused; the word for wavyDbl is
// "wavydouble". Both are kept as decks already rely on them.
ValueTable const& underlineTable() {
    static ValueTable const table({{u"none", {u"none", u"none"}},
                                   {u"words", {u"words", u"words"}},
                                   {u"single", {u"single", u"sng"}},
                                   {u"double", {u"double", u"dbl"}},
                                   {u"heavy", {u"heavy", u"heavy"}},
                                   {u"dotted", {u"dotted", u"dotted"}},
                                   {u"dottedheavy", {u"dottedHeavy", u"dottedHeavy"}},
                                   {u"dash", {u"dash", u"dash"}},
                                   {u"dashheavy", {u"dashHeavy", u"dashHeavy"}},
                                   {u"dashlong", {u"dashLong", u"dashLong"}},
                                   {u"dashlongHeavy", {u"dashLongHeavy", u"dashLongHeavy"}},
                                   {u"dotdash", {u"dotDash", u"dotDash"}},
                                   {u"dotdashheavy", {u"dotDashHeavy", u"dotDashHeavy"}},
                                   {u"dotdotdash", {u"dotDotDash", u"dotDotDash"}},
                                   {u"dotdotdashheavy", {u"dotDotDashHeavy", u"dotDotDashHeavy"}},
                                   {u"wavy", {u"wavy", u"wavy"}},
                                   {u"wavyheavy", {u"wavyHeavy", u"wavyHeavy"}},
                                   {u"wavydouble", {u"wavyDbl", u"wavyDbl"}}});
    return table;
}

void setTypeface(TextWriter& writer, XMLCh const* name, u16string const& typeface) {
    if (typeface.empty()) return;
    if (xercesc::DOMElement* element = writer.addRunProperty(name))
        element->setAttribute(kTypeface, typeface.c_str());
}

}  // namespace

char const* BoldImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Bold";
}
boost::shared_ptr<Format> BoldImpl::makeInterface() {
    return boost::make_shared<Bold>(this);
}
FormatType BoldImpl::getFormatType() const {
    return FormatTypeBold;
}
void BoldImpl::applyToText(TextWriter& writer) const {
    writer.setRunAttribute(kB, getValue());
}

char const* ItalicImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Italic";
}
boost::shared_ptr<Format> ItalicImpl::makeInterface() {
    return boost::make_shared<Italic>(this);
}
FormatType ItalicImpl::getFormatType() const {
    return FormatTypeItalic;
}
void ItalicImpl::applyToText(TextWriter& writer) const {
    writer.setRunAttribute(kI, getValue());
}

char const* SubscriptImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Subscript";
}
boost::shared_ptr<Format> SubscriptImpl::makeInterface() {
    return boost::make_shared<Subscript>(this);
}
FormatType SubscriptImpl::getFormatType() const {
    return FormatTypeSubscript;
}
void SubscriptImpl::applyToText(TextWriter& writer) const {
    writer.setRunAttribute(kBaseline, getValue() ? u"-25000" : u"0");
}

char const* SuperscriptImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Superscript";
}
boost::shared_ptr<Format> SuperscriptImpl::makeInterface() {
    return boost::make_shared<Superscript>(this);
}
FormatType SuperscriptImpl::getFormatType() const {
    return FormatTypeSuperscript;
}
void SuperscriptImpl::applyToText(TextWriter& writer) const {
    writer.setRunAttribute(kBaseline, getValue() ? u"30000" : u"0");
}

Bold::Bold() : Format(new BoldImpl()) {}
Bold::Bold(bool value) : Format(new BoldImpl(value)) {}
Italic::Italic() : Format(new ItalicImpl()) {}
Italic::Italic(bool value) : Format(new ItalicImpl(value)) {}
Subscript::Subscript() : Format(new SubscriptImpl()) {}
Subscript::Subscript(bool value) : Format(new SubscriptImpl(value)) {}
Superscript::Superscript() : Format(new SuperscriptImpl()) {}
Superscript::Superscript(bool value) : Format(new SuperscriptImpl(value)) {}

StrikeImpl::StrikeImpl(u16string const& value) {
    setValue(value);
}
char const* StrikeImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Strike";
}
boost::shared_ptr<Format> StrikeImpl::makeInterface() {
    return boost::make_shared<Strike>(this);
}
FormatType StrikeImpl::getFormatType() const {
    return FormatTypeStrike;
}
void StrikeImpl::setValue(u16string const& value) {
    mValue = strikeTable().canonicalName(value);
}
void StrikeImpl::applyToText(TextWriter& writer) const {
    writer.setRunAttribute(kStrike, strikeTable().markup(mValue).c_str());
}
boost::shared_ptr<Format> StrikeImpl::clone() const {
    return (new StrikeImpl(*this))->makeInterface();
}

UnderlineImpl::UnderlineImpl(u16string const& value) {
    setValue(value);
}
char const* UnderlineImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Underline";
}
boost::shared_ptr<Format> UnderlineImpl::makeInterface() {
    return boost::make_shared<Underline>(this);
}
FormatType UnderlineImpl::getFormatType() const {
    return FormatTypeUnderline;
}
void UnderlineImpl::setValue(u16string const& value) {
    mValue = underlineTable().canonicalName(value);
}
void UnderlineImpl::applyToText(TextWriter& writer) const {
    writer.setRunAttribute(kU, underlineTable().markup(mValue).c_str());
}
boost::shared_ptr<Format> UnderlineImpl::clone() const {
    return (new UnderlineImpl(*this))->makeInterface();
}

Strike::Strike() : Format(new StrikeImpl()) {}
Strike::Strike(u16string const& value) : Format(new StrikeImpl(value)) {}
boost::shared_ptr<Strike> Strike::clone() const {
    return boost::static_pointer_cast<Strike>(getImplAs<StrikeImpl>()->clone());
}
Underline::Underline() : Format(new UnderlineImpl()) {}
Underline::Underline(u16string const& value) : Format(new UnderlineImpl(value)) {}
boost::shared_ptr<Underline> Underline::clone() const {
    return boost::static_pointer_cast<Underline>(getImplAs<UnderlineImpl>()->clone());
}

char const* FontFamilyImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.FontFamily";
}
boost::shared_ptr<Format> FontFamilyImpl::makeInterface() {
    return boost::make_shared<FontFamily>(this);
}
FormatType FontFamilyImpl::getFormatType() const {
    return FormatTypeFontFamily;
}
void FontFamilyImpl::applyToText(TextWriter& writer) const {
    setTypeface(writer, kLatin, mFont);
    setTypeface(writer, kCs, mComplexScriptFont);
}
boost::shared_ptr<Format> FontFamilyImpl::clone() const {
    return (new FontFamilyImpl(*this))->makeInterface();
}

FontFamily::FontFamily() : Format(new FontFamilyImpl()) {}
FontFamily::FontFamily(u16string const& font) : Format(new FontFamilyImpl(font)) {}
FontFamily::FontFamily(u16string const& font, u16string const& complexScriptFont)
    : Format(new FontFamilyImpl(font, complexScriptFont)) {}
boost::shared_ptr<FontFamily> FontFamily::clone() const {
    return boost::static_pointer_cast<FontFamily>(familyImpl()->clone());
}

}  // namespace ppt
}  // namespace deckforge
