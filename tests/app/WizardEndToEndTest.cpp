// The built program's wizard, walked unattended from its first page to its last.
#include <algorithm>
#include <csignal>
#include <thread>
#include <utility>

#include <gmock/gmock.h>

#include "tests/app/InstallerRun.h"

namespace {

using namespace tests;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;

/// Page and state.
using Row = std::pair<int, int>;

const Json kEasyOutline = {"Welcome",       "Read Me",         "License",
                           "Customization", "Updating System", "Summary"};
const Json kCustomOutline = {"Customization", "Updating System", "Summary"};

struct WizardEndToEnd : InstallerRun {
    Result wizard(const std::string& words) { return run(words + " --unattended --events"); }
    Result wizardWith(const std::string& command, const std::string& answers,
                      const std::string& words = "") {
        std::ofstream(folder / "answers.json") << answers;
        return run(command + " --events --answers '" + (folder / "answers.json").string() + "' " +
                   words);
    }
    fs::path resource(const std::string& name) const {
        return bundle / "Contents/Resources" / name;
    }

    static std::vector<Row> rowsOf(const Result& result) {
        std::vector<Row> rows;
        for (const Json& page : result.of("page"))
            rows.emplace_back(page["page"], page["state"]);
        return rows;
    }
    static std::vector<std::string> membersOf(const Json& object) {
        std::vector<std::string> names;
        for (const auto& [name, value] : object.items())
            names.push_back(name);
        return names; // in alphabetical order, as this reader keeps them
    }
    static Json componentOf(const Json& snapshot, const std::string& name) {
        for (const Json& component : snapshot.at("components"))
            if (component.at("name") == name)
                return component;
        return nullptr;
    }
};

// --- every mode from its first page to its last

TEST_F(WizardEndToEnd, CustomizeScansTwiceAndGoesThroughItsTable) {
    const Result result = wizard("customize");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(rowsOf(result), ElementsAre(Row(0, 0), Row(1, 1),                // mode 0
                                            Row(0, 0), Row(6, 1), Row(13, 2),    // mode 1
                                            Row(10, 3), Row(8, 4), Row(11, 5))); // behind Done
    EXPECT_EQ(result.events.front()["command"], "customize");
    const auto pages = result.of("page");
    EXPECT_EQ(pages.at(0)["identity"], "");
    EXPECT_EQ(pages.at(0)["outline"], kEasyOutline);
    EXPECT_EQ(pages.at(1)["title"], "Welcome to Scrivel 21");
    EXPECT_EQ(pages.at(3)["title"], "Select Components");
    EXPECT_EQ(pages.at(3)["identity"], "Customizer_Customizer");
    EXPECT_EQ(pages.at(3)["outline"], kCustomOutline);
    EXPECT_EQ(pages.at(3)["current"], 0);
    EXPECT_EQ(pages.at(4)["title"], "");
    EXPECT_EQ(pages.at(5)["current"], 1);
    EXPECT_EQ(pages.at(6)["title"], "Finish");
    EXPECT_EQ(pages.at(6)["current"], 2);
    EXPECT_EQ(result.events.back()["event"], "finished");
    EXPECT_EQ(result.events.back()["result"], 0);
    EXPECT_EQ(result.events.back()["exit"], 0);
    EXPECT_EQ(result.events.back()["reason"], "");
}

TEST_F(WizardEndToEnd, PenmarkInstallsUnlessToldOtherwise) {
    const Result result = wizard("penmark");
    EXPECT_EQ(result.exit, exitNeedingRights()) << result.error;
    EXPECT_THAT(rowsOf(result), ElementsAre(Row(0, 0), Row(1, 1), Row(0, 0), Row(26, 1), Row(6, 2),
                                            Row(10, 3), Row(27, 4), Row(27, 5)));
    EXPECT_EQ(result.of("page").at(3)["identity"], "Customizer_SVWeb_Install");
    EXPECT_EQ(result.of("page").at(3)["title"], "Welcome to Scrivel Penmark");
    EXPECT_EQ(result.of("finished").at(0)["result"], 129);
}

TEST_F(WizardEndToEnd, FirstInstallShowsTheWholeSequence) {
    const Result result = wizard("first-install --yes");
    EXPECT_EQ(result.exit, exitNeedingRights()) << result.error;
    EXPECT_THAT(rowsOf(result), ElementsAre(Row(0, 0), Row(1, 1), Row(4, 2), Row(5, 3), Row(6, 4),
                                            Row(10, 5), Row(10, 6), Row(7, 7), Row(7, 8)));
    std::vector<std::string> titles;
    for (const Json& page : result.of("page"))
        titles.push_back(page["title"]);
    EXPECT_THAT(titles,
                ElementsAre("", "Welcome to Scrivel 21", "Read Me", "End User License Agreement",
                            "Select Components", "Updating System", "Updating System",
                            "Thank you for using Scrivel 21", ""));
    EXPECT_EQ(result.of("finished").at(0)["result"], 129);
    EXPECT_EQ(logged().back(), "Scrivel 21 Installer: Exited Normally");
}

TEST_F(WizardEndToEnd, TheShortFirstInstallHasFourPages) {
    for (const std::string words : {"first-install --short", "first-install --launch-mode 34"})
        EXPECT_THAT(rowsOf(wizard(words)),
                    ElementsAre(Row(1, 0), Row(4, 1), Row(10, 2), Row(7, 3), Row(7, 4)));
}

TEST_F(WizardEndToEnd, AnyOtherLaunchModeIsTheFullSequence) {
    const Result result = wizard("first-install --yes --launch-mode 4294967295");
    EXPECT_EQ(result.exit, exitNeedingRights()) << result.error;
    EXPECT_THAT(rowsOf(result), testing::SizeIs(9));
}

TEST_F(WizardEndToEnd, UpdateOpensTheFirstInstallAndThenThePatcher) {
    const Result result = wizard("update");
    EXPECT_EQ(result.exit, 0) << result.error;
    const auto rows = rowsOf(result);
    ASSERT_GE(rows.size(), 5u);
    EXPECT_THAT(std::vector(rows.begin(), rows.begin() + 5),
                ElementsAre(Row(0, 0), Row(1, 1), Row(14, 0), Row(4, 1), Row(0, 2)));
    EXPECT_EQ(result.of("page").at(2)["identity"], "Customizer_Patcher");
    EXPECT_EQ(result.of("page").at(2)["title"], "Welcome to Scrivel 21 Update");
}

TEST_F(WizardEndToEnd, ThePageOfServicesAndSpotlightStaysWhereItIsNeeded) {
    const Result result =
        wizardWith("customize", R"({"steps": [{"set": "Spotlight importer", "state": 1},
            {"press": "nextBtn"}, {"snapshot": "levels"}]})");
    const Json snapshot = result.of("snapshot").at(0);
    EXPECT_EQ(snapshot["page"], 13);
    EXPECT_EQ(snapshot["controls"]["spotBtns"]["enabled"], true);
    EXPECT_EQ(snapshot["controls"]["servBtns"]["enabled"], false);
}

TEST_F(WizardEndToEnd, WithoutEventsASummaryAndThePlaceOfTheLogArePrinted) {
    const Result result = run("customize --unattended");
    EXPECT_EQ(result.exit, 0);
    EXPECT_THAT(result.output, HasSubstr("The log is " + log().string()));
    EXPECT_THAT(result.error, IsEmpty());
}

// --- the licence

TEST_F(WizardEndToEnd, WithoutYesTheLicenceIsDeclined) {
    const Result result = wizard("first-install");
    EXPECT_EQ(result.exit, 1);
    EXPECT_THAT(rowsOf(result), ElementsAre(Row(0, 0), Row(1, 1), Row(4, 2), Row(5, 3)));
    EXPECT_THAT(result.of("finished").at(0)["reason"].get<std::string>(), HasSubstr("--yes"));
    EXPECT_THAT(result.error, HasSubstr("--yes"));
    EXPECT_EQ(logged().back(), "Scrivel 21 Installer: User Cancelled");
}

TEST_F(WizardEndToEnd, StepsAgreeAndDisagreeToTheLicence) {
    const Result result = wizardWith("first-install", R"({"steps": [
        {"press": "nextBtn"}, {"press": "nextBtn"}, {"snapshot": "before"},
        {"select": "agreeBtns", "row": 0}, {"snapshot": "agreed"},
        {"select": "agreeBtns", "row": 1}, {"snapshot": "disagreed"}]})");
    EXPECT_EQ(result.exit, 1);
    std::vector<bool> enabled;
    for (const Json& snapshot : result.of("snapshot"))
        enabled.push_back(snapshot["controls"]["nextBtn"]["enabled"]);
    EXPECT_THAT(enabled, ElementsAre(false, true, false));
}

// --- questions

TEST_F(WizardEndToEnd, WithoutYesNothingIsUninstalled) {
    const Result result = wizardWith(
        "penmark", R"({"steps": [{"select": "matSVWInstall", "row": 1}, {"press": "nextBtn"}]})");
    EXPECT_EQ(result.exit, 1);
    const Json question = result.of("question").at(0);
    EXPECT_THAT(membersOf(question),
                ElementsAre("answer", "buttons", "code", "event", "message", "time", "title"));
    EXPECT_EQ(question["title"], "Scrivel 21 Installer");
    EXPECT_EQ(question["message"], "Uninstall will remove Scrivel Penmark from your computer.  "
                                   "Are you sure you want to do this?");
    EXPECT_EQ(question["buttons"], Json({"No", "Yes"}));
    EXPECT_EQ(question["answer"], "No");
    EXPECT_EQ(question["code"], 1);
    EXPECT_EQ(rowsOf(result).back(), Row(26, 1));
}

TEST_F(WizardEndToEnd, AnswersAreGivenToTheWizardsQuestionsInOrder) {
    const std::string steps = R"("steps": [{"select": "matSVWInstall", "row": 1},
        {"press": "nextBtn"}, {"press": "nextBtn"}])";
    for (const Result& result : {wizardWith("penmark", R"({"answers": ["Yes"], )" + steps + "}"),
                                 wizardWith("penmark", "{" + steps + "}", "--yes")}) {
        EXPECT_EQ(result.exit, 0) << result.error;
        EXPECT_EQ(result.of("question").at(0)["answer"], "Yes");
        EXPECT_EQ(result.of("question").at(0)["code"], 0);
        EXPECT_THAT(rowsOf(result), AllOf(Contains(Row(10, 6)), Contains(Row(28, 8))));
    }
}

TEST_F(WizardEndToEnd, AnAnswerThatTheWizardsQuestionLacksEndsWithThreeAndDeclines) {
    const Result result = wizardWith("penmark", R"({"answers": ["Maybe"], "steps": [
        {"select": "matSVWInstall", "row": 1}, {"press": "nextBtn"}]})",
                                     "--yes");
    EXPECT_EQ(result.exit, 3);
    EXPECT_THAT(result.error, AllOf(HasSubstr("answers[0]"), HasSubstr("\"Maybe\""),
                                    HasSubstr("\"No\", \"Yes\"")));
    EXPECT_EQ(result.of("question").at(0)["answer"], "No");
    EXPECT_THAT(rowsOf(result), Not(Contains(Row(10, 6))));
}

TEST_F(WizardEndToEnd, TheUninstallButtonOfTheCustomizerGoesThroughToItsSummary) {
    const Result result = wizardWith("customize", R"({"answers": ["Yes"],
        "steps": [{"press": "uninstallBtn"}, {"snapshot": "after"}, {"press": "nextBtn"}]})");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(result.of("question").at(0)["message"].get<std::string>(),
                HasSubstr("all external Scrivel components"));
    EXPECT_EQ(result.of("snapshot").at(0)["controls"]["uninstallBtn"]["enabled"], false);
    EXPECT_EQ(rowsOf(result).back().first, 11);
}

// --- steps

TEST_F(WizardEndToEnd, ASnapshotShowsEveryKindOfControlAndTheComponents) {
    const Result result = wizardWith("customize", R"({"steps": [{"snapshot": "at rest"}]})");
    EXPECT_EQ(result.exit, 1);
    const Json snapshot = result.of("snapshot").at(0);
    EXPECT_THAT(membersOf(snapshot),
                ElementsAre("components", "controls", "event", "name", "page", "state", "time"));
    EXPECT_EQ(snapshot["name"], "at rest");
    EXPECT_EQ(snapshot["page"], 6);
    EXPECT_EQ(snapshot["state"], 1);
    const Json& controls = snapshot["controls"];
    EXPECT_EQ(controls["nextBtn"],
              Json({{"kind", "button"}, {"title", "Next"}, {"enabled", true}, {"hidden", false}}));
    EXPECT_EQ(controls["titleText"], Json({{"kind", "text"},
                                           {"text", "Select Components"},
                                           {"enabled", true},
                                           {"hidden", false}}));
    EXPECT_EQ(controls["ecTabView"], Json({{"kind", "tabs"}, {"selected", 6}}));
    EXPECT_EQ(controls["matSVWInstall"],
              Json({{"kind", "radio"}, {"selected", 0}, {"enabled", true}}));
    EXPECT_EQ(controls["acTbl"],
              Json({{"kind", "table"}, {"rows", Json::array()}, {"selected", -1}}));
    EXPECT_EQ(controls["progress"]["kind"], "progress");
    EXPECT_EQ(controls["progress"]["running"], false);
    EXPECT_EQ(controls["ecImage"]["kind"], "image");
    EXPECT_EQ(controls["ecOutlineView"]["kind"], "outline");
    EXPECT_EQ(controls["licenseText"]["kind"], "document");
    EXPECT_THAT(controls["licenseText"]["file"].get<std::string>(),
                testing::EndsWith("en.lproj/License.html"));
    EXPECT_EQ(snapshot["components"].at(3), Json({{"item", 3},
                                                  {"name", "Chemistry"},
                                                  {"group", 2},
                                                  {"state", 0},
                                                  {"initial", 0},
                                                  {"enabled", true}}));
    EXPECT_EQ(snapshot["components"].at(0)["group"], nullptr);
}

TEST_F(WizardEndToEnd, MembersStandInTheOrderThatTheContractGives) {
    const Result result = wizardWith("customize", R"({"steps": [{"snapshot": "s"}]})");
    EXPECT_THAT(result.output, HasSubstr(R"("nextBtn":{"kind":"button","title":"Next",)"
                                         R"("enabled":true,"hidden":false})"));
    EXPECT_THAT(result.output, HasSubstr(R"({"item":14,"name":"Spotlight importer","group":13,)"
                                         R"("state":0,"initial":0,"enabled":true})"));
    EXPECT_THAT(result.output, testing::ContainsRegex(R"("event":"page","time":"[^"]*","page":6,)"
                                                      R"("state":1,"title":"Select Components",)"
                                                      R"("outline":\[[^]]*\],"current":0,)"
                                                      R"("identity":"Customizer_Customizer")"));
    EXPECT_THAT(result.output, testing::ContainsRegex(R"("event":"finished","time":"[^"]*",)"
                                                      R"("result":0,"exit":1,"reason":)"));
}

TEST_F(WizardEndToEnd, ComponentsAreToggledAndSetAsByClicks) {
    const Result result = wizardWith("customize", R"({"steps": [
        {"toggle": "History"}, {"snapshot": "one of six"},
        {"toggle": "Content categories"}, {"snapshot": "all"},
        {"set": "Content categories/Law", "state": 0}, {"set": "Law", "state": 0},
        {"set": "Spotlight importer", "state": 1}, {"set": "Services", "state": 1},
        {"snapshot": "end"}]})");
    EXPECT_EQ(result.exit, 1) << result.error;
    const auto snapshots = result.of("snapshot");
    EXPECT_EQ(componentOf(snapshots.at(0), "Content categories")["state"], -2);
    EXPECT_EQ(componentOf(snapshots.at(0), "History")["state"], 1);
    EXPECT_EQ(componentOf(snapshots.at(1), "Law")["state"], 1);
    EXPECT_EQ(componentOf(snapshots.at(2), "Law")["state"], 0);
    EXPECT_EQ(componentOf(snapshots.at(2), "Content categories")["state"], -2);
    EXPECT_EQ(componentOf(snapshots.at(2), "System integration")["state"], 1);
    EXPECT_EQ(componentOf(snapshots.at(2), "Services")["initial"], 0);
}

TEST_F(WizardEndToEnd, ActionsAreCalledByTheirSelectorsFirstKeyword) {
    const Result result =
        wizardWith("customize", R"({"steps": [{"call": "setCont"}, {"snapshot": "s"}]})");
    EXPECT_EQ(result.of("snapshot").at(0)["controls"]["nextBtn"]["title"], "Continue");
    const Result jump =
        wizardWith("customize", R"({"steps": [{"call": "doGoCustom"}, {"snapshot": "s"}]})");
    EXPECT_EQ(jump.of("snapshot").at(0)["state"], 7) << "one past the last row";
    EXPECT_EQ(jump.of("snapshot").at(0)["page"], 6);
}

TEST_F(WizardEndToEnd, StepsThatCanNotBeDoneEndWithThreeAndNameTheReason) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {R"({"press": "backBtn"})", "disabled"},
        {R"({"press": "logBtn"})", "hidden"},
        {R"({"press": "noSuchBtn"})", "no button \"noSuchBtn\""},
        {R"({"press": "titleText"})", "another kind"},
        {R"({"toggle": "Nothing"})", "no component \"Nothing\""},
        {R"({"set": "Nothing", "state": 1})", "Spotlight importer"},
        {R"({"select": "agreeBtns", "row": 2})", "no row 2"},
        {R"({"select": "agreeBtns", "row": -1})", "no row -1"},
        {R"({"select": "acTbl", "row": 0})", "no radio matrix"},
        {R"({"selectRow": "acTbl", "row": 0})", "no row 0"},
        {R"({"selectRow": "agreeBtns", "row": 0})", "no table"},
        {R"({"call": "noSuchAction"})", "no action \"noSuchAction\""},
        {R"({"call": ""})", "no action"},
    };
    for (const auto& [step, reason] : cases) {
        const Result result =
            wizardWith("customize", R"({"steps": [{"snapshot": "first"}, )" + step + "]}");
        EXPECT_EQ(result.exit, 3) << step;
        EXPECT_THAT(result.error, AllOf(HasSubstr("steps[1]"), HasSubstr(reason)));
        EXPECT_EQ(result.of("finished").at(0)["exit"], 3);
        EXPECT_EQ(std::ranges::count(result.error, '\n'), 1) << result.error;
    }
}

TEST_F(WizardEndToEnd, ARadioMatrixThatIsDisabledCanNotBeSelectedIn) {
    const Result result = wizardWith("customize", R"({"steps": [{"set": "Services", "state": 1},
        {"press": "nextBtn"}, {"select": "servBtns", "row": 1},
        {"select": "spotBtns", "row": 1}]})");
    EXPECT_EQ(result.exit, 3);
    EXPECT_THAT(result.error, AllOf(HasSubstr("steps[3]"), HasSubstr("disabled")));
}

TEST_F(WizardEndToEnd, AnEventIsWaitedForByItsMembers) {
    const Result result = wizardWith("customize", R"({"steps": [{"press": "nextBtn"},
        {"waitFor": {"event": "page", "page": 8}}, {"press": "nextBtn"}]})");
    EXPECT_EQ(result.exit, 0) << result.error;
}

TEST_F(WizardEndToEnd, AWizardThatStillWaitsAfterTheLastStepIsCancelled) {
    EXPECT_EQ(wizardWith("customize", R"({"steps": []})").exit, 1);
    const Result done = wizardWith("customize", R"({"steps": [{"press": "nextBtn"}]})");
    EXPECT_EQ(done.exit, 1) << "the last step did not end it";
    EXPECT_THAT(done.error, HasSubstr("steps are over"));
    const Result cancelled = wizardWith("customize", R"({"steps": [{"press": "cancelBtn"}]})");
    EXPECT_EQ(cancelled.exit, 1);
    EXPECT_EQ(cancelled.of("finished").at(0)["reason"], "the wizard was cancelled");
    EXPECT_EQ(logged().back(), "Scrivel 21 Installer: User Cancelled");
}

TEST_F(WizardEndToEnd, AStateThatIsNeitherOffNorOnIsAMistakeInTheFile) {
    for (const std::string file : {R"({"steps": [{"set": "Law", "state": 2}]})",
                                   R"({"steps": [{"selectRow": "acTbl", "row": 4294967296}]})",
                                   R"({"steps": [{"set": "Law"}]})", R"({"choices": [1]})"}) {
        const Result result = wizardWith("customize", file);
        EXPECT_EQ(result.exit, 2) << file;
        EXPECT_THAT(result.events, IsEmpty());
        EXPECT_FALSE(fs::exists(log()));
    }
}

// --- components on the command line

TEST_F(WizardEndToEnd, ComponentsAreSelectedAndDeselectedOnTheirPage) {
    const Result result = wizardWith(
        "customize", R"({"steps": [{"snapshot": "s"}]})",
        "--select 'Content categories' --deselect Law --select 'System integration/Services'");
    const Json snapshot = result.of("snapshot").at(0);
    EXPECT_EQ(componentOf(snapshot, "Content categories")["state"], -2);
    EXPECT_EQ(componentOf(snapshot, "History")["state"], 1);
    EXPECT_EQ(componentOf(snapshot, "Law")["state"], 0);
    EXPECT_EQ(componentOf(snapshot, "Services")["state"], 1);
    EXPECT_EQ(componentOf(snapshot, "Spotlight importer")["state"], 0);
}

TEST_F(WizardEndToEnd, WhatIsSelectedOnTheCommandLineLeadsThroughThePageOfServices) {
    const Result result = wizard("customize --select Services");
    EXPECT_EQ(rowsOf(result).at(4), Row(13, 2));
    EXPECT_EQ(result.exit, 0) << result.error;
}

TEST_F(WizardEndToEnd, AnUnknownComponentIsWrongUsageBeforeAnythingStarts) {
    for (const std::string words : {"--select Nothing", "--select Services --deselect Nothing"}) {
        const Result result = wizard("customize " + words);
        EXPECT_EQ(result.exit, 2);
        EXPECT_THAT(result.error, AllOf(HasSubstr("\"Nothing\""), HasSubstr("\"Services\"")));
        EXPECT_THAT(result.events, IsEmpty());
        EXPECT_FALSE(fs::exists(log()));
    }
}

TEST_F(WizardEndToEnd, ANameThatStandsTwiceNeedsItsGroup) {
    std::ofstream(resource("Customizer.rules.txt"))
        << "One|0|first group\nSame|1|in one|inst_Uninst|a\nTwo|0|second group\n"
           "Same|1|in two|inst_Uninst|b\n";
    const Result twice = wizard("customize --select Same");
    EXPECT_EQ(twice.exit, 2);
    EXPECT_THAT(twice.error, AllOf(HasSubstr("\"One/Same\""), HasSubstr("\"Two/Same\"")));
    const Result result =
        wizardWith("customize", R"({"steps": [{"snapshot": "s"}]})", "--select Two/Same");
    EXPECT_EQ(result.of("snapshot").at(0)["components"].at(1)["state"], 0);
    EXPECT_EQ(result.of("snapshot").at(0)["components"].at(3)["state"], 1);
    const Result step = wizardWith("customize", R"({"steps": [{"toggle": "Same"}]})");
    EXPECT_EQ(step.exit, 3);
    EXPECT_THAT(step.error, HasSubstr("\"Two/Same\""));
}

// --- Word runs

struct RunningWord : WizardEndToEnd {
    std::thread word;

    /// Starts an application with Word's identifier; it runs for so many seconds.
    void start(const std::string& seconds) {
        const fs::path contents = root / "Applications/Microsoft Word.app/Contents";
        fs::create_directories(contents / "MacOS");
        std::ofstream(contents / "Info.plist")
            << "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>"
               "<key>CFBundleIdentifier</key><string>com.microsoft.Word</string></dict></plist>";
        const fs::path program = contents / "MacOS/Microsoft Word";
        fs::copy_file(sample() / "Scrivel 21.app/Contents/MacOS/Scrivel 21", program);
        word = std::thread([this, program, seconds] {
            posix::SpawnedTools tools({});
            (void)tools.capture({"/usr/bin/env",
                                 {"HOME=" + (folder / "word").string(),
                                  "SCRIVEL_SAMPLE_STAY=" + seconds, program.string()}});
        });
        while (!fs::exists(folder / "word/Library/Application Support/Scrivel 21/launches.txt"))
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    void TearDown() override {
        word.join();
        WizardEndToEnd::TearDown();
    }
};

TEST_F(RunningWord, KeepsTheWizardOnThePageThatAsksToQuitItAndEndsWithSix) {
    start("3");
    const Result result = wizard("customize");
    EXPECT_EQ(result.exit, 6);
    EXPECT_EQ(rowsOf(result).back(), Row(12, 1));
    EXPECT_THAT(result.error, HasSubstr("Microsoft Word is running"));
    EXPECT_EQ(result.of("finished").at(0)["exit"], 6);
}

TEST_F(RunningWord, ThePageCanBeLeftByCancelToo) {
    start("3");
    const Result result =
        wizardWith("customize", R"({"steps": [{"press": "nextBtn"}, {"snapshot": "asks"},
        {"press": "cancelBtn"}]})");
    EXPECT_EQ(result.exit, 6);
    EXPECT_EQ(result.of("snapshot").at(0)["page"], 12);
    EXPECT_EQ(result.of("snapshot").at(0)["controls"]["nextBtn"]["title"], "Retry");
}

// --- list

TEST_F(WizardEndToEnd, ListPrintsAnAlignedTableAndChangesNothing) {
    const auto before = treeOf(root);
    const Result result = run("list");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(result.output, HasSubstr("System integration          not installed\n"
                                         "  Spotlight importer        not installed\n"));
    EXPECT_EQ(std::ranges::count(result.output, '\n'), 22);
    EXPECT_EQ(treeOf(root), before);
    EXPECT_EQ(run("list --unattended").output, result.output);
}

TEST_F(WizardEndToEnd, ListNeedsNoDisplay) {
    environment = "DISPLAY= WAYLAND_DISPLAY= QT_QPA_PLATFORM= ";
    EXPECT_EQ(run("list").exit, 0);
    for (const std::string command : {"customize", "penmark", "first-install", "update"})
        EXPECT_EQ(run(command).exit, 2) << command;
}

TEST_F(WizardEndToEnd, ListAsJsonHoldsTheComponentsWithDescriptionAndMethod) {
    const Json all = Json::parse(run("list --json").output);
    ASSERT_EQ(all.size(), 22u);
    EXPECT_EQ(all.at(0)["method"], nullptr);
    EXPECT_EQ(all.at(14), Json({{"item", 14},
                                {"name", "Spotlight importer"},
                                {"group", 13},
                                {"state", 0},
                                {"initial", 0},
                                {"enabled", true},
                                {"description", "Spotlight finds the references in your libraries"},
                                {"method", "inst_Spotlight"}}));
}

TEST_F(WizardEndToEnd, ListWithEventsTellsThemAsEventsAndNothingElse) {
    const Result result = run("list --json --events"); // parses every line
    EXPECT_EQ(result.events.front()["event"], "start");
    EXPECT_EQ(result.events.back()["event"], "finished");
    EXPECT_EQ(result.of("snapshot").at(0)["components"].size(), 22u);
    EXPECT_THAT(result.of("page"), IsEmpty());
}

// --- what is missing

TEST_F(WizardEndToEnd, WithoutItsInterfaceFileTheWizardAnswers131) {
    const Result whole = wizard("customize");
    for (const bool removed : {true, false}) {
        fs::remove(resource("Customizer.ui"));
        if (!removed)
            std::ofstream(resource("Customizer.ui")) << "";
        const Result result = wizard("customize");
        EXPECT_EQ(result.exit, 4);
        EXPECT_EQ(result.of("finished").at(0)["result"], 131);
        EXPECT_THAT(result.error, AllOf(HasSubstr("Load of Customizer NIB failed"),
                                        HasSubstr("Customizer.ui"), HasSubstr("complete copy")));
        EXPECT_THAT(result.of("page"), IsEmpty());
    }
}

TEST_F(WizardEndToEnd, WithoutTheInterfaceFileOfItsQuestionsTheyAnswerTheDefault) {
    fs::remove(resource("ecPanel.ui"));
    const Result result = wizardWith("penmark", R"({"answers": ["Yes"], "steps": [
        {"select": "matSVWInstall", "row": 1}, {"press": "nextBtn"}, {"snapshot": "s"}]})");
    EXPECT_EQ(result.exit, 1);
    EXPECT_THAT(result.of("question"), IsEmpty()) << "nobody has seen it";
    EXPECT_EQ(result.of("snapshot").at(0)["page"], 26) << "the default button is No";
    EXPECT_THAT(result.error, HasSubstr("Load of ecPanal.NIB failed"));
}

TEST_F(WizardEndToEnd, WithoutRulesThereAreNoComponents) {
    fs::remove(resource("Customizer.rules.txt"));
    EXPECT_EQ(wizard("customize").exit, 0);
    const Result selected = wizard("customize --select Services");
    EXPECT_EQ(selected.exit, 2);
    EXPECT_THAT(selected.error, HasSubstr("Customizer.rules.txt"));
    const Result listed = run("list --json");
    EXPECT_EQ(listed.exit, 4);
    EXPECT_THAT(listed.error, AllOf(HasSubstr("Customizer.rules.txt"), HasSubstr("complete copy")));
    EXPECT_EQ(Json::parse(listed.output), Json::array());
}

TEST_F(WizardEndToEnd, WithoutItsPictureTheWizardRunsAllTheSame) {
    fs::remove(resource("Customizer.icns"));
    const Result result =
        wizardWith("customize", R"({"steps": [{"snapshot": "s"}, {"press": "nextBtn"},
        {"press": "nextBtn"}]})");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(result.of("snapshot").at(0)["controls"]["ecImage"]["file"], "");
}

TEST_F(WizardEndToEnd, APoliteKillCancelsTheWizard) {
    std::ofstream(folder / "answers.json")
        << R"({"steps": [{"waitFor": {"event": "page", "page": 99}}]})";
    const Result result = run("customize --answers '" + (folder / "answers.json").string() +
                              "' & installer=$!; until grep -q 'Tessaron' '" + log().string() +
                              "' 2>/dev/null; do sleep 0.05; done; "
                              "kill -TERM $installer; wait $installer");
    EXPECT_EQ(result.exit, 1);
    EXPECT_EQ(logged().back(), "Scrivel 21 Installer: User Cancelled");
}

TEST_F(WizardEndToEnd, UnattendedWizardsSpeakEnglishWhateverTheLocale) {
    environment = "LANG=de_DE.UTF-8 LC_ALL=de_DE.UTF-8 LANGUAGE=de ";
    EXPECT_EQ(wizard("customize").of("page").at(1)["title"], "Welcome to Scrivel 21");
}

// --- a copy of the installer that is not whole, and files that hold anything

struct BadInput : WizardEndToEnd {
    void rules(const std::string& bytes) const {
        fs::remove_all(resource("Customizer.rules.txt"));
        std::ofstream(resource("Customizer.rules.txt"), std::ios::binary) << bytes;
    }
    /// What the foot of the tree says on the page of components.
    std::string saidUnderTheTree() {
        const Result result = wizardWith("customize", R"({"steps": [{"snapshot": "s"}]})");
        const auto snapshots = result.of("snapshot");
        return snapshots.empty() ? "no page: " + result.error
                                 : std::string(snapshots[0]["controls"]["infoText"]["text"]);
    }
    std::vector<std::string> listed() {
        std::vector<std::string> names;
        for (const Json& component : Json::parse(run("list --json").output))
            names.push_back(component["name"]);
        return names;
    }
};

TEST_F(BadInput, RulesWithoutAComponentAreSaidToBeMissingInTheWindowAndByList) {
    const std::string binary("\x7F"
                             "ELF\0\1\xFF\xFE|0|\x80\n",
                             14);
    for (const std::string& bytes :
         {std::string(), std::string("\r\r\r"), std::string("\n\n"), binary,
          std::string("a line without fields\n"), std::string("Member|1|before any group|a|b\n")}) {
        rules(bytes);
        EXPECT_THAT(saidUnderTheTree(),
                    AllOf(HasSubstr("list of components is missing"), HasSubstr("complete copy")))
            << bytes;
        const Result list = run("list");
        EXPECT_EQ(list.exit, 4) << bytes;
        EXPECT_THAT(list.error, AllOf(HasSubstr("Customizer.rules.txt"), HasSubstr("complete")));
        EXPECT_EQ(wizard("customize").exit, 0) << "nothing is chosen, so nothing fails";
    }
}

TEST_F(BadInput, AFolderInThePlaceOfTheRulesIsAsIfTheyWereMissing) {
    fs::remove(resource("Customizer.rules.txt"));
    fs::create_directory(resource("Customizer.rules.txt"));
    EXPECT_THAT(saidUnderTheTree(), HasSubstr("list of components is missing"));
    EXPECT_EQ(run("list").exit, 4);
}

TEST_F(BadInput, FiftyMegabytesOfRulesAreRead) {
    std::string text;
    for (int group = 0; text.size() < 50'000'000; ++group) {
        text += "Group " + std::to_string(group) + "|0|";
        text.append(60'000, 'd') += "\nMember " + std::to_string(group) + "|1|inside\n";
    }
    rules(text);
    const Result list = run("list");
    EXPECT_EQ(list.exit, 0) << list.error;
    EXPECT_THAT(list.output, HasSubstr("\n  Member 832 "));
    EXPECT_EQ(wizard("customize").exit, 0);
}

TEST_F(BadInput, CarriageReturnsBelongToTheTextBeforeThem) {
    rules("One|0|first\r\nTwo|1|second|inst_File|a\r\n");
    EXPECT_THAT(listed(), ElementsAre("One", "Two"));
    EXPECT_EQ(wizard("customize --select Two").exit, wizard("customize --select One/Two").exit);
}

TEST_F(BadInput, AGroupAtTheEndStandsAloneAndMembersBeforeTheFirstGroupAreNotShown) {
    rules("Lost|1|before any group|inst_File|a\nOne|0|first\nTwo|1|second\nLast|0|alone");
    EXPECT_THAT(listed(), ElementsAre("One", "Two", "Last"));
    EXPECT_EQ(wizard("customize --select Last").exit, 0);
    EXPECT_EQ(wizard("customize --select Lost").exit, 2);
}

TEST_F(BadInput, AMethodThatNobodyKnowsDoesNoHarm) {
    rules("One|0|first\nTwo|1|second|inst_Nonsense|a\nThree|1|third|\nFour|1|||||\n");
    EXPECT_THAT(listed(), ElementsAre("One", "Two", "Three", "Four"));
    const auto before = treeOf(root);
    EXPECT_EQ(wizard("customize --select Two").exit, 3) << "it is not available";
    const Result result = wizard("customize");
    EXPECT_EQ(result.exit, 0) << result.error;
    for (const Json& component : result.of("component"))
        EXPECT_EQ(component["result"], "unchanged") << component;
    EXPECT_EQ(treeOf(root), before);
}

TEST_F(BadInput, WithoutTheInterfaceFileOfTheInstallerWindowThereIsNoneAndTheWizardStillRuns) {
    fs::remove(resource("ScrivelInstaller.ui"));
    const Result install = run("install --unattended");
    EXPECT_EQ(install.exit, 4);
    EXPECT_THAT(install.error, AllOf(HasSubstr("ScrivelInstaller"), HasSubstr("complete copy")));
    EXPECT_EQ(wizard("customize").exit, 0);
}

TEST_F(BadInput, WithoutPicturesEveryModeRuns) {
    for (const char* name : {"Scrivel.icns", "Scrivel_Folder.icns", "Customizer.icns"})
        fs::remove(resource(name));
    EXPECT_EQ(wizard("customize").exit, 0);
    EXPECT_EQ(wizard("penmark").exit, exitNeedingRights());
    EXPECT_EQ(wizard("first-install --yes").exit, exitNeedingRights());
}

TEST_F(BadInput, DocumentsThatAreMissingAreSaidToBeByName) {
    for (const auto& item : fs::directory_iterator(bundle / "Contents/Resources"))
        if (item.path().extension() == ".lproj")
            for (const char* name :
                 {"Welcome.html", "UpdateWelcome.html", "ReadMe.html", "License.html", "Help.html"})
                fs::remove(item.path() / name);
    fs::remove(resource("About.txt"));
    const Result result =
        wizardWith("customize", R"({"steps": [{"press": "helpBtn"}, {"snapshot": "s"}]})");
    EXPECT_EQ(result.exit, 1) << "the steps end before the wizard does";
    const Json controls = result.of("snapshot").at(0)["controls"];
    const std::pair<const char*, const char*> documents[]{
        {"welcomeText", "Welcome.html"},
        {"patchWelcomeText", "UpdateWelcome.html"},
        {"readMeText", "ReadMe.html"},
        {"licenseText", "License.html"}};
    for (const auto& [outlet, name] : documents)
        EXPECT_THAT(std::string(controls[outlet]["text"]),
                    AllOf(HasSubstr("“" + std::string(name) + "”"), HasSubstr("complete copy")));
    EXPECT_EQ(wizard("first-install --yes").exit, exitNeedingRights());
}

TEST_F(BadInput, ABrokenBreadcrumbsFileIsKeptAsideAndANewOneBegun) {
    const fs::path preferences = home / "Library/Preferences";
    const fs::path file = preferences / "com.BrackleyHarlow.ScrivelCustomizer.plist";
    fs::create_directories(preferences);
    std::ofstream(file) << "<plist><dict><key>Word</key>";
    const Result result = wizard("customize");
    EXPECT_EQ(result.exit, 0) << result.error;
    // Nothing of it is lost, whether the run had something to write or not.
    const fs::path aside = file.string() + ".damaged";
    EXPECT_EQ(contentsOf(fs::exists(aside) ? aside : file), "<plist><dict><key>Word</key>");
}

TEST_F(BadInput, EachMistakeInAnAnswersFileIsNamedWithItsPlaceAndARemedy) {
    struct Mistake {
        const char *file, *place, *remedy;
        int exit;
    };
    for (const auto& [file, place, remedy, exit] : std::vector<Mistake>{
             {"", "answers.json", "holds one JSON object", 2},
             {"{\n\n  \"steps\": [,]}", "line 3", "mend", 2},
             {"\xFF\xFE{}", "line 1", "mend", 2},
             {"[]", "the document", "curly brackets", 2},
             {R"({"stebs": []})", "\"stebs\"", "the members are", 2},
             {R"({"answers": "Yes"})", "answers", "square brackets", 2},
             {R"({"answers": ["Yes", 1]})", "answers[1]", "double quotes", 2},
             {R"({"choices": [null, 1]})", "choices[1]", "double quotes", 2},
             {R"({"authorize": "no"})", "authorize", "true or false", 2},
             {R"({"steps": {}})", "steps", "square brackets", 2},
             {R"({"steps": [7]})", "steps[0]", "write an object", 2},
             {R"({"steps": [{"push": "a"}]})", "steps[0]", "the kinds are", 2},
             {R"({"steps": [{"press": "a", "row": 1}]})", "steps[0]", "take it out", 2},
             {R"({"steps": [{"set": "Law"}]})", "steps[0]", "\"state\"", 2},
             {R"({"steps": [{"set": "Law", "state": 2}]})", "steps[0]", "0 for off", 2},
             {R"({"steps": [{"select": "m", "row": "1"}]})", "steps[0]", "whole number", 2},
             {R"({"steps": [{"select": "m", "row": 1e3}]})", "steps[0]", "whole number", 2},
             {R"({"steps": [{"select": "m", "row": 1e999}]})", "1e999", "mend", 2},
             {R"({"steps": [{"waitFor": {}}]})", "steps[0]", "\"event\"", 2},
             {R"({"steps": [{"press": "none"}]})", "steps[0]", "a snapshot lists", 3},
             {R"({"steps": [{"toggle": "none"}]})", "steps[0]", "there are", 3},
             {R"({"steps": [{"call": "none"}]})", "steps[0]", "first keyword", 3},
         }) {
        const Result result = wizardWith("customize", file);
        EXPECT_EQ(result.exit, exit) << file;
        EXPECT_THAT(result.error,
                    AllOf(HasSubstr("answers.json"), HasSubstr(place), HasSubstr(remedy)))
            << file;
        EXPECT_EQ(std::ranges::count(result.error, '\n'), 1) << result.error;
    }
}

// --- from the installer window's menu

TEST_F(WizardEndToEnd, TheMenuOfTheInstallerWindowOpensTheWizard) {
    const Result result = wizardWith("install", R"({"steps": [{"press": "m_customizeItem"},
        {"snapshot": "wizard"}, {"press": "nextBtn"}, {"press": "nextBtn"},
        {"snapshot": "installer"}, {"press": "m_penmarkItem"}, {"press": "cancelBtn"}]})");
    EXPECT_EQ(result.exit, 1) << "nothing was installed";
    EXPECT_EQ(result.of("snapshot").at(0)["page"], 6);
    EXPECT_EQ(result.of("snapshot").at(1)["page"], nullptr);
    EXPECT_EQ(result.of("snapshot").at(1)["controls"]["m_button"]["title"], "Install");
    EXPECT_EQ(result.of("page").back()["page"], 26);
}

TEST_F(WizardEndToEnd, TheMenuCanNotBeUsedWhileAnInstallationRuns) {
    replaceTool("ditto", "sleep 1");
    const Result result =
        wizardWith("install", R"({"steps": [{"press": "m_button"}, {"press": "m_updateItem"}]})");
    EXPECT_EQ(result.exit, 3);
    EXPECT_THAT(result.error, AllOf(HasSubstr("m_updateItem"), HasSubstr("disabled")));
}

} // namespace
