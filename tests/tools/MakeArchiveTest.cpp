#include <filesystem>
#include <string>

#include <sys/stat.h>
#include <sys/xattr.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/ProgramsInTests.h"

namespace tools::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

class MakeArchive : public ToolTest {
  protected:
    void makeTree() const {
        write("in/Top/a.txt", std::string(10000, 'a'));
        write("in/Top/d/\u00E4", "b");
        write("in/Top/run", "x");
        fs::permissions(at("in/Top/run"), fs::perms(0755));
        fs::create_directories(at("in/Top/empty"));
        fs::create_symlink("../a.txt", at("in/Top/d/l"));
    }
};

TEST_F(MakeArchive, UnzipAndDittoGiveTheTreeBack) {
    makeTree();
    ASSERT_EQ(run({MAKE_ARCHIVE, "in/Top", "-o", "a.zip"}).status, 0);
    ASSERT_EQ(run({"unzip", "-q", "a.zip", "-d", "unzipped"}).status, 0);
    ASSERT_EQ(unpack("a.zip", "out").status, 0);
    EXPECT_EQ(run({"diff", "-r", "in", "unzipped"}).output, "");
    EXPECT_EQ(listing(at("out"), Times::seconds), listing(at("in"), Times::seconds));
}

TEST_F(MakeArchive, TheSameTreeGivesTheSameBytes) {
    makeTree();
    ASSERT_EQ(run({MAKE_ARCHIVE, "in/Top", "-o", "a.zip", "--time", "1795230250"}).status, 0);
    fs::rename(at("in"), at("first"));
    makeTree();
    ASSERT_EQ(run({MAKE_ARCHIVE, "in/Top/", "-o", "b.zip", "--time", "1795230250"}).status, 0);
    EXPECT_EQ(run({"cmp", "a.zip", "b.zip"}).status, 0);
    ASSERT_EQ(unpack("a.zip", "out").status, 0);
    struct stat status{};
    ASSERT_EQ(::stat(at("out/Top/a.txt").c_str(), &status), 0);
    EXPECT_EQ(status.st_mtim.tv_sec, 1795230250);
}

TEST_F(MakeArchive, AttributesGoThereAndBackAgain) {
    makeTree();
    for (const char* path : {"in/Top/a.txt", "in/Top/d", "in/Top"})
        ASSERT_EQ(::setxattr(at(path).c_str(), "user.note", "abc", 3, 0), 0);
    ASSERT_EQ(run({MAKE_ARCHIVE, "in/Top", "-o", "a.zip"}).status, 0);
    EXPECT_THAT(run({"unzip", "-l", "a.zip"}).output, HasSubstr("__MACOSX/Top/._a.txt"));
    ASSERT_EQ(unpack("a.zip", "out").status, 0);
    EXPECT_EQ(run({"sh", "-c", "cd in && getfattr -dR Top | sort"}).output,
              run({"sh", "-c", "cd out && getfattr -dR Top | sort"}).output);
    ASSERT_EQ(run({MAKE_ARCHIVE, "out/Top", "-o", "b.zip"}).status, 0);
    EXPECT_EQ(run({"cmp", "a.zip", "b.zip"}).status, 0);
}

TEST_F(MakeArchive, APipeInTheTreeIsAnErrorAndLeavesNoArchive) {
    makeTree();
    ASSERT_EQ(::mkfifo(at("in/Top/pipe").c_str(), 0600), 0);
    const Outcome outcome = run({MAKE_ARCHIVE, "in/Top", "-o", "a.zip"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("pipe"));
    EXPECT_FALSE(fs::exists(at("a.zip")));
    EXPECT_FALSE(fs::exists(at("a.zip.partial")));
}

} // namespace
} // namespace tools::testing
