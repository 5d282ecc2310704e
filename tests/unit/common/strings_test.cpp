#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <locale>
#include <string>

#include "common/strings.h"

using namespace deckforge;

TEST(Strings, DoublesPrintWithSeventeenDigits) {
    EXPECT_EQ(num2str(0.1), u"0.10000000000000001");
    EXPECT_EQ(num2str(50.0), u"50");
    EXPECT_EQ(num2str(1440.0), u"1440");
    EXPECT_EQ(num2str(1e21), u"1e+21");
    EXPECT_EQ(num2str(-0.0), u"-0");
    EXPECT_EQ(num2str(std::nan("")), u"nan");
    EXPECT_EQ(num2str(-std::nan("")), u"-nan");
    EXPECT_EQ(num2str(-std::numeric_limits<double>::infinity()), u"-inf");
    // Printed text reads back as the same double.
    for (double v : {1.0 / 3, 2.5e-310, 123456789.123456789, -6.02214076e23})
        EXPECT_EQ(str2double(num2str(v)), v);
}

TEST(Strings, IntegersPrintPlainDecimal) {
    EXPECT_EQ(num2str(-2147483647 - 1), u"-2147483648");
    EXPECT_EQ(num2str(4294967295u), u"4294967295");
    EXPECT_EQ(num2str(18446744073709551615ul), u"18446744073709551615");
}

TEST(Strings, IntegersFollowTheGlobalLocalesGrouping) {
    struct Thousands : std::numpunct<char> {
        char do_thousands_sep() const override { return ','; }
        std::string do_grouping() const override { return "\3"; }
    };
    std::locale const previous = std::locale::global(std::locale(std::locale::classic(), new Thousands));
    u16string const grouped = num2str(1234567u);
    std::locale::global(previous);
    EXPECT_EQ(grouped, u"1,234,567");
    EXPECT_EQ(num2str(1234567u), u"1234567");
}

TEST(Strings, ReadingNumbersNeverFails) {
    EXPECT_EQ(str2double(u""), 0);
    EXPECT_EQ(str2double(u" 1"), 1);
    EXPECT_EQ(str2double(u"abc"), 0);
    EXPECT_EQ(str2double(u"1.2.3"), 1.2);
    EXPECT_EQ(str2double(u"-Infinity"), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isinf(str2double(u"inf")));
    EXPECT_TRUE(std::isnan(str2double(u"NaN")));
    EXPECT_EQ(str2int(u"12abc"), 12);
    EXPECT_EQ(str2int(u"2147483648"), INT_MAX);
    EXPECT_EQ(str2int(u"-2147483649"), INT_MIN);
    EXPECT_EQ(str2uint(u"x"), 0u);
    EXPECT_EQ(str2uint(u"4294967295"), 4294967295u);
}

TEST(Strings, ReplaceAllNeverSearchesReplacedText) {
    u16string s = u"aa";
    replaceAll(s, u"a", u"aa");
    EXPECT_EQ(s, u"aaaa");
    s = u"a&b&&";
    replaceAll(s, u"&", u"&amp;");
    EXPECT_EQ(s, u"a&amp;b&amp;&amp;");
    replaceAll(s, u"", u"x");
    EXPECT_EQ(s, u"a&amp;b&amp;&amp;");
    s = u"xyxyx";
    replaceAll(s, u"xy", u"");
    EXPECT_EQ(s, u"x");
}

TEST(Strings, UuidIsVersionFourInCanonicalForm) {
    u16string const id = uuid_gen();
    ASSERT_EQ(id.size(), 36u);
    for (std::size_t i = 0; i < id.size(); ++i) {
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            EXPECT_EQ(id[i], u'-');
        } else {
            EXPECT_TRUE((id[i] >= u'0' && id[i] <= u'9') || (id[i] >= u'a' && id[i] <= u'f')) << i;
        }
    }
    EXPECT_EQ(id[14], u'4');
    EXPECT_NE(u16string(u"89ab").find(id[19]), u16string::npos);
}
