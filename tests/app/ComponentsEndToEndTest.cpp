// The built program's components: what customize, penmark, first-install and list do to a little
// system of their own, what the log says of it, and what the program says is true afterwards.
#include <algorithm>

#include <gmock/gmock.h>

#include "tests/app/ComponentsRun.h"

namespace {

using namespace tests;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using ComponentsEndToEnd = ComponentsRun;

TEST_F(ComponentsEndToEnd, ExactlyTheComponentsWhoseTicksChangedAreInstalledAndRemoved) {
    addTwoWords();
    const auto untouched = treeOf(root);
    Result result =
        customize(R"(--select "Penmark add-in" --select Law --select "Spotlight importer")");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_TRUE(fs::exists(shared() / k16 / "Contents/Info.plist"));
    EXPECT_TRUE(fs::exists(shared() / k2016 / "Contents/Info.plist"));
    EXPECT_TRUE(fs::exists(folder / "Filters/Law 1.svfilter"));
    EXPECT_FALSE(fs::exists(folder / "Filters/History 1.svfilter"));
    EXPECT_TRUE(fs::exists(home / "Library/Spotlight/Scrivel.mdimporter/Contents"));
    EXPECT_FALSE(fs::exists(home / "Library/Services/SVService.app"));
    EXPECT_FALSE(fs::exists(extension()));
    EXPECT_THAT(installed(), ElementsAre("Microsoft Word integration", "Penmark add-in", "Law",
                                         "Spotlight importer", "Read Me.txt"));
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "installed");
    EXPECT_EQ(resultOf(result, "Law"), "installed");
    EXPECT_EQ(resultOf(result, "History"), "unchanged");

    result = customize(R"(--deselect "Penmark add-in" --deselect "Spotlight importer")");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "removed");
    EXPECT_EQ(resultOf(result, "Spotlight importer"), "removed");
    EXPECT_EQ(resultOf(result, "Law"), "unchanged");
    EXPECT_THAT(installed(), ElementsAre("Law", "Read Me.txt"));
    auto after = treeOf(root);
    std::erase_if(after, [](const auto& item) { return item.first.starts_with("Library"); });
    EXPECT_EQ(after, untouched) << "the startup folder and its parents stay, nothing else";
    EXPECT_TRUE(fs::is_empty(shared()));
}

TEST_F(ComponentsEndToEnd, AChangeRepeatedLeavesTheDiskAsItIsAndSaysSo) {
    addTwoWords();
    const std::string words = R"(--select "Penmark add-in" --select "Output styles")"
                              R"( --select Physics --select Services)";
    EXPECT_EQ(customize(words).exit, 0);
    const auto before = treeOf(root);
    const auto disk = treeOf(folder / "Styles");
    const Result again = customize("");
    EXPECT_EQ(again.exit, 0) << again.error;
    EXPECT_EQ(treeOf(root), before);
    EXPECT_EQ(treeOf(folder / "Styles"), disk);
    for (const Json& component : again.of("component"))
        EXPECT_EQ(component["result"], "unchanged") << component;
}

TEST_F(ComponentsEndToEnd, TheLogOfAChangeReadsLineByLineAsItAlwaysDid) {
    addWord("Microsoft Word", "16.78");
    customize(R"(--select "Penmark add-in" --select Law --select Services)",
              R"({"authorize": true, "steps": [{"press": "nextBtn"},
                  {"select": "servBtns", "row": 1}, {"press": "nextBtn"}, {"press": "nextBtn"}]})");
    const std::vector<std::string> lines = loggedAfter("Customize install");
    const auto part = [&](const std::string& first, const std::string& last) {
        const auto from = std::ranges::find(lines, first);
        const auto to = std::find(from, lines.end(), last);
        return to == lines.end() ? std::vector<std::string>{"no " + first + " or no " + last}
                                 : std::vector(from, to + 1);
    };
    const std::string startup = "SHARED";
    const std::string word =
        "Word Startup Folder(s) for: \"ROOT/Applications/Microsoft Word.app\", Version: 16.";
    EXPECT_EQ(lines.at(0), "");
    EXPECT_THAT(
        part("State: Penmark Mode: mode_remove",
             "Installing: Penmark for Microsoft Word: citations and bibliographies in your "
             "documents Result: Succeeded"),
        ElementsAre("State: Penmark Mode: mode_remove", word, "    --> \"" + startup + "\"",
                    "Processing Startup Folder: " + startup, " Result= No",
                    "State: Penmark Mode: mode_copy", word, "    --> \"" + startup + "\"",
                    "Processing Startup Folder: " + startup, "Make Dir: " + startup,
                    "Running as user: /bin/mkdir -p " + startup + " Result: 0",
                    "chmod: " + startup + " mode:777",
                    "Running as user: /bin/chmod 777 " + startup + " Result: 0",
                    "Copy: DISK/Penmark/" + k16 + " -> " + startup + "/" + k16,
                    "Running as user: /usr/bin/ditto -rsrcFork DISK/Penmark/" + k16 + " " +
                        startup + "/" + k16 + " Result: 0",
                    " Result= Yes",
                    "Installing: Penmark for Microsoft Word: citations and bibliographies in your "
                    "documents Result: Succeeded"));
    const std::string law = "DISK/Product-Support/Content.bundle/Filters/Law";
    EXPECT_THAT(
        part("Copy: " + law + " -> DISK/Filters", "Installing: Import filters for law "
                                                  "Result: Failed"),
        ElementsAre("Copy: " + law + " -> DISK/Filters",
                    "Running as user: /usr/bin/ditto -rsrcFork " + law + " DISK/Filters Result: 0",
                    "Installing: Import filters for law Result: Failed"))
        << "a copy that went well counts as failed, on purpose";
    const std::string service = "/Library/Services/SVService.app";
    EXPECT_THAT(part("State: Scrivel Services Mode: mode_copy",
                     "Installing: Scrivel 21 commands in the Services menu of other applications "
                     "Result: Succeeded"),
                ElementsAre("State: Scrivel Services Mode: mode_copy",
                            "Run: KillSVService.sh -> Params: (", ")",
                            "Running as user: APP/Contents/Resources/KillSVService.sh  Result: 0",
                            "Copy: DISK/Services/SVService.app -> ROOT" + service,
                            "Running as user: /usr/bin/ditto -rsrcFork DISK/Services/"
                            "SVService.app ROOT" +
                                service + " Result: 0",
                            "Installing: Scrivel 21 commands in the Services menu of other "
                            "applications Result: Succeeded"));
}

TEST_F(ComponentsEndToEnd, PenmarkInstallsTheAddInAndTheExtensionAndUninstallsEverything) {
    if (!isRoot())
        GTEST_SKIP() << "the browser extension needs administrator rights";
    addTwoWords();
    Result result = run("penmark --unattended --events");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_TRUE(fs::exists(shared() / k16));
    EXPECT_TRUE(fs::exists(shared() / k2016));
    EXPECT_EQ(contentsOf(extension()),
              R"({"external_update_url":"https://updates.scrivel.example/extensions/chrome/)"
              R"(update-manifest.xml"})");
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "installed");
    EXPECT_EQ(resultOf(result, "Browser extension"), "installed");
    EXPECT_THAT(loggedAfter("**  Initial install                                 **"),
                Not(IsEmpty()));

    std::ofstream(folder / "answers.json")
        << R"({"answers": ["Yes"], "steps": [{"select": "matSVWInstall", "row": 1},
               {"press": "nextBtn"}, {"press": "nextBtn"}]})";
    result = run("penmark --events --answers '" + (folder / "answers.json").string() + "'");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "removed");
    EXPECT_EQ(resultOf(result, "Browser extension"), "removed");
    EXPECT_TRUE(fs::is_empty(shared()));
    EXPECT_FALSE(fs::exists(extension()));
    EXPECT_THAT(logged(), Contains("Customize un-install"));
}

TEST_F(ComponentsEndToEnd, FirstInstallInstallsTheAddInAndTheExtension) {
    if (!isRoot())
        GTEST_SKIP() << "the browser extension needs administrator rights";
    addTwoWords();
    const Result result = run("first-install --yes --unattended --events");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(installed(), ElementsAre("Microsoft Word integration", "Penmark add-in",
                                         "Browser extension", "Read Me.txt"));
}

TEST_F(ComponentsEndToEnd, UninstallingEverythingLeavesNothingButFoldersAndThePopularContent) {
    addTwoWords();
    EXPECT_EQ(customize(R"(--select "Penmark add-in" --select "Content categories")"
                        R"( --select "Output styles" --select "Spotlight importer")"
                        R"( --select Services)")
                  .exit,
              0);
    EXPECT_TRUE(fs::exists(home / "Library/Services/SVService.app"));
    const Result result = customize("", R"({"answers": ["Yes"], "steps": [
        {"press": "uninstallBtn"}, {"press": "nextBtn"}]})");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(installed(), ElementsAre("Read Me.txt"));
    EXPECT_TRUE(fs::is_empty(shared()));
    EXPECT_TRUE(fs::is_empty(home / "Library/Services"));
    EXPECT_TRUE(fs::is_empty(home / "Library/Spotlight"));
    EXPECT_TRUE(fs::is_empty(folder / "Styles")) << "the categories take the popular ones too";
    for (const char* name : {"Penmark add-in", "Content categories", "Law", "Services"})
        EXPECT_EQ(resultOf(result, name), "removed") << name;
    EXPECT_EQ(resultOf(result, "Handheld link"), "unchanged");
}

TEST_F(ComponentsEndToEnd, RefusedRightsFailWhatNeedsThemAndNothingElse) {
    addTwoWords();
    const Result result = customize(R"(--select "Penmark add-in" --select "Browser extension")",
                                    R"({"authorize": false})");
    EXPECT_EQ(result.exit, 5);
    EXPECT_THAT(result.error, AllOf(HasSubstr("refused"), HasSubstr("Browser extension")));
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "installed");
    EXPECT_EQ(resultOf(result, "Browser extension"), "refused");
    EXPECT_EQ(reasonOf(result, "Browser extension"), "Administrator rights were refused.");
    EXPECT_FALSE(fs::exists(extension()));
    EXPECT_THAT(installed(),
                ElementsAre("Microsoft Word integration", "Penmark add-in", "Read Me.txt"));
    EXPECT_THAT(logged(), Contains("Authentication status :Failed"));
}

TEST_F(ComponentsEndToEnd, AComponentThatIsMissingFromTheDiskFailsAndIsNamed) {
    addTwoWords();
    fs::remove_all(folder / "Penmark" / k16);
    const Result result = customize(R"(--select "Penmark add-in")");
    EXPECT_EQ(result.exit, 4);
    EXPECT_EQ(reasonOf(result, "Penmark add-in"), "“" + (folder / "Penmark" / k16).string() +
                                                      "” is missing from this copy of the "
                                                      "installer.");
    EXPECT_TRUE(fs::exists(shared() / k2016)) << "the other Word has its own";
}

TEST_F(ComponentsEndToEnd, AStartupFolderThatIsAFileFailsAndTheRestGoesOn) {
    addWord("Microsoft Word", "16.78");
    fs::create_directories(shared().parent_path());
    std::ofstream(shared()) << "no folder";
    const Result result = customize(R"(--select "Penmark add-in" --select Law)");
    // an ordinary user is not given the rights with which it would fail all the same
    EXPECT_EQ(result.exit, isRoot() ? 4 : 5);
    EXPECT_THAT(reasonOf(result, "Penmark add-in"),
                HasSubstr(isRoot() ? "could not be written" : "rights were refused"));
    EXPECT_EQ(resultOf(result, "Law"), "installed");
    EXPECT_EQ(contentsOf(shared()), "no folder");
}

TEST_F(ComponentsEndToEnd, WithoutAWordTheAddInIsNotAvailableAndThatIsNoFailure) {
    const Json list = Json::parse(run("list --json").output);
    EXPECT_EQ(list.at(1)["state"], -1);
    EXPECT_EQ(list.at(1)["enabled"], false);
    const Result result = customize("--select Law");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "unchanged");
}

TEST_F(ComponentsEndToEnd, AnOldWordAloneCannotTakeTheAddIn) {
    addWord("Microsoft Word", "14.7");
    const Result result = customize(R"(--select "Penmark add-in")");
    EXPECT_EQ(result.exit, 4);
    EXPECT_EQ(reasonOf(result, "Penmark add-in"),
              "No copy of Microsoft Word 2016 or 2019 was found.");
}

TEST_F(ComponentsEndToEnd, ALevelThatIsNotChosenInstallsNothingAndTheServiceIsStoppedAllTheSame) {
    const Result result =
        customize(R"(--select Services)",
                  R"({"steps": [{"press": "nextBtn"}, {"select": "servBtns", "row": -1},
            {"snapshot": "none"}, {"press": "nextBtn"}, {"press": "nextBtn"}]})");
    EXPECT_EQ(result.of("snapshot").at(0)["controls"]["servBtns"]["selected"], -1);
    EXPECT_EQ(result.exit, 4);
    EXPECT_EQ(reasonOf(result, "Services"), "It was not chosen who can use it.");
    EXPECT_THAT(logged(), Contains("Run: KillSVService.sh -> Params: ("));
    EXPECT_FALSE(fs::exists(home / "Library/Services"));
}

TEST_F(ComponentsEndToEnd, TheSummaryTellsWhatIsTrueWhateverTheLogSays) {
    addTwoWords();
    const Result result = run(R"(customize --unattended --select "Penmark add-in" --select Law)");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(result.output,
                AllOf(HasSubstr("Penmark add-in was installed.\nLaw was installed.\n"),
                      HasSubstr("History is not installed, as before."),
                      HasSubstr("Read Me.txt was left as it is.")));
    EXPECT_THAT(logged(), Contains("Installing: Import filters for law Result: Failed"));
}

TEST_F(ComponentsEndToEnd, TheReadBackAddsNoLineToTheLog) {
    addTwoWords();
    customize(R"(--select "Penmark add-in")");
    const std::vector<std::string> lines = loggedAfter("Customize install");
    EXPECT_EQ(std::ranges::count(lines, "Word Startup Folder(s) for: \"ROOT/Applications/"
                                        "Microsoft Word.app\", Version: 16."),
              2)
        << "one for removing the old add-in, one for copying the new one";
    EXPECT_EQ(lines.back(), "Uninstalling: Takes Scrivel 21 away again; the Uninstall button of "
                            "this page removes the other components Result: Failed");
}

} // namespace
