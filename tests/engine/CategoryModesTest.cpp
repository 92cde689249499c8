#include "engine/CategoryModes.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/engine/LogLines.h"
#include "tests/engine/MethodsStage.h"
#include "tests/engine/ToolsInProcess.h"
#include "tests/support/TreeOf.h"

namespace {

namespace fs = std::filesystem;
using ec::OpMode;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr ec::OptionalText kNone = std::nullopt;

struct CategoryModesTest : testing::Test {
    static constexpr std::uint32_t kFilters = 0, kLaw = 1, kNoPath = 2, kEmptyPath = 3, kSlash = 4,
                                   kTop = 5;
    tests::MethodsStage stage{"Filters|0|All filters|inst_allCategories|Filters\n"
                              "Law|1|Filters for law|inst_Category|Filters/Law|Filters/Other\n"
                              "None|1|No path|inst_Category\n"
                              "Empty|1|Empty path|inst_Category|\n"
                              "Slash|1|Slash at the end|inst_Category|Filters/Law/\n"
                              "Top|1|No collection|inst_Category|Filters\n"};
    ec::ecController& controller = stage.controller;
    const std::string law = stage.content("Filters/Law");
    const std::string physics = stage.content("Filters/Physics");
    const std::string popular = stage.content("Most Popular/Filters");
    const std::string filters = stage.beside("Filters");

    void SetUp() override { tests::serveInProcess(stage.host); }
    void makeContent() {
        stage.writeContent("Filters/Law/law 1");
        stage.writeContent("Filters/Law/law 2");
        stage.writeContent("Filters/Physics/physics 1");
        stage.writeContent("Most Popular/Filters/law 1");
    }
    int one(OpMode mode, std::uint32_t item = kLaw) {
        return controller.installCategoryMode(mode, item, kNone, kNone).value();
    }
    int all(OpMode mode, std::uint32_t item = kFilters) {
        return controller.installAllCategoriesMode(mode, item, kNone, kNone).value();
    }
    std::vector<std::string> installed() const {
        return fs::exists(filters) ? stage.folder.names("Scrivel 21/Filters")
                                   : std::vector<std::string>{"no folder"};
    }
};

TEST_F(CategoryModesTest, ACategoryIsThereWhenEveryNameOfItIs) {
    makeContent();
    EXPECT_EQ(one(OpMode::check), 0);
    stage.writeBeside("Filters/law 1");
    EXPECT_EQ(one(OpMode::check), 0) << "not the second";
    stage.writeBeside("Filters/law 2", "other content");
    EXPECT_EQ(one(OpMode::check), 1);
    const std::string line = "State: Scrivel Content Files Mode: mode_check";
    EXPECT_THAT(stage.logged(), ElementsAre(line, line, line));
    EXPECT_EQ(controller.processingText.text(), "Processing: Scrivel Content Files");
}

TEST_F(CategoryModesTest, TheVerdictOfACategoryCopyIsWantedToBeInverted) {
    makeContent();
    EXPECT_EQ(one(OpMode::copy), 0) << "a copy that went well";
    EXPECT_THAT(installed(), ElementsAre("law 1", "law 2"));
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all({{"State: Scrivel Content Files Mode: mode_copy"},
                                             lines::copied(law, filters)})));
    fs::remove_all(law);
    EXPECT_EQ(one(OpMode::copy), 1) << "a copy that failed";
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all({{"State: Scrivel Content Files Mode: mode_copy"},
                                             lines::notCopied(law, filters)})));
}

TEST_F(CategoryModesTest, ACategoryIsRemovedNameByName) {
    makeContent();
    for (const char* name : {"law 1", "law 2", "physics 1", "the user's own"})
        stage.writeBeside("Filters/" + std::string(name));
    EXPECT_EQ(one(OpMode::remove), 1);
    EXPECT_THAT(installed(), ElementsAre("physics 1", "the user's own"));
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all({{"State: Scrivel Content Files Mode: mode_remove"},
                                             lines::removedFile(filters + "/law 1"),
                                             lines::removedFile(filters + "/law 2")})));
}

TEST_F(CategoryModesTest, RemovingFromACollectionThatIsNotThereIsNo) {
    makeContent();
    EXPECT_EQ(one(OpMode::remove), 0);
    EXPECT_THAT(stage.logged(), ElementsAre("State: Scrivel Content Files Mode: mode_remove"));
}

TEST_F(CategoryModesTest, AnyOtherModeIsNo) {
    makeContent();
    for (const int mode : {0, 4, -1}) {
        EXPECT_EQ(one(OpMode{mode}), 0) << mode;
        EXPECT_EQ(all(OpMode{mode}), 0) << mode;
        EXPECT_THAT(stage.logged(), ElementsAre("State: Scrivel Content Files Mode: mode_invalid"));
    }
    EXPECT_THAT(stage.run(), IsEmpty());
}

TEST_F(CategoryModesTest, ARuleWithoutACategoryRaisesAndIsNo) {
    makeContent();
    const tests::Tree before = tests::treeOf(stage.folder.path());
    for (const std::uint32_t item : {kNoPath, kEmptyPath, 100u})
        for (const OpMode mode : {OpMode::check, OpMode::copy, OpMode::remove}) {
            EXPECT_EQ(one(mode, item), 0);
            EXPECT_EQ(stage.logged().back(), "Exception Raised ");
            EXPECT_EQ(all(mode, item), 0);
            EXPECT_THAT(stage.logged(), ElementsAre("Exception Raised "));
        }
    EXPECT_EQ(tests::treeOf(stage.folder.path()), before)
        << "least of all the application's own folder is removed";
}

TEST_F(CategoryModesTest, ASeparatorAtTheEndOfACategoryPathCountsForNothing) {
    makeContent();
    EXPECT_EQ(one(OpMode::copy, kSlash), 0);
    EXPECT_THAT(installed(), ElementsAre("law 1", "law 2"));
}

TEST_F(CategoryModesTest, ACategoryWithoutACollectionGoesBesideTheApplication) {
    makeContent();
    EXPECT_EQ(one(OpMode::check, kTop), 0);
    EXPECT_EQ(one(OpMode::copy, kTop), 0);
    EXPECT_TRUE(fs::exists(stage.beside("Law/law 1")));
    EXPECT_EQ(one(OpMode::check, kTop), 1);
    EXPECT_EQ(one(OpMode::remove, kTop), 1);
    EXPECT_FALSE(fs::exists(stage.beside("Law")));
    EXPECT_TRUE(fs::exists(stage.beside("Product-Support")));
}

TEST_F(CategoryModesTest, AnEmptyCategoryIsNoAndItsCopyPassesTheEmptyFolderToTheTool) {
    fs::create_directories(law);
    EXPECT_EQ(one(OpMode::check), 0);
    EXPECT_EQ(one(OpMode::remove), 0);
    EXPECT_THAT(stage.run(), IsEmpty());
    EXPECT_EQ(one(OpMode::copy), 0);
    EXPECT_THAT(stage.run(), ElementsAre("/usr/bin/ditto -rsrcFork " + law + " " + filters));
    EXPECT_THAT(installed(), IsEmpty());
}

TEST_F(CategoryModesTest, ACollectionIsThereNotThereOrMixed) {
    makeContent();
    EXPECT_EQ(all(OpMode::check), 0);
    stage.writeBeside("Filters/law 1");
    EXPECT_EQ(all(OpMode::check), 0) << "no category is whole";
    stage.writeBeside("Filters/law 2");
    EXPECT_EQ(all(OpMode::check), -2);
    stage.writeBeside("Filters/physics 1");
    EXPECT_EQ(all(OpMode::check), 1);
    EXPECT_THAT(stage.logged(), IsEmpty());
}

TEST_F(CategoryModesTest, AMixedCollectionIsWantedToBeAStateThatTheLogCallsInvalid) {
    makeContent();
    stage.writeBeside("Filters/physics 1");
    controller.logResult(all(OpMode::check), "");
    EXPECT_THAT(stage.logged(), ElementsAre(" Result= Invalid"));
}

TEST_F(CategoryModesTest, ACollectionThatIsMissingOrEmptyIsNoInCheckAndCopy) {
    EXPECT_EQ(all(OpMode::check), 0);
    EXPECT_EQ(all(OpMode::copy), 0);
    fs::create_directories(stage.content("Filters"));
    EXPECT_EQ(all(OpMode::check), 0);
    EXPECT_EQ(all(OpMode::copy), 0);
    EXPECT_THAT(stage.run(), IsEmpty());
}

TEST_F(CategoryModesTest, AFileAmongTheCategoriesOrAnEmptyOneIsNeverThere) {
    makeContent();
    EXPECT_EQ(all(OpMode::copy), 1);
    EXPECT_EQ(all(OpMode::check), 1);
    stage.writeContent("Filters/.DS_Store");
    EXPECT_EQ(all(OpMode::check), -2);
    fs::remove(stage.content("Filters/.DS_Store"));
    fs::create_directories(stage.content("Filters/Empty"));
    EXPECT_EQ(all(OpMode::check), -2);
}

TEST_F(CategoryModesTest, ACollectionIsCopiedCategoryByCategoryInOrder) {
    makeContent();
    EXPECT_EQ(all(OpMode::copy), 1);
    EXPECT_THAT(installed(), ElementsAre("law 1", "law 2", "physics 1"));
    EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all({lines::copied(law, filters),
                                                             lines::copied(physics, filters)})));
}

TEST_F(CategoryModesTest, TheFirstCopyThatFailsStopsTheCollection) {
    makeContent();
    stage.fail("/ditto");
    stage.host.administrator.missing = {"/usr/bin/ditto"};
    EXPECT_EQ(all(OpMode::copy), 0);
    EXPECT_THAT(stage.run(), ElementsAre("/usr/bin/ditto -rsrcFork " + law + " " + filters));
}

TEST_F(CategoryModesTest, RemovingACollectionIsWantedToLeaveTheMostPopular) {
    makeContent();
    EXPECT_EQ(all(OpMode::copy), 1);
    stage.writeBeside("Filters/the user's own");
    stage.logged();
    EXPECT_EQ(all(OpMode::remove), 1);
    EXPECT_THAT(installed(), ElementsAre("law 1"));
    EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all({lines::removedFolder(filters),
                                                             lines::madeFolder(filters),
                                                             lines::copied(popular, filters)})));
}

TEST_F(CategoryModesTest, RemovingACollectionThatIsNotThereInstallsTheMostPopular) {
    makeContent();
    EXPECT_EQ(all(OpMode::remove), 1);
    EXPECT_THAT(installed(), ElementsAre("law 1"));
}

TEST_F(CategoryModesTest, WithoutTheMostPopularRemovingIsNoAndLeavesAnEmptyFolder) {
    makeContent();
    fs::remove_all(popular);
    stage.writeBeside("Filters/law 1");
    EXPECT_EQ(all(OpMode::remove), 0);
    EXPECT_THAT(installed(), IsEmpty());
    EXPECT_EQ(fs::status(filters).permissions(), fs::perms::all);
}

TEST_F(CategoryModesTest, WhenACollectionCanNotBeRemovedNothingIsCopied) {
    makeContent();
    stage.writeBeside("Filters/physics 1");
    stage.fail("/rm");
    stage.host.administrator.missing = {"/bin/rm"};
    EXPECT_EQ(all(OpMode::remove), 0);
    EXPECT_THAT(installed(), ElementsAre("physics 1"));
    for (const std::string& command : stage.run())
        EXPECT_EQ(command.find("ditto"), std::string::npos) << command;
}

TEST_F(CategoryModesTest, ARefusedRemovalCountsAsOneAndTheMostPopularAreCopiedOverTheRest) {
    makeContent();
    stage.writeBeside("Filters/physics 1");
    stage.refuseRights();
    stage.host.tools.handler = [](const ports::ToolCall& call) {
        return fakes::FakeTools::Answer{.status =
                                            call.tool == "/bin/rm" ? 1 : tests::runInProcess(call)};
    };
    EXPECT_EQ(all(OpMode::remove), 1);
    EXPECT_THAT(installed(), ElementsAre("law 1", "physics 1"));
}

} // namespace
