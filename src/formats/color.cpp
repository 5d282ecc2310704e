#include "formats/color.h"

#include <cwctype>
#include <map>

#include <boost/make_shared.hpp>
#include <xercesc/dom/DOM.hpp>

#include "platform/msg_ids.h"
#include "writers/base_text_box_writer.h"
#include "writers/table_entry_writer.h"
#include "writers/text_writer.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

namespace {

// Filled at load and never changed. Two entries differ from the usual web
// colours on purpose (mediumpurple, palevioletred): decks made earlier
// depend on them.
std::map<u16string, u16string> const kNamedColors{{u"aliceblue", u"#F0F8FF"},
                                                  {u"antiquewhite", u"#FAEBD7"},
                                                  {u"aqua", u"#00FFFF"},
                                                  {u"aquamarine", u"#7FFFD4"},
                                                  {u"azure", u"#F0FFFF"},
                                                  {u"beige", u"#F5F5DC"},
                                                  {u"bisque", u"#FFE4C4"},
                                                  {u"black", u"#000000"},
                                                  {u"blanchedalmond", u"#FFEBCD"},
                                                  {u"blue", u"#0000FF"},
                                                  {u"blueviolet", u"#8A2BE2"},
                                                  {u"brown", u"#A52A2A"},
                                                  {u"burlywood", u"#DEB887"},
                                                  {u"cadetblue", u"#5F9EA0"},
                                                  {u"chartreuse", u"#7FFF00"},
                                                  {u"chocolate", u"#D2691E"},
                                                  {u"coral", u"#FF7F50"},
                                                  {u"cornflowerblue", u"#6495ED"},
                                                  {u"cornsilk", u"#FFF8DC"},
                                                  {u"crimson", u"#DC143C"},
                                                  {u"cyan", u"#00FFFF"},
                                                  {u"darkblue", u"#00008B"},
                                                  {u"darkcyan", u"#008B8B"},
                                                  {u"darkgoldenrod", u"#B8860B"},
                                                  {u"darkgray", u"#A9A9A9"},
                                                  {u"darkgrey", u"#A9A9A9"},
                                                  {u"darkgreen", u"#006400"},
                                                  {u"darkkhaki", u"#BDB76B"},
                                                  {u"darkmagenta", u"#8B008B"},
                                                  {u"darkolivegreen", u"#556B2F"},
                                                  {u"darkorange", u"#FF8C00"},
                                                  {u"darkorchid", u"#9932CC"},
                                                  {u"darkred", u"#8B0000"},
                                                  {u"darksalmon", u"#E9967A"},
                                                  {u"darkseagreen", u"#8FBC8F"},
                                                  {u"darkslateblue", u"#483D8B"},
                                                  {u"darkslategray", u"#2F4F4F"},
                                                  {u"darkslategrey", u"#2F4F4F"},
                                                  {u"darkturquoise", u"#00CED1"},
                                                  {u"darkviolet", u"#9400D3"},
                                                  {u"deeppink", u"#FF1493"},
                                                  {u"deepskyblue", u"#00BFFF"},
                                                  {u"dimgray", u"#696969"},
                                                  {u"dimgrey", u"#696969"},
                                                  {u"dodgerblue", u"#1E90FF"},
                                                  {u"firebrick", u"#B22222"},
                                                  {u"floralwhite", u"#FFFAF0"},
                                                  {u"forestgreen", u"#228B22"},
                                                  {u"fuchsia", u"#FF00FF"},
                                                  {u"gainsboro", u"#DCDCDC"},
                                                  {u"ghostwhite", u"#F8F8FF"},
                                                  {u"gold", u"#FFD700"},
                                                  {u"goldenrod", u"#DAA520"},
                                                  {u"gray", u"#808080"},
                                                  {u"grey", u"#808080"},
                                                  {u"green", u"#008000"},
                                                  {u"greenyellow", u"#ADFF2F"},
                                                  {u"honeydew", u"#F0FFF0"},
                                                  {u"hotpink", u"#FF69B4"},
                                                  {u"indianred", u"#CD5C5C"},
                                                  {u"indigo", u"#4B0082"},
                                                  {u"ivory", u"#FFFFF0"},
                                                  {u"khaki", u"#F0E68C"},
                                                  {u"lavender", u"#E6E6FA"},
                                                  {u"lavenderblush", u"#FFF0F5"},
                                                  {u"lawngreen", u"#7CFC00"},
                                                  {u"lemonchiffon", u"#FFFACD"},
                                                  {u"lightblue", u"#ADD8E6"},
                                                  {u"lightcoral", u"#F08080"},
                                                  {u"lightcyan", u"#E0FFFF"},
                                                  {u"lightgoldenrodyellow", u"#FAFAD2"},
                                                  {u"lightgray", u"#D3D3D3"},
                                                  {u"lightgrey", u"#D3D3D3"},
                                                  {u"lightgreen", u"#90EE90"},
                                                  {u"lightpink", u"#FFB6C1"},
                                                  {u"lightsalmon", u"#FFA07A"},
                                                  {u"lightseagreen", u"#20B2AA"},
                                                  {u"lightskyblue", u"#87CEFA"},
                                                  {u"lightslategray", u"#778899"},
                                                  {u"lightslategrey", u"#778899"},
                                                  {u"lightsteelblue", u"#B0C4DE"},
                                                  {u"lightyellow", u"#FFFFE0"},
                                                  {u"lime", u"#00FF00"},
                                                  {u"limegreen", u"#32CD32"},
                                                  {u"linen", u"#FAF0E6"},
                                                  {u"magenta", u"#FF00FF"},
                                                  {u"maroon", u"#800000"},
                                                  {u"mediumaquamarine", u"#66CDAA"},
                                                  {u"mediumblue", u"#0000CD"},
                                                  {u"mediumorchid", u"#BA55D3"},
                                                  {u"mediumpurple", u"#9370D8"},
                                                  {u"mediumseagreen", u"#3CB371"},
                                                  {u"mediumslateblue", u"#7B68EE"},
                                                  {u"mediumspringgreen", u"#00FA9A"},
                                                  {u"mediumturquoise", u"#48D1CC"},
                                                  {u"mediumvioletred", u"#C71585"},
                                                  {u"midnightblue", u"#191970"},
                                                  {u"mintcream", u"#F5FFFA"},
                                                  {u"mistyrose", u"#FFE4E1"},
                                                  {u"moccasin", u"#FFE4B5"},
                                                  {u"navajowhite", u"#FFDEAD"},
                                                  {u"navy", u"#000080"},
                                                  {u"oldlace", u"#FDF5E6"},
                                                  {u"olive", u"#808000"},
                                                  {u"olivedrab", u"#6B8E23"},
                                                  {u"orange", u"#FFA500"},
                                                  {u"orangered", u"#FF4500"},
                                                  {u"orchid", u"#DA70D6"},
                                                  {u"palegoldenrod", u"#EEE8AA"},
                                                  {u"palegreen", u"#98FB98"},
                                                  {u"paleturquoise", u"#AFEEEE"},
                                                  {u"palevioletred", u"#D87093"},
                                                  {u"papayawhip", u"#FFEFD5"},
                                                  {u"peachpuff", u"#FFDAB9"},
                                                  {u"peru", u"#CD853F"},
                                                  {u"pink", u"#FFC0CB"},
                                                  {u"plum", u"#DDA0DD"},
                                                  {u"powderblue", u"#B0E0E6"},
                                                  {u"purple", u"#800080"},
                                                  {u"red", u"#FF0000"},
                                                  {u"rosybrown", u"#BC8F8F"},
                                                  {u"royalblue", u"#4169E1"},
                                                  {u"saddlebrown", u"#8B4513"},
                                                  {u"salmon", u"#FA8072"},
                                                  {u"sandybrown", u"#F4A460"},
                                                  {u"seagreen", u"#2E8B57"},
                                                  {u"seashell", u"#FFF5EE"},
                                                  {u"sienna", u"#A0522D"},
                                                  {u"silver", u"#C0C0C0"},
                                                  {u"skyblue", u"#87CEEB"},
                                                  {u"slateblue", u"#6A5ACD"},
                                                  {u"slategray", u"#708090"},
                                                  {u"slategrey", u"#708090"},
                                                  {u"snow", u"#FFFAFA"},
                                                  {u"springgreen", u"#00FF7F"},
                                                  {u"steelblue", u"#4682B4"},
                                                  {u"tan", u"#D2B48C"},
                                                  {u"teal", u"#008080"},
                                                  {u"thistle", u"#D8BFD8"},
                                                  {u"tomato", u"#FF6347"},
                                                  {u"turquoise", u"#40E0D0"},
                                                  {u"violet", u"#EE82EE"},
                                                  {u"wheat", u"#F5DEB3"},
                                                  {u"white", u"#FFFFFF"},
                                                  {u"whitesmoke", u"#F5F5F5"},
                                                  {u"yellow", u"#FFFF00"},
                                                  {u"yellowgreen", u"#9ACD32"}};

u16string trimmed(u16string const& text) {
    std::wstring wide = toWide(text);
    std::size_t first = 0;
    while (first < wide.size() && std::iswspace(static_cast<wint_t>(wide[first]))) ++first;
    std::size_t last = wide.size();
    while (last > first && std::iswspace(static_cast<wint_t>(wide[last - 1]))) --last;
    return toString(wide.substr(first, last - first));
}

bool isHexColor(u16string const& text) {
    if (text.size() != 7 || text[0] != u'#') return false;
    for (std::size_t i = 1; i < text.size(); ++i) {
        char16_t c = text[i];
        bool digit = (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
        if (!digit) return false;
    }
    return true;
}

xml::Name const kSolidFill{u"a:solidFill"};
xml::Name const kSrgbClr{u"a:srgbClr"};
xml::Name const kVal{u"val"};

void fill(xercesc::DOMElement* solidFill, u16string const& hex) {
    if (!solidFill) return;
    xercesc::DOMElement* color = solidFill->getOwnerDocument()->createElement(kSrgbClr);
    color->setAttribute(kVal, hex.c_str());
    solidFill->appendChild(color);
}

}  // namespace

ColorImpl::ColorImpl(u16string const& value) {
    setValue(value);
}

void ColorImpl::setValue(u16string const& value) {
    u16string const text = trimmed(value);
    u16string const lower = toLowerString(text);
    if (!isHexColor(text) && kNamedColors.find(lower) == kNamedColors.end())
        deckforge::raise<ppt_error::invalidPropertyValue>(value);
    mValue = lower;
}

u16string ColorImpl::getHexValue() const {
    if (!mValue.empty() && mValue[0] == u'#') return toUpperString(mValue.substr(1));
    auto it = kNamedColors.find(toLowerString(mValue));
    // Unreachable through setValue; white is the harmless answer.
    return it == kNamedColors.end() ? u16string(u"FFFFFF") : it->second.substr(1);
}

Color::Color() : Format(new ColorImpl()) {}
Color::Color(u16string const& value) : Format(new ColorImpl(value)) {}

char const* BackgroundColorImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.BackgroundColor";
}
boost::shared_ptr<Format> BackgroundColorImpl::makeInterface() {
    return boost::make_shared<BackgroundColor>(this);
}
FormatType BackgroundColorImpl::getFormatType() const {
    return FormatTypeBackgroundColor;
}
void BackgroundColorImpl::applyToBaseTextBox(BaseTextBoxWriter& writer) const {
    fill(writer.replaceShapeFill(kSolidFill), getHexValue());
}
void BackgroundColorImpl::applyToTableEntry(TableEntryWriter& writer) const {
    fill(writer.addCellProperty(kSolidFill), getHexValue());
}

BackgroundColor::BackgroundColor() : Color(new BackgroundColorImpl()) {}
BackgroundColor::BackgroundColor(u16string const& value) : Color(new BackgroundColorImpl(value)) {}

char const* FontColorImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.FontColor";
}
boost::shared_ptr<Format> FontColorImpl::makeInterface() {
    return boost::make_shared<FontColor>(this);
}
FormatType FontColorImpl::getFormatType() const {
    return FormatTypeFontColor;
}
void FontColorImpl::applyToText(TextWriter& writer) const {
    fill(writer.addRunProperty(kSolidFill), getHexValue());
}

FontColor::FontColor() : Color(new FontColorImpl()) {}
FontColor::FontColor(u16string const& value) : Color(new FontColorImpl(value)) {}

}  // namespace ppt
}  // namespace deckforge
