#include "cp/private/Utf.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace Corvaldine::CP::Private;

namespace {

// What one character is in UTF-8, by the definition of the encoding.
std::string reference(char32_t c) {
    std::string out;
    if (c < 0x80)
        return {static_cast<char>(c)};
    int more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    constexpr unsigned kLeads[] = {0, 0xC0, 0xE0, 0xF0};
    out += static_cast<char>(kLeads[more] | c >> 6 * more);
    while (more-- > 0)
        out += static_cast<char>(0x80 | (c >> 6 * more & 0x3F));
    return out;
}

std::wstring wide(char32_t c) {
    return {static_cast<wchar_t>(c)};
}

std::string bytes(std::initializer_list<unsigned> values) {
    std::string out;
    for (const unsigned value : values)
        out += static_cast<char>(value);
    return out;
}

} // namespace

TEST(Utf, EveryScalarValueGoesToUtf8AndBack) {
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (!is_scalar_value(c))
            continue;
        std::string narrow;
        std::wstring back;
        ASSERT_TRUE(utf32_to_utf8(wide(c), narrow)) << std::hex << static_cast<unsigned>(c);
        ASSERT_EQ(narrow, reference(c));
        ASSERT_TRUE(utf8_to_utf32(narrow, back));
        ASSERT_EQ(back, wide(c));
    }
}

TEST(Utf, EveryScalarValueGoesToUtf16AndBack) {
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (!is_scalar_value(c))
            continue;
        std::u16string units;
        std::wstring back;
        ASSERT_TRUE(utf32_to_utf16(wide(c), units));
        ASSERT_EQ(units.size(), c < 0x10000 ? 1u : 2u);
        ASSERT_TRUE(utf16_to_utf32(units, back));
        ASSERT_EQ(back, wide(c));
    }
}

TEST(Utf, SurrogatesAndValuesAboveUnicodeAreInvalidWideText) {
    for (const char32_t c :
         {0xD800u, 0xDBFFu, 0xDC00u, 0xDFFFu, 0x110000u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        std::string narrow = "before";
        std::u16string units = u"before";
        EXPECT_FALSE(utf32_to_utf8(L"good text " + wide(c), narrow));
        EXPECT_TRUE(narrow.empty());
        EXPECT_FALSE(utf32_to_utf16(wide(c) + L"good text", units));
        EXPECT_TRUE(units.empty());
    }
}

TEST(Utf, ASurrogateThatStandsAloneIsInvalid) {
    for (const std::u16string& units :
         {std::u16string{0xD800}, std::u16string{0xDC00}, std::u16string{0xD800, u'a'},
          std::u16string{0xDC00, 0xD800}, std::u16string{u'a', 0xDBFF},
          std::u16string{0xD800, 0xD800, 0xDC00}}) {
        std::wstring out = L"before";
        EXPECT_FALSE(utf16_to_utf32(units, out));
        EXPECT_TRUE(out.empty());
    }
}

TEST(Utf, InvalidUtf8IsRefusedWhereverItStands) {
    const std::vector<std::string> invalid{bytes({0x80}),                   // a continuation alone
                                           bytes({0xBF}),                   //
                                           bytes({0xC0, 0x80}),             // overlong NUL
                                           bytes({0xC1, 0xBF}),             // overlong
                                           bytes({0xC3}),                   // cut off
                                           bytes({0xC3, 0x41}),             // no continuation
                                           bytes({0xC3, 0xC3}),             //
                                           bytes({0xE0, 0x80, 0x80}),       // overlong
                                           bytes({0xE0, 0x9F, 0xBF}),       // overlong
                                           bytes({0xE2, 0x82}),             // cut off
                                           bytes({0xE2, 0x28, 0xA1}),       // second byte wrong
                                           bytes({0xE2, 0x82, 0x28}),       // third byte wrong
                                           bytes({0xED, 0xA0, 0x80}),       // U+D800
                                           bytes({0xED, 0xBF, 0xBF}),       // U+DFFF
                                           bytes({0xF0, 0x80, 0x80, 0x80}), // overlong
                                           bytes({0xF0, 0x8F, 0xBF, 0xBF}), // overlong
                                           bytes({0xF0, 0x9F, 0x98}),       // cut off
                                           bytes({0xF0, 0x28, 0x8C, 0xBC}), //
                                           bytes({0xF0, 0x90, 0x28, 0xBC}), //
                                           bytes({0xF0, 0x90, 0x8C, 0x28}), //
                                           bytes({0xF4, 0x90, 0x80, 0x80}), // U+110000
                                           bytes({0xF5, 0x80, 0x80, 0x80}), // above
                                           bytes({0xF8, 0x88, 0x80, 0x80, 0x80}),
                                           bytes({0xFC, 0x84, 0x80, 0x80, 0x80, 0x80}),
                                           bytes({0xFE}),
                                           bytes({0xFF})};
    const std::vector<std::string> surroundings{"",
                                                "a",
                                                "abcdefg",
                                                std::string(40, 'x'),
                                                "\xC3\xA9\xC3\xA9\xC3\xA9",
                                                "\xE4\xB8\xAD\xE6\x96\x87",
                                                "\xF0\x9F\x98\x80"};
    for (const std::string& wrong : invalid)
        for (const std::string& before : surroundings)
            for (const std::string& after : surroundings) {
                std::wstring out = L"before";
                ASSERT_FALSE(utf8_to_utf32(before + wrong + after, out))
                    << ::testing::PrintToString(before + wrong + after);
                ASSERT_TRUE(out.empty());
            }
}

TEST(Utf, EveryPairOfBytesIsJudgedAsTheEncodingDefines) {
    for (unsigned first = 0; first < 256; ++first)
        for (unsigned second = 0; second < 256; ++second) {
            const bool valid = (first < 0x80 && second < 0x80) ||
                               (first >= 0xC2 && first <= 0xDF && second >= 0x80 && second <= 0xBF);
            std::wstring out;
            const std::string pair = bytes({first, second});
            ASSERT_EQ(utf8_to_utf32(pair, out), valid) << first << ' ' << second;
            ASSERT_EQ(utf8_to_utf32("12345678" + pair + "12345678", out), valid);
        }
}

TEST(Utf, MixedTextOfAnyLengthIsTheSameAfterTheWayBack) {
    std::mt19937 random(7);
    const std::vector<std::pair<char32_t, char32_t>> ranges{
        {0, 0x7F}, {0x80, 0x7FF}, {0x800, 0xD7FF}, {0xE000, 0xFFFF}, {0x10000, 0x10FFFF}};
    for (std::size_t length = 0; length < 20000; length = length * 5 / 4 + 1) {
        std::wstring text;
        std::string expected;
        while (text.size() < length) {
            const auto& [low, high] = ranges[random() % ranges.size()];
            for (auto run = random() % 20; run-- > 0 && text.size() < length;) {
                const char32_t c = low + static_cast<char32_t>(random() % (high - low + 1));
                text += static_cast<wchar_t>(c);
                expected += reference(c);
            }
        }
        std::string narrow;
        std::wstring back;
        std::u16string units;
        ASSERT_TRUE(utf32_to_utf8(text, narrow));
        ASSERT_EQ(narrow, expected);
        ASSERT_TRUE(utf8_to_utf32(narrow, back));
        ASSERT_EQ(back, text);
        ASSERT_TRUE(utf32_to_utf16(text, units));
        ASSERT_TRUE(utf16_to_utf32(units, back));
        ASSERT_EQ(back, text);
    }
}

TEST(Utf, ANulIsACharacterLikeAnyOther) {
    std::wstring out;
    ASSERT_TRUE(utf8_to_utf32(std::string("a\0b", 3), out));
    EXPECT_EQ(out, std::wstring(L"a\0b", 3));
}
