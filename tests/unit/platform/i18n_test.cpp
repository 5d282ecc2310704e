#include <gtest/gtest.h>

#include "platform/i18n.h"

using namespace fl::i18n;

TEST(I18n, RoundTripsOutsideTheBasicPlane) {
    std::string const utf8 = "a\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E";  // a ä € 𝄞
    std::u16string const utf16 = u"aä€𝄞";
    EXPECT_EQ(to_string(utf8), utf16);
    EXPECT_EQ(utf16.size(), 5u);  // the clef is a surrogate pair
    EXPECT_EQ(to_utf8(utf16), utf8);
    EXPECT_EQ(to_wide(utf16), L"aä€𝄞");
    EXPECT_EQ(to_string(std::wstring(L"aä€𝄞")), utf16);
    EXPECT_EQ(to_string(std::string()), u"");
    EXPECT_EQ(from_ascii("x/y.1"), u"x/y.1");
    EXPECT_EQ(from_ascii(nullptr), u"");
}

TEST(I18n, MalformedInputBecomesReplacementCharacters) {
    // A stray byte, a cut-off sequence and an overlong encoding.
    EXPECT_EQ(to_string(std::string("a\xFF"
                                    "b")),
              u"a\uFFFDb");
    std::u16string const cut = to_string(std::string("x\xE2\x82"));
    EXPECT_EQ(cut.substr(0, 2), u"x\uFFFD");
    EXPECT_EQ(cut.find_first_not_of(u"x\uFFFD"), std::u16string::npos);
    EXPECT_EQ(to_string(std::string("\xC0\xAF")).find(u'/'), std::u16string::npos);
    // Lone surrogates on the way out.
    std::u16string lone(1, char16_t(0xD800));
    EXPECT_EQ(to_utf8(lone), "\xEF\xBF\xBD");
    EXPECT_EQ(to_wide(lone + u"z"), L"\uFFFDz");
    EXPECT_EQ(to_string(std::wstring(1, wchar_t(0x110000))), u"\uFFFD");
}

TEST(I18n, CaseMappingCoversMoreThanAscii) {
    EXPECT_EQ(to_lower(u"ÄÖÜ Straße ΑΒΓΣ"), u"äöü straße αβγσ");
    EXPECT_EQ(to_upper(u"äöü αβγσς"), u"ÄÖÜ ΑΒΓΣΣ");
    // Simple mappings keep the length: ß has no single upper-case letter.
    EXPECT_EQ(to_upper(u"ß"), u"ß");
    // Deseret capital and small letters lie outside the basic plane.
    EXPECT_EQ(to_lower(u"\U00010400"), u"\U00010428");
    EXPECT_EQ(to_upper(u"\U00010428"), u"\U00010400");
    std::u16string lone(1, char16_t(0xDC00));
    EXPECT_EQ(to_upper(u"a" + lone), u"A" + lone);
}
