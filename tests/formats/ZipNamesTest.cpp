#include "platform/formats/ZipNames.h"

#include <gtest/gtest.h>

namespace formats::zip {
namespace {

std::string folded(std::string_view name) {
    std::string result;
    foldName(name, result);
    return result;
}

std::string tidied(std::string path) {
    EXPECT_EQ(tidyPath(path), nullptr);
    return path;
}

TEST(ZipNames, Utf8IsStrict) {
    EXPECT_TRUE(isUtf8(""));
    EXPECT_TRUE(isUtf8("a\u00E4\u4E2D\U0001F600"));
    for (const char* wrong : {"\x80", "\xC0\xAF", "\xC3", "\xE0\x80\x80", "\xED\xA0\x80",
                              "\xF4\x90\x80\x80", "\xFF", "a\xC3("})
        EXPECT_FALSE(isUtf8(wrong)) << wrong;
}

TEST(ZipNames, CodePage437KeepsAscii) {
    std::string text;
    appendFromCodePage437("a~\x80\xFF", text);
    EXPECT_EQ(text, "a~\u00C7\u00A0");
}

TEST(ZipNames, TidyingTakesDotsAndTheLastSlashAway) {
    EXPECT_EQ(tidied("a/b"), "a/b");
    EXPECT_EQ(tidied("a/b/"), "a/b");
    EXPECT_EQ(tidied("./a/./b/."), "a/b");
    EXPECT_EQ(tidied("./"), "");
    EXPECT_EQ(tidied("...a/.b"), "...a/.b");
}

TEST(ZipNames, FoldingLooksThroughCaseAndUnicodeForm) {
    EXPECT_EQ(folded("ReadMe.TXT"), "readme.txt");
    EXPECT_EQ(folded("\u00C9"), folded("e\u0301"));
    EXPECT_EQ(folded("\uFF21"), "\uFF41");
    EXPECT_EQ(folded("\u212A"), "k");
    EXPECT_NE(folded("a"), folded("b"));
}

} // namespace
} // namespace formats::zip
