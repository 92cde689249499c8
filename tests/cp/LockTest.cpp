#include <string>
#include <vector>

#include "cp/CDir.h"
#include "cp/CFileUtils.h"
#include "cp/private/_CNativeDir.h"
#include "tests/cp/FolderTest.h"

using namespace Corvaldine::CP;

namespace {

class Locks : public FolderTest {
  protected:
    void SetUp() override {
        std::filesystem::create_directories(at("tree/sub"));
        write("tree/file", "");
        write("tree/sub/file", "");
        write("outside", "");
        std::filesystem::create_symlink(at("outside"), at("tree/link"));
        if (!CFileUtils::lock(path("outside"), true))
            GTEST_SKIP() << "files can't be locked here";
        ASSERT_TRUE(CFileUtils::lock(path("outside"), false));
    }

    void TearDown() override {
        EXPECT_TRUE(CDir::lock(path("tree"), false, true));
        EXPECT_TRUE(CFileUtils::lock(path("outside"), false));
    }

    std::vector<std::string> locked() const {
        std::vector<std::string> names;
        for (const char* name : {"tree", "tree/file", "tree/sub", "tree/sub/file", "outside"})
            if (CFileUtils::is_locked(path(name)))
                names.emplace_back(name);
        return names;
    }
};

using Names = std::vector<std::string>;

} // namespace

TEST_F(Locks, OfOneFileAreSetAndCleared) {
    EXPECT_FALSE(CFileUtils::is_locked(path("tree/file")));
    EXPECT_TRUE(CFileUtils::lock(path("tree/file"), true));
    EXPECT_TRUE(CFileUtils::is_locked(path("tree/file")));
    EXPECT_FALSE(CFileUtils::remove(path("tree/file")));
    EXPECT_TRUE(CFileUtils::lock(path("tree/file"), true));
    EXPECT_TRUE(CFileUtils::lock(path("tree/file"), false));
    EXPECT_FALSE(CFileUtils::is_locked(path("tree/file")));
    EXPECT_TRUE(CFileUtils::remove(path("tree/file")));
}

TEST_F(Locks, OfAMissingFileAreRefused) {
    EXPECT_FALSE(CFileUtils::is_locked(path("missing")));
    EXPECT_FALSE(CFileUtils::lock(path("missing"), true));
    EXPECT_FALSE(CFileUtils::lock(path("missing"), false));
    EXPECT_FALSE(CDir::lock(path("missing"), true, true));
}

TEST_F(Locks, OfAFolderAreItsOwnAlone) {
    EXPECT_TRUE(CDir::lock(path("tree"), true, false));
    EXPECT_EQ(locked(), Names{"tree"});
}

TEST_F(Locks, OfATreeAreOnEverythingInItButNotBehindLinks) {
    EXPECT_TRUE(CDir::lock(path("tree"), true, true));
    EXPECT_EQ(locked(), (Names{"tree", "tree/file", "tree/sub", "tree/sub/file"}));
    EXPECT_TRUE(CDir::lock(path("tree"), false, true));
    EXPECT_TRUE(locked().empty());
}

TEST_F(Locks, OfATreeAreTheSameWithoutTheSystemsOwnRoutine) {
    EXPECT_TRUE(Private::lock_portably(path("tree"), true));
    EXPECT_EQ(locked(), (Names{"tree", "tree/file", "tree/sub", "tree/sub/file"}));
    EXPECT_TRUE(Private::lock_portably(path("tree"), false));
    EXPECT_TRUE(locked().empty());
}

TEST_F(Locks, CountAsClearedWhereTheFileSystemHasNone) {
    if (!CPath("/proc/self/status").exists())
        GTEST_SKIP() << "no such file system here";
    EXPECT_FALSE(CFileUtils::is_locked("/proc/self/status"));
    EXPECT_TRUE(CFileUtils::lock("/proc/self/status", false));
    EXPECT_FALSE(CFileUtils::lock("/proc/self/status", true));
}
