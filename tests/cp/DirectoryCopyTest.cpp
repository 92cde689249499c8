#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "cp/CDir.h"
#include "cp/CFileType.h"
#include "tests/cp/FinderInformationWriter.h"
#include "tests/cp/FolderTest.h"

using namespace Corvaldine::CP;

namespace {

class DirectoryCopy : public FolderTest {
  protected:
    void makeTree() const {
        std::filesystem::create_directories(at("src/sub/deep"));
        write("src/file", "one");
        write("src/sub/deep/file", "two");
        std::filesystem::create_symlink("file", at("src/link"));
        std::filesystem::create_symlink("nowhere", at("src/sub/dangling"));
        std::filesystem::create_directory_symlink("sub", at("src/folder link"));
    }

    bool isThere(const std::string& name) const {
        return std::filesystem::exists(std::filesystem::symlink_status(at(name)));
    }
};

} // namespace

TEST_F(DirectoryCopy, HasEverythingWithLinksAsLinks) {
    makeTree();
    ASSERT_TRUE(CDir::copy(path("src"), path("dst"), false));
    EXPECT_EQ(read("dst/file"), "one");
    EXPECT_EQ(read("dst/sub/deep/file"), "two");
    EXPECT_EQ(std::filesystem::read_symlink(at("dst/link")), "file");
    EXPECT_EQ(std::filesystem::read_symlink(at("dst/sub/dangling")), "nowhere");
    EXPECT_EQ(std::filesystem::read_symlink(at("dst/folder link")), "sub");
}

TEST_F(DirectoryCopy, KeepsPermissionsTimesAndAttributesOfFolders) {
    makeTree();
    const bool attributes = writeFinderInformation(at("src/sub").string(), std::string(32, 'D'));
    ASSERT_EQ(::chmod(at("src/sub").c_str(), 0550), 0);
    for (const char* name : {"src/sub/deep", "src/sub", "src"}) {
        const timespec times[2] = {{1000000000, 0}, {1100000000, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, at(name).c_str(), times, 0), 0);
    }
    ASSERT_TRUE(CDir::copy(path("src"), path("dst"), false));
    struct stat status{};
    ASSERT_EQ(::stat(at("dst/sub").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0550u);
    EXPECT_EQ(status.st_mtime, 1100000000);
    ASSERT_EQ(::stat(at("dst").c_str(), &status), 0);
    EXPECT_EQ(status.st_mtime, 1100000000);
    if (attributes) {
        std::filesystem::rename(at("dst/sub"), at("dst/sub.xyz"));
        CFileType type;
        path("dst/sub.xyz").get_filetype(type);
        EXPECT_EQ(type.get_type(), 0x44444444u);
    }
}

TEST_F(DirectoryCopy, OntoAnExistingFolderNeedsOverwrite) {
    makeTree();
    std::filesystem::create_directory(at("dst"));
    write("dst/old", "old");
    EXPECT_FALSE(CDir::copy(path("src"), path("dst"), false));
    EXPECT_EQ(read("dst/old"), "old");
    EXPECT_FALSE(isThere("dst/file"));
    EXPECT_TRUE(CDir::copy(path("src"), path("dst"), true));
    EXPECT_FALSE(isThere("dst/old"));
    EXPECT_EQ(read("dst/file"), "one");
}

TEST_F(DirectoryCopy, OntoItselfIsRefusedAndNothingIsRemoved) {
    makeTree();
    EXPECT_FALSE(CDir::copy(path("src"), path("src"), true));
    EXPECT_EQ(read("src/file"), "one");
}

TEST_F(DirectoryCopy, IntoItselfIsRefused) {
    makeTree();
    EXPECT_FALSE(CDir::copy(path("src"), path("src/sub/copy"), false));
    EXPECT_FALSE(isThere("src/sub/copy"));
    EXPECT_TRUE(CDir::copy(path("src"), path("src-copy"), false));
}

TEST_F(DirectoryCopy, OfAMissingFolderIsRefused) {
    std::filesystem::create_directory(at("dst"));
    EXPECT_FALSE(CDir::copy(path("missing"), path("new"), false));
    EXPECT_FALSE(CDir::copy(path("src"), path("no such/dst"), false));
    EXPECT_FALSE(isThere("new"));
}

TEST_F(DirectoryCopy, LeavesNothingAfterAFailure) {
    makeTree();
    ASSERT_EQ(::chmod(at("src/sub/deep").c_str(), 0550), 0);
    // Can't be copied, and comes last.
    ASSERT_EQ(::mkfifo(at("src/zz pipe").c_str(), 0600), 0);
    EXPECT_FALSE(CDir::copy(path("src"), path("dst"), false));
    EXPECT_FALSE(isThere("dst"));
    EXPECT_EQ(read("src/sub/deep/file"), "two");
}

TEST_F(DirectoryCopy, OfADeepTreeIsWhole) {
    std::filesystem::create_directory(at("src"));
    constexpr int kDepth = 2100; // past PATH_MAX, and more levels than descriptors by default
    int parent = ::open(at("src").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int i = 0; i < kDepth; ++i) {
        ASSERT_EQ(::mkdirat(parent, "d", 0700), 0);
        const int next = ::openat(parent, "d", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::close(parent);
        parent = next;
    }
    ::close(parent);
    ASSERT_TRUE(CDir::copy(path("src"), path("dst"), false));
    int depth = 0;
    parent = ::open(at("dst").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (;; ++depth) {
        const int next = ::openat(parent, "d", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::close(parent);
        if (next < 0)
            break;
        parent = next;
    }
    EXPECT_EQ(depth, kDepth);
    EXPECT_TRUE(CDir::remove(path("src")));
    EXPECT_TRUE(CDir::remove(path("dst")));
}
