// The updater's operations one by one: the search, the tool's runs and what follows them.
#include "patcher/Patcher.h"

#include <gmock/gmock.h>

#include "tests/patcher/PatcherStage.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using State = ec::CopyOutcome::State;

struct Patcher : testing::Test, tests::PatcherStage {
    std::vector<std::string> found() {
        EXPECT_GE(controller.findAllScrivels(), 0);
        std::vector<std::string> folders;
        for (const ec::CopyOutcome& copy : controller.copies)
            folders.push_back(copy.folder);
        return folders;
    }
};

// --- The search

TEST_F(Patcher, WithoutAnApplicationForTheDocumentNotEvenTheUsualInstallationIsExamined) {
    addUnknown("Applications/Scrivel 21");
    EXPECT_EQ(controller.findAllScrivels(), 0);
    EXPECT_THAT(host.tools.calls, IsEmpty());
    EXPECT_THAT(host.streams.appended, IsEmpty());
    EXPECT_THAT(controller.copies, IsEmpty());
    EXPECT_THAT(host.applications.documents, ElementsAre(probe()));
}

TEST_F(Patcher, TheUsualInstallationIsExaminedLastWhereTheHostDoesNotNameIt) {
    const std::string other = add("Applications/Other");
    const std::string usual = addUnknown("Applications/Scrivel 21");
    EXPECT_EQ(controller.findAllScrivels(), 2);
    EXPECT_THAT(toolRuns(), ElementsAre("-n " + other, "-n " + usual));
}

TEST_F(Patcher, TheUsualInstallationIsExaminedOnceWhereTheHostNamesIt) {
    const std::string usual = add("Applications/Scrivel 21");
    const std::string other = add("Applications/Other");
    EXPECT_EQ(controller.findAllScrivels(), 2);
    EXPECT_THAT(toolRuns(), ElementsAre("-n " + usual, "-n " + other));
}

TEST_F(Patcher, TheUsualInstallationCountsOnlyAsAFolder) {
    const std::string other = add("Applications/Other");
    folder.write("Applications/Scrivel 21/Scrivel 21.app", "a file");
    EXPECT_THAT(found(), ElementsAre(other));
}

TEST_F(Patcher, TheUsualInstallationUnderAnotherSpellingIsExaminedTwiceAsIsWanted) {
    add("Applications/Scrivel 21");
    host.applications.openers["enl"] = {folder.path("Applications/./Scrivel 21/Scrivel 21.app")};
    patchTool.copies[folder.path("Applications/./Scrivel 21")] = Copy::old;
    EXPECT_EQ(controller.findAllScrivels(), 2);
}

TEST_F(Patcher, LetterCaseDoesNotCountInTheApplicationsNameAndAnyOtherNameIsPassedOver) {
    const std::string capitals = add("One", Copy::old, "SCRIVEL 21.APP");
    add("Two", Copy::old, "Scrivel 21 copy.app");
    add("Three", Copy::old, "Scrivel 21");
    add("Scrivel 21.app", Copy::old, "Other.app");
    const std::string small = add("Four", Copy::old, "scrivel 21.app");
    EXPECT_THAT(found(), ElementsAre(capitals, small));
    EXPECT_THAT(toolRuns(), ElementsAre("-n " + capitals, "-n " + small));
}

TEST_F(Patcher, TheSearchLogsEachCopyAndKeepsThoseThatTheUpdateFits) {
    const std::string first = add("First");
    const std::string altered = add("Altered", Copy::altered);
    const std::string current = add("Current", Copy::current);
    const std::string second = add("Second");
    EXPECT_EQ(controller.findAllScrivels(), 2);
    EXPECT_THAT(logged(),
                ElementsAre(testLine(first), "Found patchable candidate: " + first + ".",
                            testLine(altered, 1), "Found unpatchable instance: " + altered + ".",
                            testLine(current, 6), "Found unpatchable instance: " + current + ".",
                            testLine(second), "Found patchable candidate: " + second + "."));
    EXPECT_THAT(host.systemLog.lines, ElementsAre(first, altered, current, second));
    EXPECT_EQ(controller.setupCurrentScrivel(), first);
}

TEST_F(Patcher, TheToolsTestGetsTheBaseArgumentsAndTheFlagForADryRun) {
    const std::string its = add("A Copy");
    (void)controller.findAllScrivels();
    EXPECT_THAT(host.tools.calls,
                ElementsAre(ports::ToolCall{tool(), {"-d", its, "-i", patch(), "-n"}}));
}

TEST_F(Patcher, WhatDoesNotFitIsToldFromWhatIsUpToDateAndTheLogKnowsNothingOfTheQuestion) {
    add("Altered", Copy::altered);
    add("Current", Copy::current);
    add("Old");
    (void)controller.findAllScrivels();
    ASSERT_EQ(controller.copies.size(), 3u);
    EXPECT_EQ(controller.copies[0].state, State::unfit);
    EXPECT_EQ(controller.copies[1].state, State::current);
    EXPECT_EQ(controller.copies[2].state, State::offered);
    EXPECT_EQ(controller.copies[2].version, "21.0");
    for (const std::string& line : logged())
        EXPECT_EQ(line.find("--verify"), std::string::npos) << line;
}

TEST_F(Patcher, AStatusCountsByItsLowByte) {
    const std::string its = add("A");
    host.tools.answers = {{.status = 256}, {.status = 257}, {.status = 255}};
    EXPECT_FALSE(controller.patchScrivel(its, true));
    EXPECT_TRUE(controller.patchScrivel(its, true));
    EXPECT_TRUE(controller.patchScrivel(its, true));
}

TEST_F(Patcher, AToolThatIsMissingMakesEveryCopyUnfit) {
    const std::string its = add("A");
    host.tools.handler = [](const ports::ToolCall&) {
        return fakes::FakeTools::Answer{.cannotStart = true};
    };
    EXPECT_EQ(controller.findAllScrivels(), 0);
    EXPECT_THAT(logged(),
                ElementsAre(testLine(its, 127), "Found unpatchable instance: " + its + "."));
    EXPECT_EQ(controller.copies.at(0).state, State::unfit);
}

TEST_F(Patcher, AnEmptyDocumentStandsThereForTheSearchAlone) {
    fs::create_directories(folder.path("tmp"));
    add("A");
    bool stood = false;
    patchTool.whileTesting = [&] {
        stood = fs::is_regular_file(probe()) && fs::file_size(probe()) == 0;
    };
    (void)controller.findAllScrivels();
    EXPECT_TRUE(stood);
    EXPECT_FALSE(fs::exists(probe()));
}

TEST_F(Patcher, ADocumentThatStandsThereAlreadyIsUsedAsItIsAndGoesToo) {
    folder.write("tmp/do_not_use_testfile.enl", "somebody's");
    add("A");
    std::string text;
    patchTool.whileTesting = [&] { text = tests::contentsOf(probe()); };
    (void)controller.findAllScrivels();
    EXPECT_EQ(text, "somebody's");
    EXPECT_FALSE(fs::exists(probe()));
}

TEST_F(Patcher, ADocumentThatCanNotBeMadeOrRemovedDoesNotStopTheSearch) {
    const std::string its = add("A");
    EXPECT_THAT(found(), ElementsAre(its)) << "there is no folder for it";
    folder.write("tmp/do_not_use_testfile.enl/kept", "");
    EXPECT_EQ(controller.findAllScrivels(), 2);
    EXPECT_TRUE(fs::exists(probe() + "/kept")) << "that is nobody's empty document";
}

TEST_F(Patcher, NoFileIsMadeWhereALinkAtTheDocumentsPlaceLeads) {
    fs::create_directories(folder.path("tmp"));
    fs::create_symlink(folder.path("elsewhere"), probe());
    add("A");
    patchTool.whileTesting = [&] { EXPECT_FALSE(fs::exists(folder.path("elsewhere"))); };
    EXPECT_EQ(controller.findAllScrivels(), 1);
    EXPECT_TRUE(fs::is_symlink(probe()));
}

TEST_F(Patcher, TheListIsNeverClearedByAnotherSearchAsIsWanted) {
    const std::string its = add("A");
    EXPECT_EQ(controller.findAllScrivels(), 1);
    EXPECT_EQ(controller.findAllScrivels(), 2);
    controller.forgetScrivels();
    EXPECT_EQ(controller.findAllScrivels(), 1);
}

// --- Applying the update

TEST_F(Patcher, ARunThatWasStartedIsFollowedByTheAddInAndThenTheContent) {
    const std::string its = add("A");
    EXPECT_FALSE(controller.patchScrivel(its, false)) << "false is success";
    EXPECT_THAT(host.administrator.calls,
                ElementsAre(ports::ToolCall{tool(), {"-d", its, "-i", patch()}}));
    EXPECT_THAT(logged(),
                ElementsAre("Authenticate", "Authentication status :Succeeded",
                            "Running as admin: " + tool() + " " + baseArguments(its) + " Result: 0",
                            "State: Penmark Mode: mode_remove",
                            "findApplicationsWithBundleIdentifier: com.microsoft.Word",
                            "findApplication: Microsoft Word", " Result= Disable",
                            "State: Penmark Mode: mode_copy",
                            "findApplicationsWithBundleIdentifier: com.microsoft.Word",
                            "findApplication: Microsoft Word", " Result= Disable",
                            "Executing applyPatch",
                            "execCmdLineApp applyPatch " + baseArguments(its) + " -C result: "));
    EXPECT_THAT(host.systemLog.lines, ElementsAre(its));
}

TEST_F(Patcher, ARefusalAnswersAsASuccessAndLeavesOutTheAddInAndTheContent) {
    const std::string its = add("A");
    host.administrator.rightsError = ports::Administrator::kDenied;
    EXPECT_FALSE(controller.patchScrivel(its, false));
    EXPECT_THAT(logged(), ElementsAre("Authenticate", "Authentication status :Failed"));
    EXPECT_THAT(host.administrator.calls, IsEmpty());
    EXPECT_THAT(host.tools.calls, IsEmpty());
}

TEST_F(Patcher, WhereNoSessionForTheRightsCanBeMadeItIsARefusalToo) {
    const std::string its = add("A");
    host.administrator.sessionError = ports::Administrator::kDenied;
    EXPECT_FALSE(controller.patchScrivel(its, false));
    EXPECT_THAT(logged(), ElementsAre("Authenticate", "Authentication status :Failed"));
    EXPECT_THAT(host.tools.calls, IsEmpty());
}

TEST_F(Patcher, ARunThatCouldNotBeStartedLeavesOutTheAddInAndTheContent) {
    const std::string its = add("A");
    host.administrator.missing = {tool()};
    EXPECT_TRUE(controller.patchScrivel(its, false));
    const std::string status = std::to_string(ports::Administrator::kToolExecuteFailure);
    EXPECT_THAT(logged(), ElementsAre("Authenticate", "Authentication status :Succeeded",
                                      "Failed to authenticate: " + tool() + " Result: " + status,
                                      "Running as admin: " + tool() + " " + baseArguments(its) +
                                          " Result: " + status));
    EXPECT_THAT(host.tools.calls, IsEmpty());
}

TEST_F(Patcher, TheAddInOfTheCopyIsInstalledAgainAndTheOldOneGoesFirst) {
    const std::string its = add("A");
    const std::string word = folder.path("Applications/Microsoft Word.app");
    fs::create_directories(word);
    host.applications.installed["com.microsoft.Word"] = {word};
    host.bundles.strings[{word, "CFBundleShortVersionString"}] = "16.89";
    const std::string bundle = "Scrivel PMRK Word 16.bundle";
    fs::create_directories(its + "/Penmark/" + bundle);
    const std::string startup = folder.path(std::string(ec::kSharedStartupFolder).substr(1));
    fs::create_directories(startup + "/" + bundle);
    (void)controller.patchScrivel(its, false);
    std::vector<std::string> changes;
    for (const ports::ToolCall& call : host.tools.calls)
        if (call.tool != tool())
            changes.push_back(call.tool + " " + ec::joined(call.arguments));
    EXPECT_THAT(changes, ElementsAre("/usr/bin/chflags -R nouchg " + startup + "/" + bundle,
                                     "/bin/rm -rf " + startup + "/" + bundle,
                                     "/usr/bin/ditto -rsrcFork " + its + "/Penmark/" + bundle +
                                         " " + startup + "/" + bundle));
}

/// A copy that is old, with content of two categories, and what the tool says of it.
struct PatcherContent : Patcher {
    std::string its = add("Copies/A");
    std::string content = its + "/Product-Support/Content.bundle";

    /// What was copied and removed after the update with the listing.
    std::vector<std::string> changes(const std::string& lines) {
        patchTool.listing = lines;
        host.tools.calls.clear();
        (void)controller.patchScrivel(its, false);
        std::vector<std::string> done;
        for (const ports::ToolCall& call : host.tools.calls)
            if (call.tool != tool())
                done.push_back(fs::path(call.tool).filename().string() + " " +
                               call.arguments.back());
        return done;
    }
    std::string item(const std::string& name, bool isThere = true) {
        const std::string path = content + "/" + name;
        if (isThere)
            folder.write("Copies/A/Product-Support/Content.bundle/" + name, "new");
        return path;
    }
    void installed(const std::string& name) { folder.write("Copies/A/" + name, "old"); }
};

TEST_F(PatcherContent, ItemsOfTheUpdateAreCopiedWhereTheirSetIsAndThoseThatAreGoneAreRemoved) {
    installed("Filters/one.filter");
    installed("Filters/gone.filter");
    const std::string one = item("Filters/Law/one.filter");
    const std::string gone = item("Filters/Law/gone.filter", false);
    const std::string style = item("Styles/Law/one.style");
    EXPECT_THAT(changes("one," + one + "\ngone," + gone + "\nstyle," + style + "\n"),
                ElementsAre("chflags " + its + "/Filters/gone.filter",
                            "rm " + its + "/Filters/gone.filter", "ditto " + its + "/Filters"));
    std::vector<std::string> lines = logged();
    lines.erase(lines.begin(), std::ranges::find(lines, "Executing applyPatch"));
    EXPECT_THAT(
        lines,
        ElementsAre(
            "Executing applyPatch",
            "execCmdLineApp applyPatch " + baseArguments(its) + " -C result: one," + one +
                "\ngone," + gone + "\nstyle," + style,
            "Remove File: " + its + "/Filters/gone.filter",
            "Unlock File: " + its + "/Filters/gone.filter",
            "Running as user: /usr/bin/chflags nouchg " + its + "/Filters/gone.filter Result: 0",
            "Running as user: /bin/rm -f " + its + "/Filters/gone.filter Result: 0",
            "Copy: " + one + " -> " + its + "/Filters",
            "Running as user: /usr/bin/ditto -rsrcFork " + one + " " + its + "/Filters Result: 0"));
}

TEST_F(PatcherContent, ALineOfThreeFieldsOrOfOneIsIgnored) {
    installed("Filters/one.filter");
    const std::string one = item("Filters/Law/one.filter");
    EXPECT_THAT(changes("A," + one + ",C\n" + one + "\nA," + one + ",\n\n"), IsEmpty());
    EXPECT_THAT(changes("," + one + "\n"), ElementsAre("ditto " + its + "/Filters"));
}

TEST_F(PatcherContent, ALineWhoseSecondFieldLacksTheContentPathIsIgnored) {
    installed("Filters/one.filter");
    const std::string one = item("Filters/Law/one.filter");
    EXPECT_THAT(changes(one + ",one\nA,/Product-Support/Content.bundle/Filters/Law/one.filter\n"),
                IsEmpty());
}

TEST_F(PatcherContent, TheContentPathHasOneSeparatorBetweenItsPartsAndMayStandAnywhereInTheField) {
    installed("Filters/one.filter");
    const std::string one = item("Filters/Law/one.filter");
    const std::string doubled = its + "/Product-Support//Content.bundle/Filters/Law/one.filter";
    EXPECT_THAT(changes("A," + doubled + "\n"), IsEmpty());
    EXPECT_THAT(changes("A,/." + one + "\n"), ElementsAre("ditto " + its + "/Filters"));
}

TEST_F(PatcherContent, AnItemThatIsListedTwiceIsCopiedOnce) {
    installed("Filters/one.filter");
    const std::string one = item("Filters/Law/one.filter");
    EXPECT_THAT(changes("A," + one + "\nB," + one + "\n"),
                ElementsAre("ditto " + its + "/Filters"));
}

TEST_F(PatcherContent, TheListingsLastCharacterIsDroppedWhateverItIs) {
    installed("Filters/one.filter");
    const std::string one = item("Filters/Law/one.filter");
    EXPECT_THAT(changes("A," + one), IsEmpty()) << "it ends in one.filte then, which is not there";
    EXPECT_THAT(changes("A," + one + "\n"), ElementsAre("ditto " + its + "/Filters"));
}

TEST_F(PatcherContent, AToolThatCanNotListTheContentChangesNone) {
    installed("Filters/one.filter");
    host.tools.handler = [&](const ports::ToolCall&) {
        return fakes::FakeTools::Answer{.status = 1,
                                        .output = "A," + item("Filters/Law/one.filter") + "\n"};
    };
    EXPECT_THAT(changes(""), IsEmpty());
    EXPECT_EQ(logged().back(),
              "execCmdLineApp applyPatch " + baseArguments(its) + " -C result: ERROR");
}

TEST_F(Patcher, TheContentOfACopyInAFolderWithAnyNameIsFound) {
    const std::string its = add("Büro/日本語");
    const std::string one = its + "/Product-Support/Content.bundle/Filters/Öl/eins.filter";
    folder.write("Büro/日本語/Product-Support/Content.bundle/Filters/Öl/eins.filter", "new");
    folder.write("Büro/日本語/Filters/eins.filter", "old");
    patchTool.listing = "A," + one + "\n";
    (void)controller.patchScrivel(its, false);
    EXPECT_EQ(timesLogged("Copy: " + one + " -> " + its + "/Filters"), 1);
}

// --- The copy that is offered

TEST_F(Patcher, TheCopyThatIsOfferedIsNamedInTheQuestionAndInTheLineOfProgress) {
    const std::string its = add("A");
    (void)controller.findAllScrivels();
    EXPECT_EQ(controller.setupCurrentScrivel(), its);
    EXPECT_EQ(controller.patchFound.text(), question(its));
    EXPECT_EQ(controller.processingText.text(), "Updating: " + its);
}

TEST_F(Patcher, TheTextOfAnErrorNamesWhatItIsGiven) {
    controller.patchError("/A");
    EXPECT_EQ(controller.patchFound.text(),
              "\nAn error occurred while attempting to update a copy of Scrivel at this "
              "location:\n\n/A\n\nWould you like to try again?\n");
}

TEST_F(Patcher, TheTextsAreInTheUsersLanguage) {
    host.texts.table = {{question("%@"), "Die Kopie %@?"}, {"Updating: %@", "Gerade: %@"}};
    add("A");
    (void)controller.findAllScrivels();
    (void)controller.setupCurrentScrivel();
    EXPECT_EQ(controller.patchFound.text(), "Die Kopie " + folder.path("A") + "?");
    EXPECT_EQ(controller.processingText.text(), "Gerade: " + folder.path("A"));
}

TEST_F(Patcher, WithoutACopyNothingIsAskedAndNothingUpdated) {
    EXPECT_EQ(controller.setupCurrentScrivel(), std::nullopt);
    EXPECT_EQ(controller.patchFound.text(), "");
    for (int i = 0; i < 3; ++i) {
        controller.doPatchYes();
        controller.doPatchNo();
        controller.nextScrivel();
    }
    EXPECT_THAT(host.tools.calls, IsEmpty());
    EXPECT_THAT(host.administrator.calls, IsEmpty());
}

} // namespace
