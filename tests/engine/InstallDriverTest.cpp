// The driver over operations that only remember: what is called in which order, and each line of
// the log between the calls.
#include "engine/InstallDriver.h"

#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/engine/MethodsStage.h"

namespace {

using ec::OpMode;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

const std::string kEveryMethod = "Group|0|Just a group\n"
                                 "W|1|Word|inst_Word\n"
                                 "F|1|File|inst_File\n"
                                 "D|1|Dir|inst_Dir\n"
                                 "S|1|Services|inst_Services\n"
                                 "P|1|Spotlight|inst_Spotlight\n"
                                 "T|1|Tessaron|inst_Tessaron\n"
                                 "U|1|Uninst|inst_Uninst\n"
                                 "C|1|Category|inst_Category\n"
                                 "A|1|All|inst_allCategories\n"
                                 "X|1|Unknown|inst_Unknown";

class Driven {
  public:
    explicit Driven(const std::string& text) : stage(text) {}

    tests::MethodsStage stage;
    /// What the operations answer next, by name; 1 where nothing is said.
    std::map<std::string, std::vector<int>> answers;
    std::vector<std::string>& events = stage.events;
    ec::ecRules& rules = stage.components.rules;
    ec::ecController& controller = stage.controller;
    /// Called from within each operation.
    std::function<void()> during = [] {};

    ec::InstallDriver driver{{.log = controller,
                              .session = controller,
                              .steps = controller,
                              .rules = rules,
                              .bundles = stage.host.bundles,
                              .folders = controller,
                              .audit = controller,
                              .operations = {.word = remembering("word"),
                                             .file = remembering("file"),
                                             .folder = remembering("folder"),
                                             .services = remembering("services"),
                                             .spotlight = remembering("spotlight"),
                                             .tessaron = remembering("tessaron"),
                                             .uninstaller = remembering("uninstaller"),
                                             .category = remembering("category"),
                                             .allCategories = remembering("all categories")}}};

    void setStates(std::initializer_list<std::int32_t> states) {
        std::uint32_t item = 0;
        for (const std::int32_t state : states)
            rules.setItemState(item++, state);
    }
    void setAll(std::int32_t state) {
        for (std::uint32_t item = 0; item < rules.count(); ++item)
            rules.setItemState(item, state);
    }
    std::vector<std::int32_t> states() const {
        std::vector<std::int32_t> all;
        for (std::uint32_t item = 0; item < rules.count(); ++item) {
            EXPECT_EQ(rules.getItemState(item), rules.getItemInitialState(item));
            all.push_back(rules.getItemState(item));
        }
        return all;
    }
    /// The events of a change behind its four first lines, which are checked.
    std::vector<std::string> change() {
        events.clear();
        EXPECT_EQ(driver.makeChange(), 0);
        const std::vector<std::string> first{
            "", "", controller.m_bUninstall ? "Customize un-install" : "Customize install", ""};
        EXPECT_GE(events.size(), first.size());
        EXPECT_TRUE(std::equal(first.begin(), first.end(), events.begin()));
        return {events.begin() + 4, events.end()};
    }

  private:
    ec::InstallOperation remembering(const std::string& name) {
        return [this, name](OpMode mode, std::uint32_t item, ec::OptionalText source,
                            ec::OptionalText dest) {
            constexpr std::array kModes{"?", "check", "copy", "remove"};
            std::string event = "> " + name + " " + kModes.at(static_cast<std::size_t>(mode)) +
                                " " + std::to_string(item);
            if (source)
                event += " from " + std::string(*source);
            if (dest)
                event += " to " + std::string(*dest);
            events.push_back(event);
            during();
            std::vector<int>& queue = answers[name];
            const int answer = queue.empty() ? 1 : queue.front();
            if (!queue.empty())
                queue.erase(queue.begin());
            return ec::MethodAnswer::of(answer);
        };
    }
};

TEST(InstallDriver, ACheckAsksEachMethodInTheOrderOfTheRulesAndPassesTheFileItsFolder) {
    Driven test(kEveryMethod);
    test.driver.installCheck();
    EXPECT_THAT(test.events,
                ElementsAre("> word check 1", "> file check 2 to " + test.stage.bundle() + "/../",
                            "> folder check 3", "> services check 4", "> spotlight check 5",
                            "> tessaron check 6", "> uninstaller check 7", "> category check 8",
                            "> all categories check 9"));
    EXPECT_EQ(test.controller.state(), -1) << "a check does not step the wizard";
}

TEST(InstallDriver, WhatACheckAnswersBecomesBothStatesAndAnUnknownMethodDisables) {
    Driven test(kEveryMethod);
    test.setAll(7);
    test.answers = {{"word", {0}}, {"file", {-1}}, {"folder", {-2}}, {"services", {5}}};
    test.rules.setInitialItemState(0, 9);
    test.driver.installCheck();
    EXPECT_THAT(test.states(), ElementsAre(9, 0, -1, -2, 5, 1, 1, 1, 1, 1, -1));
}

TEST(InstallDriver, MethodNamesAreComparedExactly) {
    Driven test("A|1|a|inst_word\nB|1|b|inst_Word \nC|1|c|\nD|1|d|inst_WordX\nE|1|e|Inst_Word");
    test.driver.installCheck();
    EXPECT_THAT(test.events, IsEmpty());
    EXPECT_THAT(test.states(), ElementsAre(-1, -1, -1, -1, -1));
}

TEST(InstallDriver, WithoutRulesACheckDoesNothingAndAChangeWritesItsFourLinesAndSteps) {
    Driven test("");
    test.driver.installCheck();
    EXPECT_THAT(test.events, IsEmpty());
    EXPECT_THAT(test.change(), IsEmpty());
    EXPECT_EQ(test.controller.state(), 0);
}

TEST(InstallDriver, ARuleWithoutAMethodIsPassedByInEveryRun) {
    Driven test("A|1|a\nGroup|0|g\n\nB");
    for (const std::uint32_t item : {0u, 1u, 2u, 3u})
        test.rules.setInitialItemState(item, 1);
    test.driver.installCheck();
    EXPECT_THAT(test.events, IsEmpty());
    EXPECT_THAT(test.states(), ElementsAre(1, 1, 1, 1)) << "untouched";
    EXPECT_THAT(test.change(), IsEmpty());
    test.controller.m_bUninstall = true;
    EXPECT_THAT(test.change(), IsEmpty());
}

TEST(InstallDriver, AChangeInstallsWhatIsOnAndRemovesWhatIsOff) {
    Driven test("F|1|File|inst_File\nS|1|Services|inst_Services\nC|1|Category|inst_Category");
    test.setStates({1, 0, 1});
    EXPECT_THAT(test.change(),
                ElementsAre("> file copy 0 to " + test.stage.bundle() + "/../",
                            "Installing: File Result: Succeeded", "> services remove 1",
                            "Uninstalling: Services Result: Succeeded", "> category copy 2",
                            "Installing: Category Result: Succeeded"));
    EXPECT_EQ(test.controller.state(), 0);
}

TEST(InstallDriver, TheInitialStateTakesNoPartInTheDecision) {
    for (const std::int32_t initial : {0, 1, -1, -2}) {
        Driven test("S|1|Services|inst_Services\nC|1|Category|inst_Category");
        for (const std::uint32_t item : {0u, 1u})
            test.rules.setInitialItemState(item, initial);
        test.setStates({1, 0});
        EXPECT_THAT(test.change(),
                    ElementsAre("> services copy 0", "Installing: Services Result: Succeeded",
                                "> category remove 1", "Uninstalling: Category Result: Succeeded"));
    }
}

TEST(InstallDriver, AStateThatIsNeitherOnNorOffIsLeftAloneWithoutALine) {
    Driven test("W|1|Word|inst_Word\nS|1|Services|inst_Services\nC|1|Category|inst_Category\n"
                "A|1|All|inst_allCategories\nX|1|Unknown|inst_Unknown");
    test.setStates({-1, -2, 2, 1000, -1});
    EXPECT_THAT(test.change(), IsEmpty());
    EXPECT_EQ(test.controller.state(), 0);
}

TEST(InstallDriver, OnlyTheAnswerOneIsASuccess) {
    Driven test("C|1|Category|inst_Category");
    test.setStates({1});
    for (const int answer : {0, -1, -2, 2, 100}) {
        test.answers["category"] = {answer};
        EXPECT_THAT(test.change(),
                    ElementsAre("> category copy 0", "Installing: Category Result: Failed"));
    }
}

TEST(InstallDriver, AFailureStopsNothing) {
    Driven test("S|1|Services|inst_Services\nC|1|Category|inst_Category");
    test.setStates({1, 1});
    test.answers = {{"services", {0}}};
    EXPECT_THAT(test.change(),
                ElementsAre("> services copy 0", "Installing: Services Result: Failed",
                            "> category copy 1", "Installing: Category Result: Succeeded"));
}

TEST(InstallDriver, AMethodThatNoChangeKnowsIsWantedToRepeatTheResultBefore) {
    Driven test("U|1|Uninst|inst_Uninst\nC|1|Category|inst_Category\nV|1|Uninst 2|inst_Uninst\n"
                "S|1|Services|inst_Services\nX|1|Unknown|inst_Unknown\nY|1|Left alone|inst_Uninst");
    test.setStates({1, 1, 0, 1, 1, -1});
    test.answers = {{"services", {0}}};
    EXPECT_THAT(test.change(),
                ElementsAre("Installing: Uninst Result: Failed", "> category copy 1",
                            "Installing: Category Result: Succeeded",
                            "Uninstalling: Uninst 2 Result: Succeeded", "> services copy 3",
                            "Installing: Services Result: Failed",
                            "Installing: Unknown Result: Failed"));
    test.answers = {};
    EXPECT_EQ(test.change().front(), "Installing: Uninst Result: Failed")
        << "each change begins anew";
}

TEST(InstallDriver, WordIsRemovedBeforeItIsInstalledAndOnlyTheSecondAnswerCounts) {
    Driven test("W|1|Word|inst_Word");
    test.setStates({1});
    test.answers = {{"word", {0, 1}}};
    EXPECT_THAT(test.change(), ElementsAre("> word remove 0", "> word copy 0",
                                           "Installing: Word Result: Succeeded"));
    test.answers = {{"word", {1, 0}}};
    EXPECT_EQ(test.change().back(), "Installing: Word Result: Failed");
    test.setStates({0});
    EXPECT_THAT(test.change(),
                ElementsAre("> word remove 0", "Uninstalling: Word Result: Succeeded"));
}

TEST(InstallDriver, TheDormantForcedInstallOfWordIsWantedWheneverAPathWasAdded) {
    Driven test("W|1|Word|inst_Word\nC|1|Category|inst_Category");
    test.controller.m_bPMRK_path_added = true;
    for (const std::int32_t state : {0, 1}) {
        test.setStates({state, 0});
        EXPECT_THAT(test.change(),
                    ElementsAre("PMRK & Templates has been forced to install because the paths "
                                "have been updated",
                                "> word remove 0", "> word copy 0",
                                "Installing: Word Result: Succeeded", "> category remove 1",
                                "Uninstalling: Category Result: Succeeded"));
    }
    test.setStates({-1, -1});
    EXPECT_THAT(test.change(), IsEmpty()) << "what can't be chosen is not forced either";
}

TEST(InstallDriver, AnUninstallForcesNothing) {
    Driven test("W|1|Word|inst_Word");
    test.controller.m_bPMRK_path_added = true;
    test.controller.m_bUninstall = true;
    test.setStates({1});
    EXPECT_THAT(test.change(),
                ElementsAre("> word remove 0", "Uninstalling: Word Result: Succeeded"));
}

TEST(InstallDriver, AnUninstallRemovesEveryItemWhateverItsState) {
    for (const std::int32_t state : {0, 1, -1, -2, 2}) {
        Driven test(kEveryMethod);
        test.controller.m_bUninstall = true;
        test.setAll(state);
        EXPECT_THAT(test.change(),
                    ElementsAre("> word remove 1", "Uninstalling: Word Result: Succeeded",
                                "> file remove 2 to " + test.stage.bundle() + "/../",
                                "Uninstalling: File Result: Succeeded", "> folder remove 3",
                                "Uninstalling: Dir Result: Succeeded", "> services remove 4",
                                "Uninstalling: Services Result: Succeeded", "> spotlight remove 5",
                                "Uninstalling: Spotlight Result: Succeeded", "> tessaron remove 6",
                                "Uninstalling: Tessaron Result: Succeeded",
                                "Uninstalling: Uninst Result: Succeeded", "> category remove 8",
                                "Uninstalling: Category Result: Succeeded",
                                "> all categories remove 9", "Uninstalling: All Result: Succeeded",
                                "Uninstalling: Unknown Result: Succeeded"))
            << state;
    }
}

TEST(InstallDriver, AnUninstallIsWantedToStepTwice) {
    Driven test("C|1|Category|inst_Category");
    test.controller.m_bUninstall = true;
    (void)test.change();
    EXPECT_EQ(test.controller.state(), 1);
    EXPECT_TRUE(test.controller.m_bUninstall) << "nobody but the start clears it";
}

TEST(InstallDriver, TheWizardStepsOnOnlyAfterTheLastItem) {
    Driven test("C|1|Category|inst_Category\nS|1|Services|inst_Services");
    std::vector<int> states;
    test.during = [&] { states.push_back(test.controller.state()); };
    (void)test.change();
    EXPECT_THAT(states, ElementsAre(-1, -1));
    EXPECT_EQ(test.controller.state(), 0);
}

TEST(InstallDriver, TheInitialInstallRemovesAndInstallsTheAddInAndTheExtensionOnly) {
    Driven test(kEveryMethod);
    test.answers = {{"word", {0, -1}}, {"tessaron", {0, 0}}};
    EXPECT_EQ(test.driver.initialInstall(), 0);
    const std::string stars(54, '*');
    const std::string empty = "**" + std::string(50, ' ') + "**";
    EXPECT_THAT(test.events, ElementsAre(stars, stars, empty,
                                         "**  Initial install                                 **",
                                         empty, empty, empty, "**    Build number: 19023", empty,
                                         stars, stars, "> word remove 0", "> word copy 0",
                                         "> tessaron remove 0", "> tessaron copy 0"));
    EXPECT_EQ(test.controller.state(), 0);
}

TEST(InstallDriver, TheInitialInstallNeedsNoRules) {
    Driven test("");
    EXPECT_EQ(test.driver.initialInstall(), 0);
    EXPECT_EQ(test.events.size(), 15u);
}

// The controller's own operations, by the lines that only they write.
TEST(InstallDriver, TheControllerPutsEachOperationInItsPlace) {
    tests::MethodsStage stage("F|1|x|inst_File\nD|1|x|inst_Dir\nS|1|x|inst_Services\n"
                              "P|1|x|inst_Spotlight\nT|1|x|inst_Tessaron\nU|1|x|inst_Uninst\n"
                              "C|1|x|inst_Category|Filters/Law\nA|1|x|inst_allCategories|Filters");
    stage.controller.installCheck();
    EXPECT_THAT(stage.events,
                ElementsAre("File: (null)", " Result= Disable", "Dir: (null)", "Exception Raised ",
                            "State: Scrivel Services Mode: mode_check",
                            "CHECK: Did not find installed Services",
                            "State: Spotlight Support Mode: mode_check",
                            "CHECK: Did not find installed Spotlight",
                            "State: Tessaron Extension Mode: mode_check",
                            "State: Scrivel Content Files Mode: mode_check"));
    std::vector<std::int32_t> states;
    for (std::uint32_t item = 0; item < stage.components.rules.count(); ++item)
        states.push_back(stage.components.rules.getItemState(item));
    EXPECT_THAT(states, ElementsAre(-1, -1, 0, 0, 0, 0, 0, 0));
}

TEST(InstallDriver, InTheWizardTheFileAndTheFolderAreWantedToRaiseWhenTheyAreChanged) {
    tests::MethodsStage stage("F|1|File|inst_File\nD|1|Dir|inst_Dir");
    for (const std::uint32_t item : {0u, 1u})
        stage.components.rules.setItemState(item, 1);
    EXPECT_EQ(stage.controller.makeChange(), 0);
    EXPECT_THAT(stage.events,
                ElementsAre("", "", "Customize install", "", "File: (null)", "Exception Raised ",
                            "Installing: File Result: Failed", "Dir: (null)", "Exception Raised ",
                            "Installing: Dir Result: Failed"));
}

} // namespace
