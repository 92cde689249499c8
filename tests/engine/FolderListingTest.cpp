#include "engine/FolderListing.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

struct FolderListing : testing::Test {
    tests::TemporaryFolder folder;
    std::string one = folder.path("one");
    std::string other = folder.path("other");

    /// Two trees that are equal.
    void SetUp() override {
        for (const char* top : {"one", "other"}) {
            folder.write(std::string(top) + "/file", "text");
            folder.write(std::string(top) + "/inner/.hidden", std::string(200'000, 'x'));
            fs::create_directory(folder.path(top) + "/empty");
            fs::create_symlink("file", folder.path(top) + "/link");
        }
    }
    bool areEqual() const {
        const bool equal = ec::contentsAreEqual(one, other);
        EXPECT_EQ(ec::contentsAreEqual(other, one), equal);
        return equal;
    }
};

TEST_F(FolderListing, NamesComeInTheOrderOfTheirBytesHiddenOnesIncluded) {
    folder.write("names/b", "");
    folder.write("names/.a", "");
    folder.write("names/B", "");
    folder.write("names/\xC3\xA4", "");
    folder.write("names/\xFF", "");
    EXPECT_THAT(ec::namesIn(folder.path("names")), ElementsAre(".a", "B", "b", "\xC3\xA4", "\xFF"));
}

TEST_F(FolderListing, WhatIsNoFolderOrCanNotBeReadHasNoNames) {
    EXPECT_THAT(ec::namesIn(one + "/file"), IsEmpty());
    EXPECT_THAT(ec::namesIn(one + "/none"), IsEmpty());
    EXPECT_THAT(ec::namesIn(one + "/empty"), IsEmpty());
    EXPECT_THAT(ec::namesIn(""), IsEmpty());
    fs::permissions(other + "/inner", fs::perms::none);
    const tests::AsOrdinaryUser user(other + "/inner");
    EXPECT_THAT(ec::namesIn(other + "/inner"), IsEmpty());
}

TEST_F(FolderListing, AnEmptyNameIsTheFolderItself) {
    EXPECT_EQ(ec::inFolder("/a", "b"), "/a/b");
    EXPECT_EQ(ec::inFolder("/a", ""), "/a");
}

TEST_F(FolderListing, PathsAreJoinedWithOneSeparatorBetweenTheirParts) {
    EXPECT_EQ(ec::joinedPath("/a", "b//c"), "/a/b/c");
    EXPECT_EQ(ec::joinedPath("/a//", "/b/"), "/a/b");
    EXPECT_EQ(ec::joinedPath("/a", ""), "/a");
    EXPECT_EQ(ec::joinedPath("", "b//c/"), "b/c");
    EXPECT_EQ(ec::joinedPath("/", "b"), "/b");
    EXPECT_EQ(ec::joinedPath("", ""), "");
    EXPECT_EQ(ec::joinedPath("", "//"), "/");
}

TEST_F(FolderListing, LinksAreFollowedToWhatTheyLeadTo) {
    EXPECT_TRUE(ec::leadsSomewhere(one + "/link"));
    fs::remove(one + "/file");
    EXPECT_FALSE(ec::leadsSomewhere(one + "/link"));
    EXPECT_TRUE(ec::isFolder(one));
    EXPECT_FALSE(ec::isFolder(other + "/file"));
    fs::create_symlink(one, folder.path("to one"));
    EXPECT_TRUE(ec::isFolder(folder.path("to one")));
}

TEST_F(FolderListing, EqualTreesAreEqualAndContainEachOther) {
    EXPECT_TRUE(areEqual());
    EXPECT_TRUE(ec::contains(one, other));
    EXPECT_TRUE(ec::contentsAreEqual(one + "/link", other + "/link"));
    EXPECT_TRUE(ec::contentsAreEqual(one + "/file", other + "/file"));
}

TEST_F(FolderListing, OneByteMoreOrElseTellsTreesApart) {
    std::string bytes(200'000, 'x');
    bytes.back() = 'y';
    folder.write("other/inner/.hidden", bytes);
    EXPECT_FALSE(areEqual());
    EXPECT_FALSE(ec::contains(one, other));
    folder.write("other/inner/.hidden", bytes + "y");
    EXPECT_FALSE(areEqual());
}

TEST_F(FolderListing, ANameMoreTellsTreesApartButTheLargerStillContainsTheSmaller) {
    folder.write("other/inner/more", "");
    EXPECT_FALSE(areEqual());
    EXPECT_TRUE(ec::contains(other, one));
    EXPECT_FALSE(ec::contains(one, other));
}

TEST_F(FolderListing, ALinksTargetAndKindsTellTreesApart) {
    fs::remove(other + "/link");
    fs::create_symlink("elsewhere", other + "/link");
    EXPECT_FALSE(areEqual());
    fs::remove(other + "/link");
    fs::copy_file(other + "/file", other + "/link");
    EXPECT_FALSE(areEqual()) << "the same bytes, but no link";
    EXPECT_FALSE(ec::contentsAreEqual(one, other + "/file"));
}

TEST_F(FolderListing, WhatCanNotBeReadIsEqualToNothing) {
    EXPECT_FALSE(ec::contentsAreEqual(one + "/none", other + "/none"));
    EXPECT_FALSE(ec::contains(one + "/none", other + "/none"));
    fs::permissions(one + "/file", fs::perms::none);
    const tests::AsOrdinaryUser user(folder.path());
    EXPECT_FALSE(areEqual());
}

TEST_F(FolderListing, APipeIsEqualToNothingAndIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo((one + "/pipe").c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo((other + "/pipe").c_str(), 0600), 0);
    EXPECT_FALSE(areEqual());
}

} // namespace
