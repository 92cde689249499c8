#include "cp/private/NarrowEncoding.h"

#include <string>

#include <gtest/gtest.h>

#include "cp/private/SingleByteTable.h"

using namespace Corvaldine::CP::Private;

namespace {

// Every byte alone and all defined bytes together come back as they were.
int definedBytes(std::string_view encoding) {
    std::string all;
    for (int value = 0; value < 256; ++value) {
        const std::string byte(1, static_cast<char>(value));
        std::wstring wide;
        if (!narrow_to_wide(encoding, byte, wide))
            continue;
        std::string back;
        EXPECT_TRUE(wide_to_narrow(encoding, 0, wide, back));
        EXPECT_EQ(back, byte) << value;
        all += byte;
    }
    std::wstring wide;
    std::string back;
    EXPECT_TRUE(narrow_to_wide(encoding, all, wide));
    EXPECT_TRUE(wide_to_narrow(encoding, 0, wide, back));
    EXPECT_EQ(back, all);
    return static_cast<int>(all.size());
}

std::wstring decoded(std::string_view encoding, unsigned byte) {
    std::wstring wide;
    EXPECT_TRUE(narrow_to_wide(encoding, std::string(1, static_cast<char>(byte)), wide)) << byte;
    return wide;
}

std::string encoded(std::string_view encoding, const std::wstring& text, std::uint8_t lossByte) {
    std::string out;
    EXPECT_TRUE(wide_to_narrow(encoding, lossByte, text, out));
    return out;
}

} // namespace

TEST(NarrowEncodings, EveryDefinedByteComesBackAsItWas) {
    EXPECT_EQ(definedBytes(kMacRoman), 256);
    EXPECT_EQ(definedBytes(kWindowsLatin1), 251); // 81, 8D, 8F, 90 and 9D are not defined
    EXPECT_EQ(definedBytes(kMacSymbol), 223);     // 80 to 9F and FF are not
    EXPECT_EQ(definedBytes("CP1251"), 255);
    EXPECT_EQ(definedBytes("ISO-8859-1"), 256);
    EXPECT_EQ(definedBytes(kAscii), 128);
}

TEST(NarrowEncodings, MacRomanFollowsItsPublishedMapping) {
    EXPECT_EQ(decoded(kMacRoman, 0x80), L"\u00C4");
    EXPECT_EQ(decoded(kMacRoman, 0xBD), L"\u03A9");
    EXPECT_EQ(decoded(kMacRoman, 0xC6), L"\u2206"); // not the Greek letter
    EXPECT_EQ(decoded(kMacRoman, 0xDB), L"\u20AC");
    EXPECT_EQ(decoded(kMacRoman, 0xF0), L"\uF8FF");
}

TEST(NarrowEncodings, MacSymbolFollowsItsPublishedMapping) {
    EXPECT_EQ(decoded(kMacSymbol, 0x41), L"\u0391");
    EXPECT_EQ(decoded(kMacSymbol, 0x60), L"\uF8E5");
    EXPECT_EQ(decoded(kMacSymbol, 0xA0), L"\u20AC");
    EXPECT_EQ(decoded(kMacSymbol, 0xBD), L"\u23D0");
    EXPECT_EQ(decoded(kMacSymbol, 0xE0), L"\u25CA");
    EXPECT_EQ(decoded(kMacSymbol, 0xF1), L"\u3009");
}

TEST(NarrowEncodings, SansSerifSignsOfMacSymbolCarryTheVariantTag) {
    EXPECT_EQ(decoded(kMacSymbol, 0xD2), L"\u00AE");
    EXPECT_EQ(decoded(kMacSymbol, 0xE2), L"\u00AE\uF87F");
    EXPECT_EQ(encoded(kMacSymbol, L"\u00AE\u00AE\uF87F\u2122\uF87F\u00A9", 0), "\xD2\xE2\xE4\xD3");
    EXPECT_EQ(encoded(kMacSymbol, L"\u0391\uF87F", '?'), "A?");
}

TEST(NarrowEncodings, TheLossByteStandsForWhatCannotBeHeld) {
    EXPECT_EQ(encoded(kWindowsLatin1, L"a\u20AC\u4E2D\U0001F600b\u4E2D", '?'), "a\x80??b?");
    EXPECT_EQ(encoded(kMacRoman, L"\u4E2Da\u03A9", '_'), "_a\xBD");
    EXPECT_EQ(encoded("CP932", L"a\u4E2D\U0001F600\u00E9!", '?'), "a\x92\x86??"
                                                                  "!");
}

TEST(NarrowEncodings, TagCharactersAreNotDroppedSilently) {
    EXPECT_EQ(encoded(kWindowsLatin1, L"a\U000E0041\U000E007Fb", '?'), "a??b");
    EXPECT_EQ(encoded(kWindowsLatin1, L"ab\U000E0041c", 0), "ab");
}

TEST(NarrowEncodings, WithoutALossByteTheTextEndsBeforeWhatCannotBeHeld) {
    EXPECT_EQ(encoded(kWindowsLatin1, L"ab\u4E2Dc", 0), "ab");
    EXPECT_EQ(encoded(kMacSymbol, L"\u0391\u00E9\u0391", 0), "A");
}

TEST(NarrowEncodings, BytesThatAreNotDefinedFailTheWholeText) {
    std::wstring wide;
    EXPECT_FALSE(narrow_to_wide(kWindowsLatin1, "good \x81 text", wide));
    EXPECT_TRUE(wide.empty());
    EXPECT_FALSE(narrow_to_wide(kMacSymbol, "good \x90 text", wide));
    EXPECT_TRUE(wide.empty());
    EXPECT_FALSE(narrow_to_wide("CP932", "cut off \x92", wide));
    EXPECT_TRUE(wide.empty());
}

TEST(NarrowEncodings, LongTextIsConvertedWhole) {
    const std::string text(100000, '\xE9');
    std::wstring wide;
    ASSERT_TRUE(narrow_to_wide(kWindowsLatin1, text, wide));
    EXPECT_EQ(wide, std::wstring(100000, L'\u00E9'));
    EXPECT_EQ(encoded(kWindowsLatin1, wide, 0), text);
    EXPECT_EQ(encoded(kWindowsLatin1, std::wstring(10000, L'\u4E2D'), '?'),
              std::string(10000, '?'));
}

TEST(NarrowEncodings, WideTextThatIsNotUnicodeFailsInEveryEncoding) {
    const std::wstring text = L"a" + std::wstring(1, static_cast<wchar_t>(0xD800));
    for (const auto encoding : {kUtf8, kWindowsLatin1, kMacRoman, kMacSymbol}) {
        std::string out = "before";
        EXPECT_FALSE(wide_to_narrow(encoding, '?', text, out));
        EXPECT_TRUE(out.empty());
    }
}

TEST(NarrowEncodings, AnEncodingThatIsNotOfferedFailsEveryConversion) {
    std::wstring wide;
    std::string narrow;
    EXPECT_FALSE(narrow_to_wide("CP99999", "a", wide));
    EXPECT_FALSE(wide_to_narrow("CP99999", '?', L"a", narrow));
    EXPECT_FALSE(narrow_to_wide("", "a", wide));
    EXPECT_FALSE(wide_to_narrow("", '?', L"a", narrow));
}
