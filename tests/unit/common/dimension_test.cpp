#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "common/dimension.h"
#include "platform/msg_ids.h"

using namespace deckforge;
using foundation::core::except::IMsgIDException;

namespace {

struct ParseCase {
    char16_t const* input;
    char16_t const* text;
    double number;
    Dimension::Units units;
    bool valid;
};

// Expects `input` to raise `id`; gives the text arguments.
std::vector<u16string> failure(u16string const& input, char const* id) {
    try {
        Dimension d(input);
        ADD_FAILURE() << "no failure for " << toUtf8(input) << ", got " << toUtf8(d);
    } catch (IMsgIDException const& e) {
        EXPECT_EQ(e.identifier(), std::string("deckforge:dom_error:") + id) << toUtf8(input);
        std::vector<u16string> texts;
        for (auto const& a : e.arguments()) texts.push_back(boost::get<u16string>(a));
        return texts;
    }
    return {};
}

}  // namespace

TEST(Dimension, ParsesAndNormalisesText) {
    ParseCase const cases[] = {
        {u"", u"0px", 0, Dimension::Pixels, false},
        {u"in", u"0in", 0, Dimension::Inches, false},
        {u"12", u"12px", 12, Dimension::Pixels, false},  // bare number: a pixel length, but not "valid"
        {u"  2.5  CM  ", u"2.5cm", 2.5, Dimension::Centimeters, true},
        {u"1IN", u"1in", 1, Dimension::Inches, true},
        {u"3Twips", u"3twips", 3, Dimension::Twips, true},
        {u"3*", u"3*", 3, Dimension::Proportional, true},
        {u"$5in", u"0px", 0, Dimension::Pixels, false},     // empty match at the first position
        {u"12in34", u"12in", 12, Dimension::Inches, true},  // the tail is ignored
        {u"1.2.3mm", u"1.2.3mm", 1.2, Dimension::Millimeters, true},
        {u".", u".px", 0, Dimension::Pixels, false},
        {u"-0", u"-0px", 0, Dimension::Pixels, false},
    };
    for (auto const& c : cases) {
        Dimension d{u16string(c.input)};
        EXPECT_EQ(toUtf8(d), toUtf8(c.text)) << toUtf8(c.input);
        EXPECT_EQ(d.getNumber(), c.number) << toUtf8(c.input);
        EXPECT_EQ(d.getUnits(), c.units) << toUtf8(c.input);
        EXPECT_EQ(Dimension::isValid(c.input), c.valid) << toUtf8(c.input);
    }
    EXPECT_TRUE(std::signbit(Dimension(u"-0").getNumber()));
    EXPECT_EQ(toUtf8(Dimension(u"-0").getPixelValue()), "-0");
    EXPECT_EQ(Dimension(u"-0").getEMUNumber(), 0);
    EXPECT_EQ(toUtf8(Dimension()), "1in");
}

TEST(Dimension, RejectsLoneSignAndUnknownUnits) {
    // A lone sign: parse refuses, though isValid accepts "-in".
    for (auto input : {u"-", u"-in", u"--5in", u" - cm"}) {
        EXPECT_TRUE(failure(input, "invalidDimensionSign").empty());
    }
    EXPECT_TRUE(Dimension::isValid(u"-in"));

    // The unit text is reported as typed; an exponent stops the number, so
    // "1e400pt" never reaches the number conversion.
    EXPECT_EQ(failure(u"1e5in", "invalidDimensionUnits"), std::vector<u16string>{u"e"});
    EXPECT_EQ(failure(u"1e400pt", "invalidDimensionUnits"), std::vector<u16string>{u"e"});
    EXPECT_EQ(failure(u"5 Foo", "invalidDimensionUnits"), std::vector<u16string>{u"Foo"});
    EXPECT_FALSE(Dimension::isValid(u"5 Foo"));
}

TEST(Dimension, ConvertsOneInch) {
    Dimension const d(u"1in");
    EXPECT_EQ(d.getEMUNumber(), 914400);
    EXPECT_EQ(toUtf8(d.getEMUValue()), "914400");
    EXPECT_EQ(toUtf8(d.getDXAValue()), "1440");
    EXPECT_EQ(toUtf8(d.getTwipsValue()), "1440");
    EXPECT_EQ(toUtf8(d.getPixelValue()), "150");
    EXPECT_EQ(d.getPointNumber(), 72.0);
    EXPECT_EQ(toUtf8(d.getPointValue()), "72");
    EXPECT_EQ(toUtf8(d.getHalfPointValue()), "144");
    EXPECT_EQ(toUtf8(d.getEighthsPointValue()), "576");
    EXPECT_EQ(Dimension(u"-1in").getEMUNumber(), -914400);
}

TEST(Dimension, ConversionsTruncateThroughCoarseFactors) {
    EXPECT_EQ(Dimension(u"1cm").getEMUNumber(), 359999);
    EXPECT_EQ(toUtf8(Dimension(u"1cm").getTwipsValue()), "566");
    EXPECT_EQ(Dimension(u"0.9999px").getEMUNumber(), 9524);
    EXPECT_EQ(toUtf8(Dimension(u"10px").getTwipsValue()), "96");

    // Points keep their number; every other output goes through 12710.16 EMU.
    Dimension const pt(u"1pt");
    EXPECT_EQ(pt.getEMUNumber(), 12710);
    EXPECT_EQ(pt.getPointNumber(), 1.0);
    EXPECT_EQ(toUtf8(pt.getTwipsValue()), "20");
    EXPECT_EQ(toUtf8(pt.getEighthsPointValue()), "8");

    // emus have no twips factor and pass through unchanged.
    EXPECT_EQ(toUtf8(Dimension(u"914400emus").getTwipsValue()), "914400");

    Dimension const pct(u"50%");
    EXPECT_EQ(pct.getPCTNumber(), 2500.0);
    EXPECT_EQ(toUtf8(pct.getPCTValue()), "2500");
    EXPECT_EQ(toUtf8(pct.getPercentValue()), "50");
    EXPECT_EQ(pct.getPointNumber(), 50 * 7.874015748031496e-05);
    EXPECT_EQ(toUtf8(Dimension(u"2.5in").getProportionalValue()), "2.5");
}

TEST(Dimension, OverflowGivesMostNegativeInt) {
    EXPECT_EQ(Dimension(u"2348in").getEMUNumber(), 2147011200);
    EXPECT_EQ(Dimension(u"2349in").getEMUNumber(), INT32_MIN);
    EXPECT_EQ(Dimension(u"-2349in").getEMUNumber(), INT32_MIN);
    EXPECT_EQ(toUtf8(Dimension(u"2349in").getEMUValue()), "-2147483648");

    // A number too long for a double: no undefined conversion anywhere.
    Dimension const huge(u"1" + u16string(400, u'0') + u"pt");
    EXPECT_EQ(huge.getUnits(), Dimension::Points);
    EXPECT_GT(huge.getPointNumber(), 1e300);
    EXPECT_EQ(huge.getEMUNumber(), INT32_MIN);
    EXPECT_EQ(toUtf8(huge.getTwipsValue()), "-2147483648");
    EXPECT_EQ(toUtf8(huge.getHalfPointValue()), "-2147483648");
    EXPECT_EQ(toUtf8(huge.getEighthsPointValue()), "-2147483648");
}

TEST(Dimension, ComparesInPointsAcrossUnits) {
    EXPECT_TRUE(Dimension(u"72pt") == Dimension(u"1in"));
    // Equal as points, though their EMU values differ.
    EXPECT_TRUE(Dimension(u"1pt") == Dimension(u"12700emus"));
    EXPECT_NE(Dimension(u"1pt").getEMUNumber(), Dimension(u"12700emus").getEMUNumber());
    EXPECT_TRUE(Dimension(u"1pi") == Dimension(u"5.9976pt"));
    EXPECT_TRUE(Dimension(u"2.54cm") < Dimension(u"72pt"));
    EXPECT_TRUE(Dimension(u"2.54cm") != Dimension(u"1in"));
    // A percentage is a tiny length when compared with one.
    EXPECT_TRUE(Dimension(u"50%") < Dimension(u"1px"));
    EXPECT_TRUE(Dimension(u"50%") > Dimension(u"1emus"));
    EXPECT_FALSE(Dimension(u"1in") < Dimension(u"1in"));
}
