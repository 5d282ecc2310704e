// The values of the format kinds: what each accepts, reads back and refuses,
// and the typed style properties of elements over them.
#include <gtest/gtest.h>

#include "formats/alignment.h"
#include "formats/character_formats.h"
#include "formats/color.h"
#include "formats/dimension_formats.h"
#include "formats/table_style_options.h"
#include "nodes/paragraph.h"
#include "nodes/text_box.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace {

using namespace ppt;
using foundation::core::except::Exception;
using foundation::core::except::IMsgIDException;

// Runs `f`, expects it to raise `id`, and gives the exception's one argument.
template <class F>
std::u16string refusal(F f, std::string const& id = "deckforge:ppt_error:invalidPropertyValue") {
    try {
        f();
    } catch (IMsgIDException const& e) {
        EXPECT_EQ(id, e.identifier());
        if (e.arguments().empty()) return u"<none>";
        auto const* text = boost::get<std::u16string>(&e.arguments()[0]);
        return text ? *text : u"<not text>";
    }
    ADD_FAILURE() << "nothing raised";
    return u"";
}

TEST(ColorValues, NamesAndHexAreFoldedAndBadTextIsRefused) {
    FontColor color(u"  Red ");
    EXPECT_EQ(u"red", color.getValue());
    EXPECT_EQ(u"FF0000", color.colorImpl()->getHexValue());
    color.setValue(u"#AbCdEf");
    EXPECT_EQ(u"#abcdef", color.getValue());
    EXPECT_EQ(u"ABCDEF", color.colorImpl()->getHexValue());
    // The two entries that differ from the web colours, and the synonyms.
    EXPECT_EQ(u"9370D8", FontColor(u"MediumPurple").colorImpl()->getHexValue());
    EXPECT_EQ(u"D87093", BackgroundColor(u"palevioletred").colorImpl()->getHexValue());
    EXPECT_EQ(FontColor(u"cyan").colorImpl()->getHexValue(), FontColor(u"aqua").colorImpl()->getHexValue());
    EXPECT_EQ(u"808080", FontColor(u"grey").colorImpl()->getHexValue());

    for (std::u16string bad : {u"#FF880", u"#FF88000", u"FF8800", u"", u"#GG0000", u"reddish", u"# FF8800"})
        EXPECT_EQ(bad, refusal([&] { color.setValue(bad); })) << toUtf8(bad);
    EXPECT_EQ(u"#abcdef", color.getValue());  // a refused value changes nothing
    EXPECT_EQ(u" nope ", refusal([] { BackgroundColor(u" nope "); }));

    EXPECT_EQ(u"black", FontColor().getValue());
    EXPECT_EQ(u"white", BackgroundColor().getValue());
    EXPECT_EQ(FormatTypeBackgroundColor, BackgroundColor().getFormatType());
    EXPECT_EQ(FormatTypeNone, Color().getFormatType());
}

TEST(WordValues, LookupsFoldCaseAndRefuseMarkupWords) {
    EXPECT_EQ(u"double", Strike(u"DOUBLE").getValue());
    EXPECT_EQ(u"single", Strike().getValue());
    EXPECT_EQ(u"dotDotDashHeavy", Underline(u"DotDotDashHeavy").getValue());
    EXPECT_EQ(u"dashLong", Underline(u"dashLong").getValue());
    EXPECT_EQ(u"wavyDbl", Underline(u"WavyDouble").getValue());
    EXPECT_EQ(u"dashLongHeavy", refusal([] { Underline(u"dashLongHeavy"); }));
    EXPECT_EQ(u"wavyDbl", refusal([] { Underline(u"wavyDbl"); }));
    EXPECT_EQ(u" single", refusal([] { Strike(u" single"); }));

    EXPECT_EQ(u"center", HAlign(u"CENTER").getValue());
    EXPECT_EQ(u"thaiDistributed", HAlign(u"ThaiDistributed").getValue());
    EXPECT_EQ(u"justifiedLow", HAlign(u"justifiedlow").getValue());
    for (std::u16string bad : {u"ctr", u"justLow", u"l"}) EXPECT_EQ(bad, refusal([&] { HAlign h(bad); }));
    VAlign anchor(u"MiddleCentered");
    EXPECT_EQ(u"middleCentered", anchor.getValue());
    EXPECT_EQ(u"top", VAlign().getValue());
    EXPECT_EQ(u"t", refusal([&] { anchor.setValue(u"t"); }));
    EXPECT_EQ(u"middleCentered", anchor.getValue());

    // A clone is its own object.
    Underline under(u"wavy");
    auto copy = under.clone();
    copy->setValue(u"none");
    EXPECT_EQ(u"wavy", under.getValue());
    EXPECT_NE(under.getImpl(), copy->getImpl());
}

TEST(LengthValues, SizesOutsideWhatReadersTakeAreRefused) {
    EXPECT_EQ(u"12pt", FontSize().getValue());
    EXPECT_EQ(u"0.25in", ColWidth().getValue());
    EXPECT_EQ(u"5px", ColWidth(u"5px").getValue());
    EXPECT_EQ(u"5", refusal([] { ColWidth(u"5"); }));
    EXPECT_EQ(u"2 parsecs", refusal([] { FontSize(u"2 parsecs"); }));
    refusal([] { FontSize(u"-in"); }, "deckforge:dom_error:invalidDimensionSign");

    EXPECT_EQ(1050, FontSizeImpl::hundredthsOfPoint(Dimension(u"10.5pt")));
    EXPECT_EQ(2834, FontSizeImpl::hundredthsOfPoint(Dimension(u"1cm")));
    EXPECT_EQ(1200, FontSizeImpl::hundredthsOfPoint(Dimension(u"16px")));

    // "sz" holds 1pt to 4000pt; anything else would make a deck that
    // readers refuse, so it is refused when set.
    FontSize size(u"1pt");
    size.setValue(u"4000pt");
    for (std::u16string bad : {u"0pt", u"0.5pt", u"-12pt", u"4001pt", u"1e12pt", u"50%"})
        EXPECT_EQ(bad, refusal([&] { size.setValue(bad); })) << toUtf8(bad);
    EXPECT_EQ(u"4000pt", size.getValue());
}

TEST(TableStyleOptionValues, DefaultsAndCopiesOfTheirOwn) {
    TableStyleOptions options;
    EXPECT_TRUE(options.getFirstRow());
    EXPECT_TRUE(options.getBandedRows());
    EXPECT_FALSE(options.getLastRow() || options.getFirstColumn() || options.getLastColumn() ||
                 options.getBandedColumns());
    auto copy = options.clone();
    copy->setLastColumn(true);
    EXPECT_FALSE(options.getLastColumn());
    EXPECT_TRUE(copy->getLastColumn());
}

TEST(ElementStyle, SettersReplaceOrCopyAsTheirKindWants) {
    Text text(u"t");
    EXPECT_FALSE(text.getBold());
    text.setBold(true);
    auto earlier = text.getBold();
    ASSERT_TRUE(earlier);
    earlier->setValue(false);  // a handle reaches the element's object
    EXPECT_FALSE(text.getBold()->getValue());
    text.setBold(true);  // a whole-value setter displaces it
    EXPECT_TRUE(text.getBold()->getValue());
    EXPECT_FALSE(earlier->getValue());
    text.unsetBold();
    EXPECT_FALSE(text.getBold());
    text.unsetBold();

    // A family shared by two elements isn't changed through either.
    auto shared = boost::make_shared<FontFamily>(u"Arial", u"Mangal");
    Paragraph paragraph;
    Formats style;
    style.appendFormat(shared);
    text.setStyle(style);
    paragraph.setStyle(style);
    text.setFont(u"Calibri");
    EXPECT_EQ(u"Arial", shared->getFont());
    EXPECT_EQ(u"Calibri", text.getFontFamily()->getFont());
    EXPECT_EQ(u"Mangal", text.getFontFamily()->getComplexScriptFont());
    paragraph.unsetFont();  // in place, and kept while the other half is set
    EXPECT_EQ(u"", shared->getFont());
    ASSERT_TRUE(paragraph.getFontFamily());
    paragraph.unsetComplexScriptFont();
    EXPECT_FALSE(paragraph.getFontFamily());

    text.setStrikeStyle(u"double");
    auto strike = text.getStrike();
    text.setStrikeStyle(u"none");
    EXPECT_EQ(u"double", strike->getValue());
    EXPECT_EQ(u"none", text.getStrike()->getValue());
    refusal([&] { text.setUnderlineStyle(u"squiggly"); });
    EXPECT_FALSE(text.getUnderline());
    text.setUnderlineStyle(u"Wavy");
    refusal([&] { text.setUnderlineStyle(u"squiggly"); });
    EXPECT_EQ(u"wavy", text.getUnderline()->getValue());

    refusal([&] { paragraph.setHAlign(u"middle"); });
    paragraph.setHAlign(u"right");
    EXPECT_EQ(u"right", paragraph.getHAlign()->getValue());
    TextBox box(u"b");
    box.setBackgroundColor(u"navy");
    box.setVAlign(u"bottom");
    box.setFontSize(u"20pt");
    EXPECT_EQ(u"navy", box.getBackgroundColor()->getValue());
    EXPECT_EQ(u"bottom", box.getVAlign()->getValue());
    EXPECT_EQ(u"20pt", box.getFontSize()->getValue());
    EXPECT_FALSE(box.getItalic());
}

}  // namespace
}  // namespace deckforge
