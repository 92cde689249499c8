#include <string>

#include "cp/CDir.h"
#include "cp/CFileUtils.h"
#include "cp/private/SystemFolders.h"
#include "tests/cp/FolderTest.h"

using namespace Corvaldine::CP;

namespace {

using TempFile = FolderTest;

std::string picked(const CPath& folder, const char* prefix, unsigned seed) {
    CPath path = folder;
    EXPECT_TRUE(CFileUtils::temp_file(path, prefix, seed));
    CPath parent;
    path.get_item(CPath::item_parent, parent);
    EXPECT_EQ(parent, folder);
    EXPECT_FALSE(path.exists());
    std::string name;
    path.copy_ansi_item(CPath::item_name, name, CStringConverter::utf8);
    return name;
}

} // namespace

TEST_F(TempFile, CountsDownFromTheSeedPastNamesThatAreTaken) {
    EXPECT_EQ(picked(top(), "SV", 0x10), "SV00000010");
    write("SV00000010", "");
    EXPECT_EQ(picked(top(), "SV", 0x10), "SV0000000f");
    std::filesystem::create_symlink("nowhere", at("SV0000000f"));
    EXPECT_EQ(picked(top(), "SV", 0x10), "SV0000000e");
}

TEST_F(TempFile, GoesOnBelowZero) {
    write("SV00000001", "");
    write("SV00000000", "");
    EXPECT_EQ(picked(top(), "SV", 1), "SVffffffff");
}

TEST_F(TempFile, WithoutASeedTheNameComesFromTheTime) {
    const std::string name = picked(top(), "SV", 0);
    ASSERT_EQ(name.size(), 10u);
    EXPECT_EQ(name.find_first_not_of("0123456789abcdef", 2), std::string::npos);
}

TEST_F(TempFile, AnEmptyPathMeansTheUsersTemporaryFolder) {
    Private::set_system_folder_bases({.root = "", .home = "", .temporary = folder.path()});
    CPath chosen;
    EXPECT_TRUE(CFileUtils::temp_file(chosen, L"SV", 0xAB));
    EXPECT_EQ(chosen, path("SV000000ab"));
    CFileUtils::remove(chosen);
    EXPECT_TRUE(CDir::create(chosen, false));
    EXPECT_TRUE(chosen.is_directory());
}

TEST_F(TempFile, WithoutATemporaryFolderAnEmptyPathStaysEmptyAndTheAnswerIsFalse) {
    write("file", "");
    Private::set_system_folder_bases({.root = "", .home = "", .temporary = at("file").string()});
    CPath chosen;
    EXPECT_FALSE(CFileUtils::temp_file(chosen, L"SV", 1));
    EXPECT_EQ(chosen, CPath());
}

TEST_F(TempFile, DeliberatelyAGivenFolderThatLeadsNowhereStaysAndTheAnswerIsTrue) {
    CPath chosen = path("missing");
    EXPECT_TRUE(CFileUtils::temp_file(chosen, L"SV", 1));
    EXPECT_EQ(chosen, path("missing"));
}

TEST_F(TempFile, GivesUpAfterAThousandNames) {
    for (int i = 1; i <= 1000; ++i) {
        char name[16];
        std::snprintf(name, sizeof name, "SV%08x", i);
        write(name, "");
    }
    CPath chosen = top();
    EXPECT_TRUE(CFileUtils::temp_file(chosen, L"SV", 1000));
    EXPECT_EQ(chosen, top());
    EXPECT_EQ(picked(top(), "SV", 1001), "SV000003e9");
}

TEST_F(TempFile, AnyOtherErrorEndsTheSearch) {
    CPath chosen = top();
    EXPECT_TRUE(CFileUtils::temp_file(chosen, std::wstring(300, L'x').c_str(), 1));
    EXPECT_EQ(chosen, top());
}

TEST_F(TempFile, ANarrowPrefixIsWindowsLatin1) {
    CPath chosen = top();
    EXPECT_TRUE(CFileUtils::temp_file(chosen, "\xC9", 1));
    EXPECT_EQ(chosen, CPath(top()).append(L"\u00C9"
                                          L"00000001"));
    chosen = top();
    EXPECT_FALSE(CFileUtils::temp_file(chosen, "\x81", 1));
}

TEST_F(TempFile, WithoutAPrefixTheNameIsTheNumber) {
    EXPECT_EQ(picked(top(), nullptr, 0x12345678), "12345678");
}
