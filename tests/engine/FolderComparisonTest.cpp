#include "engine/FolderComparison.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/engine/LogLines.h"
#include "tests/engine/MethodsStage.h"
#include "tests/engine/ToolsInProcess.h"
#include "tests/support/OrdinaryUser.h"

namespace {

namespace fs = std::filesystem;
using ec::OptionalText;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr OptionalText kNone = std::nullopt;

struct FolderComparisonTest : testing::Test {
    tests::MethodsStage stage;
    ec::FolderComparison& folders = stage.controller;
    std::string a = stage.folder.path("a");
    std::string b = stage.folder.path("b");

    void SetUp() override { tests::serveInProcess(stage.host); }
    /// Both folders, with files of these names.
    void make(const std::vector<std::string>& inA, const std::vector<std::string>& inB) {
        fs::create_directories(a);
        fs::create_directories(b);
        for (const std::string& name : inA)
            stage.folder.write("a/" + name, "a");
        for (const std::string& name : inB)
            stage.folder.write("b/" + name, "b");
    }
};

TEST_F(FolderComparisonTest, OneCommonNameIsSomeAndAllNamesAreAll) {
    make({"1", "2"}, {"2", "3"});
    EXPECT_TRUE(folders.someItemsAtPath(a, b));
    EXPECT_FALSE(folders.itemsAtPath(a, b));
    stage.folder.write("b/1", "");
    EXPECT_TRUE(folders.itemsAtPath(a, b));
    EXPECT_FALSE(folders.itemsAtPath(b, a)) << "3 is not in the first";
    EXPECT_THAT(stage.logged(), IsEmpty());
}

TEST_F(FolderComparisonTest, WithoutACommonNameThereIsNeither) {
    make({"1"}, {"2"});
    EXPECT_FALSE(folders.someItemsAtPath(a, b));
    EXPECT_FALSE(folders.itemsAtPath(a, b));
}

TEST_F(FolderComparisonTest, InOneLookAFolderIsReadOnceAndAfterItAnew) {
    make({"1"}, {"2"});
    {
        const ec::FolderComparison::OneLook look(folders);
        EXPECT_FALSE(folders.itemsAtPath(a, b));
        stage.folder.write("b/1", "");
        EXPECT_FALSE(folders.itemsAtPath(a, b)) << "as it was at the first look";
    }
    EXPECT_TRUE(folders.itemsAtPath(a, b));
}

TEST_F(FolderComparisonTest, NamesAreComparedExactly) {
    make({"Name", "\xC3\xA4"}, {"name", "a\xCC\x88", "Name "});
    EXPECT_FALSE(folders.someItemsAtPath(a, b));
}

TEST_F(FolderComparisonTest, OnlyDirectEntriesCountWhateverTheyAre) {
    make({"inner/1"}, {"2/1", "1"});
    EXPECT_FALSE(folders.someItemsAtPath(a, b));
    fs::create_symlink("nowhere", b + "/inner");
    EXPECT_TRUE(folders.itemsAtPath(a, b)) << "a link that leads nowhere has a name as well";
}

TEST_F(FolderComparisonTest, AMissingPathOrFolderAnEmptyOneAndAFileAreAlwaysFalse) {
    make({"1"}, {"1"});
    fs::create_directory(stage.folder.path("empty"));
    const std::string empty = stage.folder.path("empty");
    const std::string missing = stage.folder.path("missing");
    const std::string file = a + "/1";
    for (const OptionalText other : {kNone, OptionalText(empty), OptionalText(missing),
                                     OptionalText(file), OptionalText("")}) {
        for (const auto& [one, two] :
             {std::pair(OptionalText(a), other), {other, a}, {other, other}}) {
            EXPECT_FALSE(folders.someItemsAtPath(one, two)) << ec::shown(other);
            EXPECT_FALSE(folders.itemsAtPath(one, two)) << ec::shown(other);
            EXPECT_FALSE(folders.removeItemsAtPath(one, two)) << ec::shown(other);
        }
    }
    EXPECT_THAT(stage.run(), IsEmpty());
    EXPECT_THAT(stage.logged(), IsEmpty());
    EXPECT_TRUE(fs::exists(file));
}

TEST_F(FolderComparisonTest, AFolderThatMayNotBeReadIsFalse) {
    make({"1"}, {"1"});
    fs::permissions(b, fs::perms(0300));
    const tests::AsOrdinaryUser user(stage.folder.path());
    EXPECT_FALSE(folders.someItemsAtPath(b, a));
    EXPECT_FALSE(folders.itemsAtPath(a, b));
}

TEST_F(FolderComparisonTest, WhatBothHaveIsRemovedAndTheRestStays) {
    make({"1", "2/inner", "4"}, {"1", "2/other", "3"});
    EXPECT_TRUE(folders.removeItemsAtPath(a, b));
    EXPECT_THAT(stage.folder.names("b"), ElementsAre("3"));
    EXPECT_THAT(stage.folder.names("a"), ElementsAre("1", "2", "4"));
    EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all({lines::removedFile(b + "/1"),
                                                             lines::removedFolder(b + "/2"),
                                                             lines::nothingToRemove(b + "/4")})));
}

TEST_F(FolderComparisonTest, TheFirstRemovalThatFailsStopsTheRest) {
    make({"1", "2", "3"}, {"1", "2", "3"});
    stage.host.administrator.missing = {"/bin/rm"};
    stage.host.tools.handler = [&](const ports::ToolCall& call) {
        const bool stays = call.tool == "/bin/rm" && call.arguments.at(1) == b + "/2";
        return fakes::FakeTools::Answer{.status = stays ? 1 : tests::runInProcess(call)};
    };
    EXPECT_FALSE(folders.removeItemsAtPath(a, b));
    EXPECT_THAT(stage.folder.names("b"), ElementsAre("2", "3"));
}

TEST_F(FolderComparisonTest, ARefusalCountsAsARemovalAsItDoesForEveryOperation) {
    make({"1", "2"}, {"1", "2"});
    stage.fail("/rm");
    stage.refuseRights();
    EXPECT_TRUE(folders.removeItemsAtPath(a, b));
    EXPECT_THAT(stage.folder.names("b"), ElementsAre("1", "2"));
}

/// Sources as "update/Filters/Law/ITEM"; the target is the folder "Filters" in `base`.
struct PatchedCategories : FolderComparisonTest {
    std::string base = stage.folder.path("base");
    std::string target = base + "/Filters";
    std::string source(const std::string& item) const {
        return stage.folder.path("update/Filters/Law/" + item);
    }
    void SetUp() override {
        FolderComparisonTest::SetUp();
        stage.folder.write("update/Filters/Law/new.filter", "new");
        stage.folder.write("update/Filters/Law/known.filter", "newer");
        stage.folder.write("base/Filters/known.filter", "old");
        stage.folder.write("base/Filters/gone.filter", "old");
    }
};

TEST_F(PatchedCategories, SourcesThatExistAreCopiedWhereTheSetIsInstalled) {
    folders.installPatchCategoriesItems({source("new.filter"), source("known.filter")}, base);
    EXPECT_THAT(stage.folder.names("base/Filters"),
                ElementsAre("gone.filter", "known.filter", "new.filter"));
    EXPECT_EQ(stage.folder.read("base/Filters/known.filter"), "newer");
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all({lines::copied(source("new.filter"), target),
                                             lines::copied(source("known.filter"), target)})));
}

TEST_F(PatchedCategories, SourcesOfASetThatIsNotInstalledAreNotCopied) {
    fs::remove(target + "/known.filter");
    folders.installPatchCategoriesItems({source("new.filter")}, base);
    EXPECT_THAT(stage.folder.names("base/Filters"), ElementsAre("gone.filter"));
    EXPECT_THAT(stage.logged(), IsEmpty());
}

TEST_F(PatchedCategories, WhatTheUpdateNoLongerHasIsRemovedWhereItIsThere) {
    folders.installPatchCategoriesItems({source("gone.filter"), source("never.filter")}, base);
    EXPECT_THAT(stage.folder.names("base/Filters"), ElementsAre("known.filter"));
    EXPECT_THAT(stage.logged(), ElementsAreArray(lines::removedFile(target + "/gone.filter")));
}

TEST_F(PatchedCategories, AFolderIsMergedIntoTheTargetAsTheCopyToolDoes) {
    stage.folder.write("update/Filters/Law/Courts/inner.filter", "inner");
    folders.installPatchCategoriesItems({source("Courts")}, base);
    EXPECT_THAT(stage.folder.names("base/Filters"),
                ElementsAre("gone.filter", "inner.filter", "known.filter"));
}

TEST_F(PatchedCategories, AFolderThatTheUpdateNoLongerHasIsRemovedWhole) {
    stage.folder.write("base/Filters/Courts/inner.filter", "inner");
    folders.installPatchCategoriesItems({source("Courts")}, base);
    EXPECT_FALSE(fs::exists(target + "/Courts"));
}

TEST_F(PatchedCategories, FailuresAreNotLookedAt) {
    stage.fail("/ditto");
    stage.host.administrator.missing = {"/usr/bin/ditto"};
    folders.installPatchCategoriesItems({source("new.filter"), source("gone.filter")}, base);
    EXPECT_THAT(stage.run().back(), "/bin/rm -f " + target + "/gone.filter");
}

TEST_F(PatchedCategories, WithoutAPathOrSourcesNothingHappens) {
    folders.installPatchCategoriesItems({source("new.filter"), source("gone.filter")}, kNone);
    folders.installPatchCategoriesItems({}, base);
    EXPECT_THAT(stage.logged(), IsEmpty());
    EXPECT_THAT(stage.run(), IsEmpty());
}

} // namespace
