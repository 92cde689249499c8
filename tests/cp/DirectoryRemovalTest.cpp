#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "cp/CDir.h"
#include "cp/CFileUtils.h"
#include "cp/private/TreeWalk.h"
#include "tests/cp/FolderTest.h"
#include "tests/support/OrdinaryUser.h"

using namespace Corvaldine::CP;

namespace {

class DirectoryRemoval : public FolderTest {
  protected:
    // Puts a link in a folder's place at the moment the walk has seen the folder.
    class Swapping : public Private::TreeVisitor {
      public:
        explicit Swapping(const std::filesystem::path& root) : m_root(root) {}
        bool entry(int parent, const char* name) override {
            if (std::string(name) == "a first") {
                std::filesystem::rename(m_root / "b victim", m_root / "moved");
                std::filesystem::create_directory_symlink(m_root / ".." / "precious",
                                                          m_root / "b victim");
            }
            return ::unlinkat(parent, name, 0) == 0;
        }

      private:
        std::filesystem::path m_root;
    };
};

} // namespace

TEST_F(DirectoryRemoval, OfAMissingPathAnswersFalse) {
    EXPECT_FALSE(CDir::remove(path("missing")));
    EXPECT_FALSE(CDir::remove(CPath()));
}

TEST_F(DirectoryRemoval, TakesEverythingInTheFolder) {
    std::filesystem::create_directories(at("tree/a/b/c"));
    write("tree/file", "");
    write("tree/a/b/c/file", "");
    write("tree/a/\xFF not text", "");
    ASSERT_EQ(::mkfifo(at("tree/pipe").c_str(), 0600), 0);
    EXPECT_TRUE(CDir::remove(path("tree")));
    EXPECT_FALSE(path("tree").exists());
}

TEST_F(DirectoryRemoval, LeavesAFileAlone) {
    write("file", "");
    EXPECT_FALSE(CDir::remove(path("file")));
    EXPECT_TRUE(path("file").exists());
}

TEST_F(DirectoryRemoval, NeverFollowsLinks) {
    std::filesystem::create_directories(at("precious/sub"));
    write("precious/file", "precious");
    std::filesystem::create_directory(at("tree"));
    std::filesystem::create_directory_symlink(at("precious"), at("tree/link"));
    std::filesystem::create_symlink(at("precious/file"), at("tree/file link"));
    std::filesystem::create_directory_symlink(at("precious"), at("top link"));
    EXPECT_TRUE(CDir::remove(path("tree")));
    EXPECT_FALSE(CDir::remove(path("top link")));
    EXPECT_FALSE(CDir::remove(path("top link/")));
    EXPECT_EQ(read("precious/file"), "precious");
    EXPECT_TRUE(path("precious/sub").exists());
}

TEST_F(DirectoryRemoval, ALinkPutInAFoldersPlaceMeanwhileLeadsNowhere) {
    std::filesystem::create_directories(at("precious"));
    write("precious/file", "precious");
    std::filesystem::create_directories(at("tree/b victim/sub"));
    write("tree/a first", "");
    Swapping visitor(at("tree"));
    EXPECT_FALSE(Private::walk_tree(Private::open_folder(AT_FDCWD, at("tree").c_str()), visitor));
    EXPECT_EQ(read("precious/file"), "precious");
}

TEST_F(DirectoryRemoval, StopsAtAnEntryThatCannotBeRemovedAndLeavesItsParentsAndLaterSiblings) {
    std::filesystem::create_directories(at("tree/b"));
    write("tree/a", "");
    write("tree/b/1", "");
    write("tree/b/2 locked", "");
    write("tree/b/3", "");
    write("tree/c", "");
    if (!CFileUtils::lock(path("tree/b/2 locked"), true))
        GTEST_SKIP() << "files can't be locked here";
    EXPECT_FALSE(CDir::remove(path("tree")));
    EXPECT_FALSE(path("tree/a").exists());
    EXPECT_FALSE(path("tree/b/1").exists());
    EXPECT_TRUE(path("tree/b/2 locked").exists());
    EXPECT_TRUE(path("tree/b/3").exists());
    EXPECT_TRUE(path("tree/c").exists());
    EXPECT_TRUE(CFileUtils::lock(path("tree/b/2 locked"), false));
    EXPECT_TRUE(CDir::remove(path("tree")));
}

TEST_F(DirectoryRemoval, StopsInAWriteProtectedFolder) {
    std::filesystem::create_directories(at("tree/protected"));
    write("tree/protected/file", "");
    ASSERT_EQ(::chmod(at("tree/protected").c_str(), 0500), 0);
    const tests::AsOrdinaryUser ordinary(folder.path());
    EXPECT_FALSE(CDir::remove(path("tree")));
    EXPECT_TRUE(path("tree/protected/file").exists());
}

TEST_F(DirectoryRemoval, TakesATreeOfThousandsOfLevels) {
    std::filesystem::create_directory(at("tree"));
    int parent = ::open(at("tree").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int i = 0; i < 3000; ++i) {
        ASSERT_EQ(::mkdirat(parent, "level", 0700), 0);
        const int next = ::openat(parent, "level", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::close(parent);
        parent = next;
    }
    ::close(parent);
    EXPECT_TRUE(CDir::remove(path("tree")));
    EXPECT_FALSE(path("tree").exists());
}
