#include "engine/LogText.h"

#include <gtest/gtest.h>

namespace {

using ec::formatted;
using ec::joined;
using ec::listDescription;
using ec::shown;
using List = std::vector<std::string>;

TEST(LogText, AMissingTextPrintsAsNullInParentheses) {
    EXPECT_EQ(shown(std::nullopt), "(null)");
    EXPECT_EQ(shown(""), "");
}

TEST(LogText, ArgumentsAreJoinedWithOneBlank) {
    EXPECT_EQ(joined(List{"a", "", "b c"}), "a  b c");
    EXPECT_EQ(joined(List{}), "");
}

TEST(LogText, AnEmptyListIsTwoParenthesesOnTwoLines) {
    EXPECT_EQ(listDescription(List{}), "(\n)");
}

TEST(LogText, ElementsStandOnLinesOfTheirOwnWithCommas) {
    EXPECT_EQ(listDescription(List{"one", "two"}), "(\n    one,\n    two\n)");
}

TEST(LogText, OnlyAsciiLettersAndDigitsStandWithoutQuotes) {
    EXPECT_EQ(listDescription(List{"a1", "a b", "-x", ""}),
              "(\n    a1,\n    \"a b\",\n    \"-x\",\n    \"\"\n)");
}

TEST(LogText, QuotesBackslashesLineFeedsAndUnitsBeyondAsciiAreEscaped) {
    EXPECT_EQ(listDescription(List{"\"\\\n\t", "\u00E9", "\U0001F4D6"}),
              "(\n    \"\\\"\\\\\\n\t\",\n    \"\\U00e9\",\n    \"\\Ud83d\\Udcd6\"\n)");
}

TEST(LogText, FormatsAreFilledInFromTheLeft) {
    EXPECT_EQ(formatted("%@ and %@, %d%%", {"one", "two"}), "one and two, %d%%");
    EXPECT_EQ(formatted("%@ %@", {"one"}), "one %@");
}

TEST(LogText, TranslationsMayNumberTheirPlaces) {
    EXPECT_EQ(formatted("%2$@ before %1$@", {"one", "two"}), "two before one");
}

} // namespace
