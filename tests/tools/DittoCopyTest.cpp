#include <algorithm>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/ProgramsInTests.h"

namespace tools::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class DittoCopy : public ToolTest {
  protected:
    struct stat statusOf(const std::string& path) const {
        struct stat status{};
        EXPECT_EQ(::lstat(at(path).c_str(), &status), 0) << path;
        return status;
    }
};

TEST_F(DittoCopy, GivesTheTreeThatCpGives) {
    write("src/a.txt", "text");
    write("src/d/e/large", std::string(3'000'000, 'l'));
    write("src/d/empty", "");
    write("src/run", "#!/bin/sh\n");
    fs::permissions(at("src/run"), fs::perms(0751));
    fs::permissions(at("src/d/empty"), fs::perms(0400));
    fs::create_hard_link(at("src/a.txt"), at("src/d/again"));
    fs::create_symlink("../a.txt", at("src/d/link"));
    fs::create_symlink("/nowhere", at("src/broken"));
    ASSERT_EQ(::mkfifo(at("src/pipe").c_str(), 0640), 0);
    fs::create_directory(at("src/closed"));
    fs::permissions(at("src/closed"), fs::perms(0500));
    ASSERT_EQ(run({"cp", "-a", "src", "expected"}).status, 0);
    const Outcome outcome = ditto("src", "out");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(listing(at("out")), listing(at("expected")));
    EXPECT_EQ(statusOf("out").st_mtim.tv_nsec, statusOf("src").st_mtim.tv_nsec);
    EXPECT_EQ(statusOf("out/a.txt").st_ino, statusOf("out/d/again").st_ino);
    EXPECT_NE(statusOf("out/a.txt").st_ino, statusOf("src/a.txt").st_ino);
}

TEST_F(DittoCopy, MakesTheDestinationWithItsParents) {
    write("src/a", "text");
    EXPECT_EQ(ditto("src", "x/y/z").status, 0);
    EXPECT_EQ(contentsOf(at("x/y/z/a")), "text");
}

TEST_F(DittoCopy, MergesIntoAFolderThatStandsThere) {
    write("src/d/a", "new");
    write("out/d/a", "old");
    write("out/d/b", "kept");
    EXPECT_EQ(ditto("src", "out").status, 0);
    EXPECT_EQ(contentsOf(at("out/d/a")), "new");
    EXPECT_EQ(contentsOf(at("out/d/b")), "kept");
    EXPECT_FALSE(fs::exists(at("out/src")));
}

TEST_F(DittoCopy, AFileBecomesTheDestinationOrGoesIntoIt) {
    write("file", "text");
    EXPECT_EQ(ditto("file", "other").status, 0);
    EXPECT_EQ(contentsOf(at("other")), "text");
    EXPECT_EQ(ditto("file", "new/folder/other").status, 0);
    EXPECT_EQ(contentsOf(at("new/folder/other")), "text");
    EXPECT_EQ(ditto("file", "new").status, 0);
    EXPECT_EQ(contentsOf(at("new/file")), "text");
    write("file", "changed");
    EXPECT_EQ(ditto("file", "other").status, 0);
    EXPECT_EQ(contentsOf(at("other")), "changed");
}

TEST_F(DittoCopy, AFolderOntoAFileIsAnError) {
    write("src/a", "text");
    write("out", "a file");
    const Outcome outcome = ditto("src", "out");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "ditto: out: Not a directory\n");
    EXPECT_EQ(contentsOf(at("out")), "a file");
}

TEST_F(DittoCopy, AMissingSourceIsAnError) {
    const Outcome outcome = ditto("src", "out");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "ditto: src: No such file or directory\n");
    EXPECT_FALSE(fs::exists(at("out")));
}

TEST_F(DittoCopy, ADestinationInsideTheSourceIsRefused) {
    write("src/d/a", "text");
    fs::create_directory_symlink("src/d", at("way"));
    for (const char* to : {"src", "src/out", "src/d/x/y", "way/out", "way", "./src/../src/d"}) {
        const Outcome outcome = ditto("src", to);
        EXPECT_EQ(outcome.status, 1) << to;
        EXPECT_THAT(outcome.output, HasSubstr("into itself")) << to;
    }
    EXPECT_EQ(listing(at("src")).size(), 2u);
}

TEST_F(DittoCopy, AFileOntoItselfIsRefused) {
    write("a", "text");
    fs::create_hard_link(at("a"), at("b"));
    EXPECT_EQ(ditto("a", "a").status, 1);
    EXPECT_EQ(ditto("a", "b").status, 1);
    EXPECT_EQ(ditto("a", ".").status, 1);
    EXPECT_EQ(contentsOf(at("a")), "text");
}

TEST_F(DittoCopy, ASourceThatIsALinkIsFollowed) {
    write("real/a", "text");
    fs::create_directory_symlink("real", at("src"));
    fs::create_symlink("real/a", at("file"));
    EXPECT_EQ(ditto("src", "out").status, 0);
    EXPECT_EQ(contentsOf(at("out/a")), "text");
    EXPECT_EQ(ditto("file", "copy").status, 0);
    EXPECT_FALSE(fs::is_symlink(at("copy")));
    EXPECT_EQ(contentsOf(at("copy")), "text");
}

TEST_F(DittoCopy, NothingIsWrittenThroughALinkAtTheDestination) {
    write("src/d/a", "new");
    write("src/f", "new");
    write("src/g", "new");
    fs::create_directories(at("outside"));
    write("target", "old");
    fs::create_directories(at("out"));
    fs::create_symlink("../outside", at("out/d"));
    fs::create_symlink("../target", at("out/f"));
    const Outcome outcome = ditto("src", "out");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, StartsWith("ditto: out/d: "));
    EXPECT_TRUE(fs::is_empty(at("outside")));
    EXPECT_EQ(contentsOf(at("target")), "old");
    EXPECT_EQ(contentsOf(at("out/f")), "new");
    EXPECT_EQ(contentsOf(at("out/g")), "new");
}

TEST_F(DittoCopy, AFolderInTheWayOfAFileIsAnErrorAndTheOthersGoOn) {
    write("src/a", "new");
    write("src/b", "new");
    write("out/a/x", "old");
    const Outcome outcome = ditto("src", "out");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "ditto: out/a: Is a directory\n");
    EXPECT_EQ(contentsOf(at("out/b")), "new");
    EXPECT_EQ(contentsOf(at("out/a/x")), "old");
    EXPECT_EQ(listing(at("out")).size(), 3u);
}

TEST_F(DittoCopy, ExtendedAttributesOfFilesAndFoldersAreKept) {
    write("src/d/a", "text");
    for (const char* path : {"src/d/a", "src/d", "src"})
        ASSERT_EQ(::setxattr(at(path).c_str(), "user.note", path, 3, 0), 0);
    fs::permissions(at("src/d/a"), fs::perms(0444)); // also where nobody may write
    EXPECT_EQ(ditto("src", "out").status, 0);
    EXPECT_FALSE(fs::exists(at("out/d/._a")));
    EXPECT_EQ(fs::status(at("out/d/a")).permissions(), fs::perms(0444));
    for (const char* path : {"out/d/a", "out/d", "out"}) {
        char value[10];
        EXPECT_EQ(::getxattr(at(path).c_str(), "user.note", value, sizeof value), 3) << path;
    }
}

TEST_F(DittoCopy, AccessListsAreKept) {
    write("src/a", "text");
    // Version 2; owner, user 65534, group, mask, others: each a tag, rights and a number.
    const unsigned char list[] = {2,    0,    0,    0,    1,    0,    6,    0,    0xFF, 0xFF, 0xFF,
                                  0xFF, 2,    0,    6,    0,    0xFE, 0xFF, 0,    0,    4,    0,
                                  4,    0,    0xFF, 0xFF, 0xFF, 0xFF, 0x10, 0,    6,    0,    0xFF,
                                  0xFF, 0xFF, 0xFF, 0x20, 0,    4,    0,    0xFF, 0xFF, 0xFF, 0xFF};
    const char* name = "system.posix_acl_access";
    if (::setxattr(at("src/a").c_str(), name, list, sizeof list, 0) != 0)
        GTEST_SKIP() << "the temporary folder's file system has no access lists";
    EXPECT_EQ(ditto("src", "out").status, 0);
    unsigned char got[sizeof list] = {};
    EXPECT_EQ(::getxattr(at("out/a").c_str(), name, got, sizeof got),
              static_cast<ssize_t>(sizeof list));
    EXPECT_TRUE(std::ranges::equal(got, list));
}

TEST_F(DittoCopy, SparseFilesStaySparse) {
    write("src/a", "begin");
    const int file = ::open(at("src/a").c_str(), O_WRONLY);
    ASSERT_EQ(::pwrite(file, "middle", 6, 50'000'000), 6);
    ASSERT_EQ(::ftruncate(file, 100'000'000), 0);
    ::close(file);
    EXPECT_EQ(ditto("src", "out").status, 0);
    EXPECT_EQ(run({"cmp", "src/a", "out/a"}).status, 0);
    EXPECT_LT(statusOf("out/a").st_blocks * 512, 1'000'000);
}

TEST_F(DittoCopy, ThousandsOfFilesInManyFoldersAreCopiedOnAllThreads) {
    for (int i = 0; i < 3000; ++i)
        write("src/d" + std::to_string(i % 53) + "/f" + std::to_string(i), std::to_string(i));
    EXPECT_EQ(ditto("src", "out").status, 0);
    EXPECT_EQ(run({"diff", "-r", "src", "out"}).output, "");
    EXPECT_EQ(listing(at("out")), listing(at("src")));
}

TEST_F(DittoCopy, ProgressCountsBytesAndFiles) {
    write("src/d/a", "12345");
    write("src/b", "678");
    EXPECT_EQ(
        run({"sh", "-c", "SCRIVEL_PROGRESS_FD=9 " DITTO " -rsrcFork src out 9> progress"}).output,
        "");
    EXPECT_TRUE(contentsOf(at("progress")).ends_with("8 8 2\n"));
    EXPECT_EQ(run({"diff", "-r", "src", "out"}).status, 0);
}

TEST_F(DittoCopy, FilesThatCannotBeReadAreErrorsAndTheOthersGoOn) {
    write("src/a", "a");
    write("src/b", "b");
    fs::permissions(at("src"), fs::perms(0755));
    fs::permissions(at("src/a"), fs::perms(0));
    const Outcome outcome = runAsOrdinaryUser({DITTO, "-rsrcFork", "src", "out"});
    if (outcome.status == 127 || outcome.status == 126)
        GTEST_SKIP() << "another user can't run the tool here: " << outcome.output;
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "ditto: out/a: Permission denied\n");
    EXPECT_EQ(contentsOf(at("out/b")), "b");
    EXPECT_FALSE(fs::exists(at("out/a")));
}

class DittoCopyAsAdministrator : public AdministratorToolTest {};

TEST_F(DittoCopyAsAdministrator, OwnersAndRightsToRunAsThemAreKept) {
    write("src/a", "text");
    ASSERT_EQ(::chown(at("src/a").c_str(), 12345, 23456), 0);
    ASSERT_EQ(::chmod(at("src/a").c_str(), 06755), 0);
    fs::create_symlink("a", at("src/l"));
    ASSERT_EQ(::lchown(at("src/l").c_str(), 12345, 23456), 0);
    EXPECT_EQ(ditto("src", "out").status, 0);
    struct stat status{};
    ASSERT_EQ(::stat(at("out/a").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 12345u);
    EXPECT_EQ(status.st_gid, 23456u);
    EXPECT_EQ(status.st_mode & 07777, 06755u);
    ASSERT_EQ(::lstat(at("out/l").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 12345u);
}

TEST_F(DittoCopyAsAdministrator, FromOneFileSystemToAnother) {
    if (!mountDisk(8192))
        GTEST_SKIP() << kNobodyMounts;
    write("src/a", std::string(100'000, 'a'));
    write("src/b", "b");
    EXPECT_EQ(ditto("src", "disk/out").status, 0);
    EXPECT_EQ(run({"diff", "-r", "src", "disk/out"}).output, "");
    EXPECT_EQ(ditto("disk/out", "back").status, 0);
    EXPECT_EQ(run({"diff", "-r", "src", "back"}).output, "");
}

TEST_F(DittoCopyAsAdministrator, AFullDiskIsAnErrorAndLeavesNoHalfFiles) {
    if (!mountDisk(1024))
        GTEST_SKIP() << kNobodyMounts;
    write("src/a", std::string(2'000'000, 'a'));
    write("src/b", "b");
    const Outcome outcome = ditto("src", "disk/out");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("ditto: disk/out/a: No space left on device"));
    EXPECT_FALSE(fs::exists(at("disk/out/a")));
}

} // namespace
} // namespace tools::testing
