#include <string>

#include <gtest/gtest.h>

#include "cp/CPath.h"
#include "cp/private/FileUrl.h"
#include "cp/private/Volume.h"

using namespace Corvaldine::CP;
using Private::FileUrl;

namespace {

std::wstring item(const CPath& path, CPath::pathItem which) {
    std::wstring out = L"before";
    path.copy_unicode_item(which, out);
    return out;
}

struct Row {
    const wchar_t* path;
    const wchar_t* name;
    const wchar_t* parent;
    const wchar_t* extension;
};

const Row kRows[] = {
    {L"", L"", L"", L""},
    {L"/", L"/", L"/", L""},
    {L"//", L"/", L"/", L""},
    {L"a", L"a", L".", L""},
    {L"a/", L"a", L".", L""},
    {L"/a", L"a", L"/", L""},
    {L"/a/", L"a", L"/", L""},
    {L"//a", L"a", L"/", L""},
    {L"/a//", L"a", L"/", L""},
    {L"/a/b", L"b", L"/a", L""},
    {L"/a//b", L"b", L"/a", L""},
    {L"/a/b.tar.gz", L"b.tar.gz", L"/a", L"gz"},
    {L"/a.b/c", L"c", L"/a.b", L""},
    {L".hidden", L".hidden", L".", L"hidden"},
    {L"/a/.hidden.txt", L".hidden.txt", L"/a", L"txt"},
    {L"a.", L"a.", L".", L""},
    {L".", L".", L"./..", L""},
    {L"..", L"..", L"../..", L""},
    {L"/a/..", L"..", L"/a/../..", L""},
    {L"a/b", L"b", L"a", L""},
    {L" ", L" ", L".", L""},
    {L"/\u00C9t\u00E9/na\u00EFve.\u65E5\u672C", L"na\u00EFve.\u65E5\u672C", L"/\u00C9t\u00E9",
     L"\u65E5\u672C"},
    {L"/a\nb/c:d", L"c:d", L"/a\nb", L""},
};

} // namespace

TEST(PathItems, NameParentAndExtensionOfOddAndUsualPaths) {
    for (const Row& row : kRows) {
        const CPath path(row.path);
        const std::wstring extension = row.extension;
        EXPECT_EQ(item(path, CPath::item_path), row.path);
        EXPECT_EQ(item(path, CPath::item_name), row.name);
        EXPECT_EQ(item(path, CPath::item_parent), row.parent);
        EXPECT_EQ(item(path, CPath::item_extension), extension);
        EXPECT_EQ(item(path, CPath::item_dot_extension),
                  extension.empty() ? extension : L"." + extension);
    }
}

TEST(PathItems, TheExtensionIsTheLastOne) {
    EXPECT_EQ(item(L"/a/b.tar.gz", CPath::item_extension), L"gz");
    EXPECT_EQ(item(L"/a/b.tar.gz", CPath::item_dot_extension), L".gz");
    EXPECT_EQ(item(L"/a/b", CPath::item_extension), L"");
    EXPECT_EQ(item(L"/a/b", CPath::item_dot_extension), L"");
}

TEST(PathItems, AnUnknownItemIsEmpty) {
    EXPECT_EQ(item(L"/a/b", static_cast<CPath::pathItem>(7)), L"");
    EXPECT_EQ(item(L"/a/b", static_cast<CPath::pathItem>(-1)), L"");
}

TEST(PathItems, AnEmptyPathHasOnlyEmptyItems) {
    for (int which = 0; which <= 6; ++which)
        EXPECT_EQ(item(CPath(), static_cast<CPath::pathItem>(which)), L"") << which;
}

TEST(PathItems, AVeryLongPathIsTakenApart) {
    const std::wstring folder(100000, L'x');
    const CPath path(L"/" + folder + L"/" + folder + L".ext");
    EXPECT_EQ(item(path, CPath::item_name), folder + L".ext");
    EXPECT_EQ(item(path, CPath::item_parent), L"/" + folder);
    EXPECT_EQ(item(path, CPath::item_extension), L"ext");
    EXPECT_FALSE(path.exists());
}

TEST(PathItems, TakingTheParentAgainAndAgainEndsAtTheTop) {
    CPath path(L"/a/b/c");
    for (int i = 0; i < 10; ++i)
        path.as_item(CPath::item_parent);
    EXPECT_EQ(path, CPath("/"));
}

TEST(PathItems, AsItemReplacesThePathByTheItem) {
    CPath path("/a/b.txt");
    path.as_item(CPath::item_name);
    EXPECT_EQ(path, CPath("b.txt"));
    path.as_item(CPath::item_extension);
    EXPECT_EQ(path, CPath("txt"));
    path.as_item(CPath::item_path);
    EXPECT_EQ(path, CPath("txt"));
}

TEST(PathItems, AsItemLeavesThePathForAUrlAndCopyingGivesIt) {
    CPath path("/a/b");
    path.as_item(CPath::item_url);
    EXPECT_EQ(path, CPath("/a/b"));
    CPath out("before");
    path.get_item(CPath::item_url, out);
    EXPECT_EQ(out, CPath("before"));
    EXPECT_FALSE(item(path, CPath::item_url).empty());
}

TEST(PathItems, GetItemGivesTheItemAlsoIntoThePathItself) {
    CPath path("/a/b");
    path.get_item(CPath::item_parent, path);
    EXPECT_EQ(path, CPath("/a"));
}

TEST(PathItems, TheUrlDeliberatelyReadsThePathInHfsStyleSoThatItNamesAVolume) {
    EXPECT_EQ(item("/no such/place", CPath::item_url), L"file:///Volumes/:no%20such:place");
    EXPECT_EQ(item("/\xC3\xA9", CPath::item_url), L"file:///Volumes/:%C3%A9");
    // A folder's URL ends with a separator.
    EXPECT_EQ(item("/tmp", CPath::item_url), L"file:///Volumes/:tmp/");
}

TEST(PathItems, NarrowItemsAreInTheChosenEncoding) {
    const CPath path(L"/a/\u00E9\u4E2D.txt");
    std::string out;
    path.copy_ansi_item(CPath::item_name, out, CStringConverter::utf8);
    EXPECT_EQ(out, "\xC3\xA9\xE4\xB8\xAD.txt");
    path.copy_ansi_item(CPath::item_name, out, CStringConverter::windows_latin1);
    EXPECT_EQ(out, "\xE9?.txt");
    path.copy_ansi_item(CPath::item_name, out, CStringConverter::mac_roman);
    EXPECT_EQ(out, "\x8E?.txt");
    path.copy_ansi_item(CPath::item_name, out, CStringConverter::none);
    EXPECT_EQ(out, "");
    CPath().copy_ansi_item(CPath::item_name, out, CStringConverter::none);
    EXPECT_EQ(out, "");
}

TEST(PathItems, TheVolumeOfAPathThatResolvesIsItsVolumesName) {
    EXPECT_EQ(item("/", CPath::item_volume), CPath(Private::volume_name("/")));
    EXPECT_FALSE(item("/", CPath::item_volume).empty());
}

TEST(PathItems, OnLinuxAVolumeIsNamedByItsMountPointAndTheOneAtTheTopIsCalledFileSystem) {
    if (!CPath("/proc/self").exists())
        GTEST_SKIP() << "volumes have names of their own here";
    EXPECT_EQ(item("/", CPath::item_volume), L"File System");
    EXPECT_EQ(item("/proc/self/status", CPath::item_volume), L"proc");
}

TEST(PathItems, TheVolumeOfAPathThatLeadsNowhereIsItsFirstPart) {
    EXPECT_EQ(item("Disk:folder:file", CPath::item_volume), L"Disk");
    EXPECT_EQ(item("no-such-folder/file", CPath::item_volume), L"no-such-folder");
    EXPECT_EQ(item("no-such-file", CPath::item_volume), L"no-such-file");
    EXPECT_EQ(item("/no-such-file", CPath::item_volume), L"");
}

TEST(FileUrl, EscapesWhatAUrlsPathCannotHold) {
    EXPECT_EQ(FileUrl::fromPosix(L"/a b/c%d#e?f;g", false).data(),
              "file:///a%20b/c%25d%23e%3Ff%3Bg");
    EXPECT_EQ(FileUrl::fromPosix(L"/A-z_0.9~!*'():@&=+$,", false).data(),
              "file:///A-z_0.9~!*'():@&=+$,");
    EXPECT_EQ(FileUrl::fromPosix(L"/\t\"<>[\\]^`{|}\u65E5", false).data(),
              "file:///%09%22%3C%3E%5B%5C%5D%5E%60%7B%7C%7D%E6%97%A5");
    EXPECT_EQ(FileUrl::fromPosix(L"/a", true).data(), "file:///a/");
    EXPECT_EQ(FileUrl::fromPosix(L"/", true).data(), "file:///");
    EXPECT_EQ(FileUrl::fromPosix(L"a/b", false).data(), "a/b");
}

TEST(FileUrl, HfsStylePathsBecomePosixPaths) {
    const auto posix = [](const wchar_t* hfs) {
        return FileUrl::fromHfs(hfs, false, L"Boot").posixPath();
    };
    EXPECT_EQ(posix(L"Boot:folder:file"), L"/folder/file");
    EXPECT_EQ(posix(L"Boot:"), L"/");
    EXPECT_EQ(posix(L"Boot"), L"/");
    EXPECT_EQ(posix(L"Boot:folder:"), L"/folder");
    EXPECT_EQ(posix(L"Other:folder:file"), L"/Volumes/Other/folder/file");
    EXPECT_EQ(posix(L"Other"), L"/Volumes/Other");
    EXPECT_EQ(posix(L":folder:file"), L"folder/file");
    EXPECT_EQ(posix(L":"), L".");
    EXPECT_EQ(posix(L"::file"), L"../file");
    EXPECT_EQ(posix(L"Boot:a::b"), L"/a/../b");
    EXPECT_EQ(posix(L"Boot:a/b"), L"/a:b");
    EXPECT_EQ(posix(L"A/B:c"), L"/Volumes/A:B/c");
    EXPECT_EQ(posix(L""), L"");
}
