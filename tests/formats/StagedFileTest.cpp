#include "platform/posix/StagedFile.h"

#include <cerrno>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/formats/BytesInTests.h"
#include "tests/support/TemporaryFolder.h"

namespace posix {
namespace {

using formats::testing::bytesOf;
using formats::testing::readFile;
using formats::testing::writeFile;
using Names = std::vector<std::string>;

TEST(StagedFile, WhatIsWrittenShowsOnlyWhenItIsCommitted) {
    const tests::TemporaryFolder folder;
    StagedFile file(folder.path("a"));
    ASSERT_EQ(file.write(bytesOf("new")), 0);
    EXPECT_FALSE(std::filesystem::exists(folder.path("a")));
    ASSERT_EQ(file.commit(), 0);
    EXPECT_EQ(readFile(folder.path("a")), bytesOf("new"));
    file.keep();
    EXPECT_EQ(folder.names(), Names{"a"});
}

TEST(StagedFile, WhatIsNotCommittedLeavesNothing) {
    const tests::TemporaryFolder folder;
    {
        StagedFile file(folder.path("a"));
        ASSERT_EQ(file.write(bytesOf("new")), 0);
        EXPECT_EQ(folder.names().size(), 1u);
    }
    EXPECT_EQ(folder.names(), Names{});
}

TEST(StagedFile, WhatIsNotKeptIsTakenBack) {
    const tests::TemporaryFolder folder;
    writeFile(folder.path("old"), bytesOf("old"));
    for (const char* name : {"old", "fresh"}) {
        StagedFile file(folder.path(name));
        ASSERT_EQ(file.write(bytesOf("new")), 0);
        ASSERT_EQ(file.commit(), 0);
        EXPECT_EQ(readFile(folder.path(name)), bytesOf("new"));
    }
    EXPECT_EQ(readFile(folder.path("old")), bytesOf("old"));
    EXPECT_EQ(folder.names(), Names{"old"});
}

TEST(StagedFile, AReplacedFileHandsOnItsMode) {
    const tests::TemporaryFolder folder;
    writeFile(folder.path("a"), bytesOf("old"));
    ASSERT_EQ(::chmod(folder.path("a").c_str(), 0640), 0);
    StagedFile file(folder.path("a"));
    ASSERT_EQ(file.write(bytesOf("new")), 0);
    ASSERT_EQ(file.commit(), 0);
    file.keep();
    struct stat facts{};
    ASSERT_EQ(::stat(folder.path("a").c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 07777u, 0640u);
    EXPECT_EQ(folder.names(), Names{"a"});
}

TEST(StagedFile, ASymbolicLinkIsReplacedAndNotFollowed) {
    const tests::TemporaryFolder folder;
    writeFile(folder.path("target"), bytesOf("target"));
    std::filesystem::create_symlink("target", folder.path("a"));
    for (const bool keep : {false, true}) {
        StagedFile file(folder.path("a"));
        ASSERT_EQ(file.write(bytesOf("new")), 0);
        ASSERT_EQ(file.commit(), 0);
        EXPECT_FALSE(std::filesystem::is_symlink(folder.path("a")));
        if (keep)
            file.keep();
    }
    EXPECT_EQ(readFile(folder.path("a")), bytesOf("new"));
    EXPECT_EQ(readFile(folder.path("target")), bytesOf("target"));
    EXPECT_EQ(folder.names(), (Names{"a", "target"}));
}

TEST(StagedFile, AFolderInTheWayStays) {
    const tests::TemporaryFolder folder;
    std::filesystem::create_directory(folder.path("a"));
    {
        StagedFile file(folder.path("a"));
        ASSERT_EQ(file.write(bytesOf("new")), 0);
        EXPECT_EQ(file.commit(), EISDIR);
    }
    EXPECT_EQ(folder.names(), Names{"a"});
}

TEST(StagedFile, AMissingFolderIsTold) {
    const tests::TemporaryFolder folder;
    StagedFile file(folder.path("none/a"));
    EXPECT_EQ(file.write(bytesOf("new")), ENOENT);
}

} // namespace
} // namespace posix
