#include "cp/CPath.h"

#include <string>
#include <type_traits>

#include "tests/cp/FolderTest.h"

using Corvaldine::CP::CPath;

namespace {

std::wstring text(const CPath& path) {
    return path;
}

std::wstring appended(const CPath& base, const CPath& component) {
    CPath path = base;
    path.append(component);
    return path;
}

using Paths = FolderTest;

} // namespace

static_assert(std::is_same_v<CPath, Corvaldine::CP::v20::CPath>);

TEST_F(Paths, AreKeptAsTheyWereGiven) {
    EXPECT_EQ(text(CPath()), L"");
    EXPECT_EQ(text(CPath("/a//b/")), L"/a//b/");
    EXPECT_EQ(text(CPath(std::string("\xC3\xA9"))), L"\u00E9");
    EXPECT_EQ(text(CPath(L"/\U0001F600")), L"/\U0001F600");
    EXPECT_EQ(text(CPath(std::wstring(L"/a"))), L"/a");
    EXPECT_EQ(text(CPath(CPath("/a"))), L"/a");
}

TEST_F(Paths, NullPointersAndInvalidTextGiveTheEmptyPath) {
    EXPECT_EQ(text(CPath(static_cast<const char*>(nullptr))), L"");
    EXPECT_EQ(text(CPath(static_cast<const wchar_t*>(nullptr))), L"");
    EXPECT_EQ(text(CPath(nullptr, true)), L"");
    EXPECT_EQ(text(CPath("/a/\xFF")), L"");
}

TEST_F(Paths, AssigningDoesAsConstructing) {
    CPath path("before");
    path = "/a";
    EXPECT_EQ(text(path), L"/a");
    path = L"/b";
    EXPECT_EQ(text(path), L"/b");
    path = std::string("/c");
    EXPECT_EQ(text(path), L"/c");
    path = std::wstring(L"/d");
    EXPECT_EQ(text(path), L"/d");
    path = CPath("/e");
    EXPECT_EQ(text(path), L"/e");
    path = static_cast<const char*>(nullptr);
    EXPECT_EQ(text(path), L"");
}

TEST_F(Paths, APascalStringIsItsLengthByteAndThatManyBytes) {
    const unsigned char pascal[] = {4, '/', 'a', '/', 'b', 'c'};
    EXPECT_EQ(text(CPath(pascal, false)), L"/a/b");
    const unsigned char empty[] = {0, 'x'};
    EXPECT_EQ(text(CPath(empty, false)), L"");
    EXPECT_EQ(text(CPath(empty, true)), L"");
    const unsigned char terminated[] = {3, 'a', 0, 'b'};
    EXPECT_EQ(text(CPath(terminated, false)), L"a");
}

TEST_F(Paths, APascalStringInHfsStyleBecomesAPosixPath) {
    const unsigned char other[] = "\x0FUSB:folder:file";
    EXPECT_EQ(text(CPath(other, true)), L"/Volumes/USB/folder/file");
    const unsigned char relative[] = "\x0C:folder:file";
    EXPECT_EQ(text(CPath(relative, true)), L"folder/file");
}

TEST_F(Paths, AppendingPutsExactlyOneSeparatorBetween) {
    EXPECT_EQ(appended("/a/", "b"), L"/a/b");
    EXPECT_EQ(appended("/a", "b"), L"/a/b");
    EXPECT_EQ(appended("/a//", "b"), L"/a/b");
    EXPECT_EQ(appended("/a", "/b"), L"/a/b");
    EXPECT_EQ(appended("/", "b"), L"/b");
    EXPECT_EQ(appended("a", "b/c"), L"a/b/c");
    EXPECT_EQ(appended("/a", "b/"), L"/a/b");
}

TEST_F(Paths, AppendingToTheEmptyPathGivesTheComponent) {
    EXPECT_EQ(appended("", "b"), L"b");
    EXPECT_EQ(appended("", "/b"), L"/b");
    EXPECT_EQ(appended("", ""), L"");
}

TEST_F(Paths, AppendingNothingDropsTheSeparatorsAtTheEnd) {
    EXPECT_EQ(appended("/a/", ""), L"/a");
    EXPECT_EQ(appended("/", ""), L"/");
}

TEST_F(Paths, AppendingInvalidTextLeavesThePathAsItWas) {
    const std::wstring invalid(1, static_cast<wchar_t>(0xD800));
    EXPECT_EQ(appended("/a/", invalid), L"/a/");
    EXPECT_EQ(appended(L"/a/" + invalid, "b"), L"/a/" + invalid);
    EXPECT_EQ(appended("/a/", std::wstring(L"b\0c", 3)), L"/a/");
}

TEST_F(Paths, EveryKindOfTextCanBeAppended) {
    CPath path("/a");
    path.append("b").append(std::string("c")).append(L"d").append(std::wstring(L"e"));
    path.append(CPath("f"));
    path += "g";
    path += std::string("h");
    path += L"i";
    path += std::wstring(L"j");
    path += CPath("k");
    EXPECT_EQ(text(path), L"/a/b/c/d/e/f/g/h/i/j/k");
}

TEST_F(Paths, APathCanBeAppendedToItself) {
    CPath path("a");
    path.append(path);
    EXPECT_EQ(text(path), L"a/a");
}

TEST_F(Paths, AreEqualOnlyInEveryCharacter) {
    EXPECT_TRUE(CPath("/a") == CPath("/a"));
    EXPECT_FALSE(CPath("/A") == CPath("/a"));
    EXPECT_FALSE(CPath("/a/") == CPath("/a"));
    // Composed and decomposed.
    EXPECT_FALSE(CPath(L"\u00E9") == CPath(L"e\u0301"));
}

TEST_F(Paths, TheStoredStringCanBeSeenInThreeWays) {
    const CPath path("/a");
    const std::wstring& string = path;
    const wchar_t* pointer = path;
    const std::wstring* whole = path;
    EXPECT_EQ(string, L"/a");
    EXPECT_STREQ(pointer, L"/a");
    EXPECT_EQ(whole, &string);
}

TEST_F(Paths, ExistWhenTheyLeadToSomething) {
    write("file", "");
    std::filesystem::create_symlink("file", at("link"));
    std::filesystem::create_symlink("missing", at("dangling"));
    EXPECT_TRUE(path("file").exists());
    EXPECT_TRUE(path("link").exists());
    EXPECT_TRUE(path("").exists());
    EXPECT_FALSE(path("dangling").exists());
    EXPECT_FALSE(path("missing").exists());
    EXPECT_FALSE(path("file/below").exists());
    EXPECT_FALSE(CPath().exists());
}

TEST_F(Paths, AreFoldersWhenTheyLeadToOne) {
    write("file", "");
    std::filesystem::create_directory(at("folder"));
    std::filesystem::create_directory_symlink("folder", at("link"));
    EXPECT_TRUE(path("folder").is_directory());
    EXPECT_TRUE(path("folder/").is_directory());
    EXPECT_TRUE(path("link").is_directory());
    EXPECT_FALSE(path("file").is_directory());
    EXPECT_FALSE(path("missing").is_directory());
    EXPECT_FALSE(CPath().is_directory());
}

TEST_F(Paths, WithANulInsideLeadNowhere) {
    write("file", "");
    std::wstring wide = path("file");
    wide += std::wstring(L"\0x", 2);
    EXPECT_FALSE(CPath(wide).exists());
}

TEST_F(Paths, OutsideAsciiAreFound) {
    write("\xC3\xA9t\xC3\xA9 \xF0\x9F\x98\x80", "");
    EXPECT_TRUE(CPath(top()).append(L"\u00E9t\u00E9 \U0001F600").exists());
}
