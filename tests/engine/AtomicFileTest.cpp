#include "engine/AtomicFile.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using ec::writeAtomically;
using testing::ElementsAre;

struct AtomicFile : testing::Test {
    tests::TemporaryFolder folder;
    std::string file = folder.path("file");
};

TEST_F(AtomicFile, TheBytesAreThereAndNothingElse) {
    const std::string bytes("a\0b\n", 4);
    EXPECT_TRUE(writeAtomically(file, bytes));
    EXPECT_EQ(folder.read("file"), bytes);
    EXPECT_TRUE(writeAtomically(file, ""));
    EXPECT_EQ(folder.read("file"), "");
    EXPECT_THAT(folder.names(), ElementsAre("file"));
}

TEST_F(AtomicFile, AFileIsReplacedAndALinkIsNotWrittenThrough) {
    folder.write("old", "old");
    fs::create_symlink("old", file);
    EXPECT_TRUE(writeAtomically(file, "new"));
    EXPECT_FALSE(fs::is_symlink(file));
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_EQ(folder.read("old"), "old");
}

TEST_F(AtomicFile, ALinkThatSomebodyPutInTheWayIsNotWrittenThrough) {
    folder.write("victim", "precious");
    fs::create_symlink("victim", file + ".new");
    EXPECT_TRUE(writeAtomically(file, "new"));
    EXPECT_EQ(folder.read("victim"), "precious");
    EXPECT_EQ(folder.read("file"), "new");
}

TEST_F(AtomicFile, WithoutAFolderToWriteToNothingIsMade) {
    EXPECT_FALSE(writeAtomically(folder.path("none/file"), "text"));
    EXPECT_FALSE(fs::exists(folder.path("none")));
}

TEST_F(AtomicFile, AFolderInTheFilesPlaceStaysAndNothingIsLeftBeside) {
    folder.write("file/inner", "text");
    EXPECT_FALSE(writeAtomically(file, "new"));
    EXPECT_EQ(folder.read("file/inner"), "text");
    EXPECT_THAT(folder.names(), ElementsAre("file"));
}

TEST_F(AtomicFile, WhatIsInTheWayAndCanNotGoStopsTheWriting) {
    folder.write("file", "old");
    folder.write("file.new/inner", "text");
    EXPECT_FALSE(writeAtomically(file, "new"));
    EXPECT_EQ(folder.read("file"), "old");
}

TEST_F(AtomicFile, AFolderThatMayNotBeWrittenKeepsTheOldFile) {
    folder.write("file", "old");
    fs::permissions(folder.path(), fs::perms(0555));
    const tests::AsOrdinaryUser user(folder.path());
    EXPECT_FALSE(writeAtomically(file, "new"));
    EXPECT_EQ(folder.read("file"), "old");
    EXPECT_THAT(folder.names(), ElementsAre("file"));
}

} // namespace
