// What each operation logs, runs and answers, with tools that only remember.
#include "engine/FileOperations.h"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "tests/support/TemporaryFolder.h"
#include "wizard/ecController.h"

namespace {

namespace fs = std::filesystem;
using ec::ExitStatus;
using testing::ElementsAre;
using testing::IsEmpty;

struct FileOperationsTest : testing::Test {
    tests::TemporaryFolder temporary;
    fs::path root = temporary.path();
    std::string folder = (root / "a folder").string();
    std::string file = (root / "file").string();
    std::string none = (root / "none").string();
    fakes::FakeHost host;
    tests::Components components;
    ec::ecController controller{host.host(), components.rules, components.root};

    void SetUp() override {
        fs::create_directories(folder);
        std::ofstream(file) << "text";
    }

    std::vector<std::string> run() const {
        std::vector<std::string> lines;
        for (const auto& call : host.tools.calls)
            lines.push_back(call.tool + " " + ec::joined(call.arguments));
        return lines;
    }
    void everyUserRunFails() {
        host.tools.handler = [](const auto&) { return fakes::FakeTools::Answer{.status = 1}; };
    }
    void refuseRights() { host.administrator.rightsError = 1; }
};

TEST_F(FileOperationsTest, AFolderIsUnlockedWholeAndThenRemoved) {
    EXPECT_TRUE(controller.removeFile(folder).succeeded());
    EXPECT_THAT(run(),
                ElementsAre("/usr/bin/chflags -R nouchg " + folder, "/bin/rm -rf " + folder));
    EXPECT_THAT(host.logged(),
                ElementsAre("Remove File: " + folder, "Unlock Dir: " + folder,
                            "Running as user: /usr/bin/chflags -R nouchg " + folder + " Result: 0",
                            "Running as user: /bin/rm -rf " + folder + " Result: 0"));
}

TEST_F(FileOperationsTest, AFileIsUnlockedAndThenRemoved) {
    EXPECT_TRUE(controller.removeFile(file).succeeded());
    EXPECT_THAT(run(), ElementsAre("/usr/bin/chflags nouchg " + file, "/bin/rm -f " + file));
}

TEST_F(FileOperationsTest, RemovingWhatIsNotThereSucceedsAndRunsNoTool) {
    EXPECT_TRUE(controller.removeFile(none).succeeded());
    EXPECT_THAT(run(), IsEmpty());
    EXPECT_THAT(host.logged(), ElementsAre("Remove File: " + none));
}

TEST_F(FileOperationsTest, AFailedRemovalUnlocksAgainAndRemovesAsAdministrator) {
    host.tools.answers = {{.status = 0}, {.status = 1}, {.status = 0}};
    EXPECT_TRUE(controller.removeFile(file).succeeded());
    EXPECT_THAT(run(), ElementsAre("/usr/bin/chflags nouchg " + file, "/bin/rm -f " + file,
                                   "/usr/bin/chflags nouchg " + file));
    ASSERT_EQ(host.administrator.calls.size(), 1u);
    EXPECT_EQ(host.administrator.calls[0], (ports::ToolCall{"/bin/rm", {std::string("-f"), file}}));
}

TEST_F(FileOperationsTest, AMissingPathFailsAfterItsLineAndRunsNothing) {
    const std::optional<std::string_view> missing;
    EXPECT_EQ(controller.removeFile(missing), ExitStatus::failure());
    EXPECT_EQ(controller.renameFile(missing, file), ExitStatus::failure());
    EXPECT_EQ(controller.copyPath(file, missing), ExitStatus::failure());
    EXPECT_EQ(controller.unlockFile(missing), ExitStatus::failure());
    EXPECT_EQ(controller.unlockDir(missing), ExitStatus::failure());
    EXPECT_EQ(controller.chmod(file, missing), ExitStatus::failure());
    EXPECT_EQ(controller.makeDir(missing), ExitStatus::failure());
    EXPECT_EQ(controller.symLink(missing, missing), ExitStatus::failure());
    EXPECT_THAT(run(), IsEmpty());
    EXPECT_THAT(host.logged(), ElementsAre("Remove File: (null)", "Rename File: (null) -> " + file,
                                           "Copy: " + file + " -> (null)", "Unlock File: (null)",
                                           "Unlock Dir: (null)", "chmod: " + file + " mode:(null)",
                                           "Make Dir: (null)", "SymLink: (null) -> (null)"));
}

TEST_F(FileOperationsTest, ASourceThatDoesNotExistFailsWithALineOfItsOwn) {
    EXPECT_EQ(controller.renameFile(none, file), ExitStatus::failure());
    EXPECT_EQ(controller.copyPath(none, file), ExitStatus::failure());
    EXPECT_EQ(controller.symLink(none, file), ExitStatus::failure());
    EXPECT_THAT(run(), IsEmpty());
    EXPECT_THAT(host.logged(), ElementsAre("Rename File: " + none + " -> " + file,
                                           "rename: source path does not exist: " + none,
                                           "Copy: " + none + " -> " + file,
                                           "Copy: source path does not exist: " + none,
                                           "SymLink: " + none + " -> " + file,
                                           "file or dir '" + none + "' is missing"));
}

TEST_F(FileOperationsTest, EachOperationRunsItsToolWithItsArguments) {
    EXPECT_TRUE(controller.renameFile(file, none).succeeded());
    EXPECT_TRUE(controller.copyPath(folder, none).succeeded());
    EXPECT_TRUE(controller.unlockFile(none).succeeded());
    EXPECT_TRUE(controller.unlockDir(none).succeeded());
    EXPECT_TRUE(controller.chmod(file, "755").succeeded());
    EXPECT_TRUE(controller.symLink(file, none).succeeded());
    EXPECT_THAT(run(),
                ElementsAre("/bin/mv " + file + " " + none,
                            "/usr/bin/ditto -rsrcFork " + folder + " " + none,
                            "/usr/bin/chflags nouchg " + none, "/usr/bin/chflags -R nouchg " + none,
                            "/bin/chmod 755 " + file, "/bin/ln -s " + file + " " + none));
}

TEST_F(FileOperationsTest, EachOperationGoesOnAsAdministrator) {
    everyUserRunFails();
    EXPECT_TRUE(controller.renameFile(file, none).succeeded());
    EXPECT_TRUE(controller.copyPath(folder, none).succeeded());
    EXPECT_TRUE(controller.unlockFile(none).succeeded());
    EXPECT_TRUE(controller.chmod(file, "755").succeeded());
    EXPECT_TRUE(controller.symLink(file, none).succeeded());
    EXPECT_EQ(host.administrator.calls.size(), 5u);
    EXPECT_EQ(host.administrator.prompts, 1);
}

TEST_F(FileOperationsTest, ACancelledPromptIsWantedToCountAsSuccess) {
    everyUserRunFails();
    refuseRights();
    EXPECT_TRUE(controller.copyPath(folder, none).succeeded());
    EXPECT_THAT(host.logged(), ElementsAre("Copy: " + folder + " -> " + none,
                                           "Running as user: /usr/bin/ditto -rsrcFork " + folder +
                                               " " + none + " Result: 1",
                                           "Authenticate", "Authentication status :Failed"));
}

TEST_F(FileOperationsTest, AnAdministratorRunThatCanNotStartFails) {
    everyUserRunFails();
    host.administrator.missing.insert("/bin/mv");
    EXPECT_EQ(controller.renameFile(file, none), ExitStatus::failure());
}

TEST_F(FileOperationsTest, AMadeFolderIsOpenedToEveryone) {
    EXPECT_TRUE(controller.makeDir(none).succeeded());
    EXPECT_THAT(run(), ElementsAre("/bin/mkdir -p " + none, "/bin/chmod 777 " + none));
}

TEST_F(FileOperationsTest, MakingAFolderWhereAFileStandsSucceedsAndMakesNothing) {
    EXPECT_TRUE(controller.makeDir(file).succeeded());
    EXPECT_TRUE(controller.makeDir(folder).succeeded());
    EXPECT_THAT(run(), IsEmpty());
    EXPECT_TRUE(fs::is_regular_file(file));
}

TEST_F(FileOperationsTest, AFolderThatCouldNotBeMadeIsNotOpened) {
    everyUserRunFails();
    host.administrator.missing.insert("/bin/mkdir");
    EXPECT_EQ(controller.makeDir(none), ExitStatus::failure());
    EXPECT_THAT(run(), ElementsAre("/bin/mkdir -p " + none));
}

struct AliasTest : FileOperationsTest {
    std::string alias = (root / "alias").string();
    void SetUp() override {
        FileOperationsTest::SetUp();
        host.finderFiles.items[root.string()] = {};
        host.finderFiles.items[file] = {.type = 0x54455854, .creator = 0x41424344, .flags = 0x0100};
    }
};

TEST_F(AliasTest, AnAliasTakesTheTargetsTypeAndCreatorAndTheAliasFlagOnly) {
    EXPECT_TRUE(controller.makeAliasTarget(file, alias));
    EXPECT_FALSE(host.finderFiles.aliases.at(alias).empty());
    EXPECT_EQ(
        host.finderFiles.items.at(alias),
        (ports::FinderInformation{.type = 0x54455854, .creator = 0x41424344, .flags = 0x8000}));
    EXPECT_THAT(host.logged(), IsEmpty());
}

TEST_F(AliasTest, AnEmptyRecordIsWantedToReadAsTrueAndMakesNothing) {
    host.finderFiles.givesEmptyRecords = true;
    EXPECT_TRUE(controller.makeAliasTarget(file, alias));
    EXPECT_FALSE(host.finderFiles.items.contains(alias));
    EXPECT_THAT(host.logged(), IsEmpty());
}

TEST_F(AliasTest, AMissingTargetOrParentFailsWithItsErrorCode) {
    EXPECT_FALSE(controller.makeAliasTarget(none, alias));
    EXPECT_FALSE(controller.makeAliasTarget(file, "/nowhere/alias"));
    EXPECT_THAT(host.logged(),
                ElementsAre("makeAliasTarget: [" + none + "] [" + alias + "] Error code: -43",
                            "makeAliasTarget: [" + file + "] [/nowhere/alias] Error code: -43"));
}

TEST_F(AliasTest, EveryFailingStepIsLoggedWithItsErrorCode) {
    for (const std::string step :
         {"finderInformation", "createAliasFile", "setFinderInformation"}) {
        host.finderFiles.errors = {{step, -61}};
        host.finderFiles.items.erase(alias);
        EXPECT_FALSE(controller.makeAliasTarget(file, alias)) << step;
    }
    EXPECT_EQ(host.logged().size(), 3u);
    EXPECT_EQ(host.logged()[2], "makeAliasTarget: [" + file + "] [" + alias + "] Error code: -61");
}

} // namespace
