#include "cp/FileStamp.h"

#include <chrono>
#include <filesystem>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "cp/private/FileStatus.h"
#include "tests/cp/FolderTest.h"

using namespace Corvaldine::CP;

namespace {

class Stamps : public FolderTest {
  protected:
    /// Of a file that changed last this long ago.
    FileStamp stampAfter(std::chrono::seconds age) {
        write("a", "text");
        struct stat status{};
        EXPECT_EQ(::stat(folder.path("a").c_str(), &status), 0);
        status.st_ctime -= age.count();
        return Private::stamp_from(status);
    }
};

} // namespace

TEST_F(Stamps, OnlyWhatHasNotChangedForTwoSecondsIsSettled) {
    EXPECT_FALSE(stampAfter(std::chrono::seconds(0)).settled);
    EXPECT_FALSE(stampAfter(std::chrono::seconds(1)).settled);
    EXPECT_TRUE(stampAfter(std::chrono::seconds(3)).settled);
    EXPECT_FALSE(stampAfter(std::chrono::seconds(-3600)).settled);
}

TEST_F(Stamps, AStampHoldsAsLongAsEverythingIsTheSame) {
    const FileStamp stamp = stampAfter(std::chrono::seconds(3));
    EXPECT_TRUE(stamp.holds(stamp));
    for (const auto number : {&FileStamp::device, &FileStamp::inode}) {
        FileStamp other = stamp;
        other.*number += 1;
        EXPECT_FALSE(stamp.holds(other));
    }
    for (const auto number : {&FileStamp::size, &FileStamp::written, &FileStamp::changed}) {
        FileStamp other = stamp;
        other.*number += 1;
        EXPECT_FALSE(stamp.holds(other));
    }
}

TEST_F(Stamps, AStampThatWasTakenTooEarlyNeverHolds) {
    FileStamp stamp = stampAfter(std::chrono::seconds(0));
    const FileStamp later = stampAfter(std::chrono::seconds(3));
    EXPECT_FALSE(stamp.holds(stamp));
    stamp.settled = later.settled;
    EXPECT_TRUE(stamp.holds(stamp));
}

TEST_F(Stamps, TimesAreInNanosecondsAndLinksAreFollowed) {
    write("a", "text");
    std::filesystem::create_symlink("a", at("link"));
    const auto stamp = stamp_of(folder.path("link"));
    ASSERT_TRUE(stamp);
    EXPECT_EQ(stamp->size, 4);
    EXPECT_EQ(stamp->inode, stamp_of(folder.path("a"))->inode);
    const auto written = std::filesystem::last_write_time(at("a"));
    std::filesystem::last_write_time(at("a"), written + std::chrono::nanoseconds(1000));
    EXPECT_EQ(stamp_of(folder.path("a"))->written, stamp->written + 1000);
}

TEST_F(Stamps, WhatIsNotThereHasNone) {
    EXPECT_FALSE(stamp_of(folder.path("absent")));
    EXPECT_FALSE(stamp_of(""));
    std::filesystem::create_symlink("absent", at("link"));
    EXPECT_FALSE(stamp_of(folder.path("link")));
}
