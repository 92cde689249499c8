#include "cp/CSystemPath.h"

#include <string>
#include <utility>
#include <vector>

#include "cp/private/RunningProcess.h"
#include "cp/private/SystemFolders.h"
#include "tests/cp/FolderTest.h"

using namespace Corvaldine::CP;

namespace {

class SystemPaths : public FolderTest {
  protected:
    SystemPaths() : m_before(Private::system_folder_bases()) {
        Private::set_system_folder_bases({.root = at("root").string(),
                                          .home = at("home").string(),
                                          .temporary = at("temporary").string()});
    }
    ~SystemPaths() override { Private::set_system_folder_bases(m_before); }

  private:
    const Private::SystemFolderBases m_before;
};

} // namespace

TEST_F(SystemPaths, EachFolderLiesWhereItBelongsAndIsMade) {
    const std::vector<std::pair<int, std::string>> expected{
        {2, "home/Library/Preferences"},
        {3, "home/Library/Application Support"},
        {4, "home/Documents"},
        {5, "temporary"},
        {6, "root/Applications"},
        {7, "root/Library/Application Support"},
        {8, "home/Documents"},
        {9, "root/Users/Shared"},
        {10, "home/Desktop"},
    };
    for (const auto& [type, name] : expected) {
        EXPECT_EQ(CSystemPath(static_cast<CSystemPath::pathType>(type)), path(name)) << type;
        EXPECT_TRUE(std::filesystem::is_directory(at(name))) << type;
    }
}

TEST_F(SystemPaths, AnyOtherTypeIsEmpty) {
    EXPECT_EQ(CSystemPath(static_cast<CSystemPath::pathType>(11)), CPath());
    EXPECT_EQ(CSystemPath(static_cast<CSystemPath::pathType>(-1)), CPath());
}

TEST_F(SystemPaths, AFolderThatCannotBeMadeIsEmpty) {
    write("home", "a file in the way");
    EXPECT_EQ(CSystemPath(CSystemPath::user_desktop), CPath());
}

TEST_F(SystemPaths, WithoutAHomeThereAreNoUserFolders) {
    Private::set_system_folder_bases({.root = at("root").string(), .home = "", .temporary = ""});
    EXPECT_EQ(CSystemPath(CSystemPath::user_preferences), CPath());
    EXPECT_EQ(CSystemPath(CSystemPath::user_temporary), CPath());
    EXPECT_EQ(CSystemPath(CSystemPath::local_applications), path("root/Applications"));
}

TEST_F(SystemPaths, LinksAreResolved) {
    std::filesystem::create_directory(at("real"));
    std::filesystem::create_directory_symlink("real", at("temporary"));
    EXPECT_EQ(CSystemPath(CSystemPath::user_temporary), path("real"));
}

TEST_F(SystemPaths, OutsideABundleTheApplicationsPathsAreEmpty) {
    EXPECT_EQ(CSystemPath(CSystemPath::app_bundle), CPath());
    EXPECT_EQ(CSystemPath(CSystemPath::app_folder), CPath());
}

TEST(RunningBundle, IsTheFolderThatTheExecutableLiesInAsABundlesDoes) {
    using Private::bundle_of_executable;
    EXPECT_EQ(bundle_of_executable("/x/A.app/Contents/MacOS/A"), "/x/A.app");
    EXPECT_EQ(bundle_of_executable("/A.app/Contents/MacOS/B.app/Contents/MacOS/B"),
              "/A.app/Contents/MacOS/B.app");
    EXPECT_EQ(bundle_of_executable("/x/A.app/Contents/MacOS/sub/A"), "");
    EXPECT_EQ(bundle_of_executable("/x/A.app/Contents/MacOS/"), "");
    EXPECT_EQ(bundle_of_executable("/x/.app/Contents/MacOS/A"), "");
    EXPECT_EQ(bundle_of_executable("/usr/bin/A"), "");
    EXPECT_EQ(bundle_of_executable(""), "");
}
