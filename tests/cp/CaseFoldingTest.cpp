#include "cp/CaseFolding.h"

#include <gtest/gtest.h>

namespace {

using Corvaldine::CP::case_folded;
using Corvaldine::CP::equal_ignoring_case;

TEST(CaseFolding, LetterCaseDoesNotCount) {
    EXPECT_TRUE(equal_ignoring_case("/Applications/Word.APP", "/applications/word.app"));
    EXPECT_TRUE(equal_ignoring_case("/\u00DCbung/\u0416", "/\u00FCBUNG/\u0436"));
    EXPECT_TRUE(equal_ignoring_case("STRASSE", "stra\u00DFe"));
    EXPECT_TRUE(equal_ignoring_case("\u212A", "k")); // the Kelvin sign
    EXPECT_TRUE(equal_ignoring_case("", ""));
}

TEST(CaseFolding, OtherTextsDiffer) {
    EXPECT_FALSE(equal_ignoring_case("a", "b"));
    EXPECT_FALSE(equal_ignoring_case("a", "a "));
    EXPECT_FALSE(equal_ignoring_case("a", ""));
    EXPECT_FALSE(equal_ignoring_case("\u00E9", "e"));
    EXPECT_FALSE(equal_ignoring_case("@", "`"));
    EXPECT_FALSE(equal_ignoring_case("[", "{"));
}

TEST(CaseFolding, AnAccentThatStandsAloneEqualsTheAccentedLetter) {
    EXPECT_TRUE(equal_ignoring_case("\u00C9t\u00E9", "e\u0301te\u0301"));
}

TEST(CaseFolding, BytesThatAreNoTextAreComparedAsTheyStandButForAsciiLetters) {
    EXPECT_TRUE(equal_ignoring_case("A\xFF\xC3", "a\xFF\xC3"));
    EXPECT_FALSE(equal_ignoring_case("A\xFF", "a\xFE"));
    EXPECT_EQ(case_folded("\xED\xA0\x80Z"), "\xED\xA0\x80z"); // a surrogate
}

TEST(CaseFolding, TheZeroIsACharacterLikeAnyOther) {
    using namespace std::string_literals;
    EXPECT_EQ(case_folded("A\0\u00C9"s), "a\0e\u0301"s);
    EXPECT_FALSE(equal_ignoring_case("\u00E9\0A"s, "\u00E9\0B"s));
}

} // namespace
