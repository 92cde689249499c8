#include <filesystem>
#include <string>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/ProgramsInTests.h"

namespace tools::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class Chflags : public ToolTest {};

TEST_F(Chflags, ClearingWhatIsNotSetSucceeds) {
    write("d/f", "x");
    fs::create_symlink("nowhere", at("d/l"));
    ASSERT_EQ(::mkfifo(at("d/pipe").c_str(), 0600), 0);
    const Outcome outcome = run({CHFLAGS, "-R", "nouchg", "d"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(run({CHFLAGS, "nouchg", "d/f", "d/l", "d/pipe"}).status, 0);
}

TEST_F(Chflags, AMissingPathIsAnErrorAndTheOthersGoOn) {
    write("f", "x");
    const Outcome outcome = run({CHFLAGS, "nouchg", "gone", "f"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "chflags: gone: No such file or directory\n");
    EXPECT_EQ(run({CHFLAGS, "-R", "nouchg", "gone"}).output,
              "chflags: gone: No such file or directory\n");
}

TEST_F(Chflags, WhatHasNoFlagsCannotBeLocked) {
    fs::create_symlink("nowhere", at("l"));
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);
    EXPECT_EQ(run({CHFLAGS, "uchg", "l"}).status, 1);
    EXPECT_EQ(run({CHFLAGS, "uchg", "pipe"}).status, 1);
}

TEST_F(Chflags, AnythingElseIsAnsweredWithTheUsage) {
    for (const std::vector<std::string>& command : std::vector<std::vector<std::string>>{
             {CHFLAGS}, {CHFLAGS, "nouchg"}, {CHFLAGS, "-R", "nouchg"}, {CHFLAGS, "hidden", "x"}}) {
        const Outcome outcome = run(command);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(outcome.output, StartsWith("usage: chflags"));
    }
}

class ChflagsAsAdministrator : public AdministratorToolTest {
  protected:
    void TearDown() override {
        if (isRoot())
            run({"chattr", "-R", "-i", "d"});
        AdministratorToolTest::TearDown();
    }
    bool isLocked(const std::string& path) const {
        const int file = ::open(at(path).c_str(), O_RDONLY | O_NOFOLLOW);
        int flags = 0;
        EXPECT_EQ(::ioctl(file, FS_IOC_GETFLAGS, &flags), 0) << path;
        ::close(file);
        return (flags & FS_IMMUTABLE_FL) != 0;
    }
};

TEST_F(ChflagsAsAdministrator, TheFlagIsSetAndCleared) {
    write("d/f", "x");
    if (run({"chattr", "+i", "d/f"}).status != 0)
        GTEST_SKIP() << "the temporary folder's file system has no such flag";
    EXPECT_EQ(run({CHFLAGS, "nouchg", "d/f"}).status, 0);
    EXPECT_FALSE(isLocked("d/f"));
    EXPECT_EQ(run({CHFLAGS, "uchg", "d/f"}).status, 0);
    EXPECT_TRUE(isLocked("d/f"));
    EXPECT_EQ(run({CHFLAGS, "uchg", "d/f"}).status, 0);
    EXPECT_NE(::unlink(at("d/f").c_str()), 0);
    EXPECT_EQ(run({CHFLAGS, "nouchg", "d/f"}).status, 0);
    EXPECT_EQ(::unlink(at("d/f").c_str()), 0);
}

TEST_F(ChflagsAsAdministrator, AWholeTreeIsUnlockedAndLinksAreNotFollowed) {
    write("d/in/a/b/f", "x");
    write("d/in/g", "x");
    write("d/outside", "x");
    fs::create_symlink("../outside", at("d/in/l"));
    if (run({"chattr", "+i", "d/in/a/b/f", "d/in/a/b", "d/in/a", "d/in/g", "d/outside"}).status !=
        0)
        GTEST_SKIP() << "the temporary folder's file system has no such flag";
    EXPECT_EQ(run({CHFLAGS, "-R", "nouchg", "d/in"}).status, 0);
    for (const char* path : {"d/in/a/b/f", "d/in/a/b", "d/in/a", "d/in/g"})
        EXPECT_FALSE(isLocked(path)) << path;
    EXPECT_TRUE(isLocked("d/outside"));
    EXPECT_EQ(run({"rm", "-rf", "d/in"}).status, 0);
}

TEST_F(ChflagsAsAdministrator, FileSystemsWithoutFlagsHaveNoneSet) {
    if (!mountDisk(1024))
        GTEST_SKIP() << kNobodyMounts;
    write("disk/f", "x");
    EXPECT_EQ(run({CHFLAGS, "-R", "nouchg", "disk"}).status, 0);
    EXPECT_EQ(run({CHFLAGS, "nouchg", "/proc/self/status"}).status, 0);
    EXPECT_EQ(run({CHFLAGS, "uchg", "/proc/self/status"}).status, 1);
}

} // namespace
} // namespace tools::testing
