#include "platform/formats/MacRoman.h"

#include <gtest/gtest.h>

#include "cp/private/MacTables.h"

namespace formats {
namespace {

TEST(MacRoman, CharactersBeyondAsciiHaveTheirOwnBytes) {
    EXPECT_EQ(macRomanOf("Äöß€", 31), "\x80\x9A\xA7\xDB");
    EXPECT_EQ(utf8OfMacRoman("\x80\x9A\xA7\xDB"), "Äöß€");
}

TEST(MacRoman, EveryByteComesBackTheSame) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(macRomanOf(utf8OfMacRoman(all), 255), all);
}

// Neither room may include the other, so both keep the table.
TEST(MacRoman, TheCharactersAreThoseOfTheSupportLibrary) {
    for (unsigned byte = 0; byte < 256; ++byte)
        EXPECT_EQ(utf16Of(utf8OfMacRoman(std::string(1, static_cast<char>(byte)))),
                  std::u16string(1, Corvaldine::CP::Private::kMacRomanCharacters[byte]))
            << byte;
}

TEST(MacRoman, ACharacterItDoesNotHaveBecomesOneQuestionMark) {
    EXPECT_EQ(macRomanOf("a中b😀c", 31), "a?b?c");
}

TEST(MacRoman, AnAccentOnItsOwnBecomesAQuestionMark) {
    EXPECT_EQ(macRomanOf("e\u0301", 31), "e?");
}

TEST(MacRoman, TheCutCountsBytesOfMacRoman) {
    EXPECT_EQ(macRomanOf("ÄÄÄ", 2), "\x80\x80");
}

TEST(MacRoman, CharactersBeyondTheBasicPlaneAreSurrogatePairs) {
    EXPECT_EQ(utf16Of("a😀"), u"a\xD83D\xDE00");
    EXPECT_EQ(utf8Of(u"a\xD83D\xDE00"), "a😀");
}

TEST(MacRoman, BytesThatAreNotUtf8BecomeReplacementCharacters) {
    EXPECT_EQ(utf16Of("\xFF"), u"\xFFFD");
    EXPECT_EQ(utf16Of("\xC3"), u"\xFFFD") << "cut off";
    EXPECT_EQ(utf16Of("\xC0\x80"), u"\xFFFD\xFFFD") << "overlong";
    EXPECT_EQ(utf16Of("\xE0\x80\x80"), u"\xFFFD\xFFFD\xFFFD") << "overlong";
    EXPECT_EQ(utf16Of("\xED\xA0\x80"), u"\xFFFD\xFFFD\xFFFD") << "surrogate";
    EXPECT_EQ(utf16Of("\xF4\x90\x80\x80"), u"\xFFFD\xFFFD\xFFFD\xFFFD") << "too large";
    EXPECT_EQ(utf16Of("\xC3"
                      "a"),
              u"\xFFFD"
              u"a");
}

TEST(MacRoman, ASurrogateWithoutItsPartnerBecomesAReplacementCharacter) {
    EXPECT_EQ(utf8Of(u"\xD83D"), "\uFFFD");
    EXPECT_EQ(utf8Of(u"\xDE00\xD83D"
                     u"a"),
              "\uFFFD\uFFFDa");
}

} // namespace
} // namespace formats
