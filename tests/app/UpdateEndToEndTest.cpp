// The built program's updater from its first page to its last, over copies in a little system of
// their own. The tool in the bundle is a small script: it goes by the files "old" and "new" in a
// copy's folder, and leaves its arguments in a file of this run.
#include <gmock/gmock.h>

#include "tests/app/ComponentsRun.h"

namespace {

using namespace tests;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using testing::SizeIs;

/// Old copies can be updated; of others the test fails. What is updated is new.
constexpr const char* kTool = R"(
[ "$1" = -d ] && [ "$3" = -i ] && [ -f "$4" ] || exit 64
echo "$(id -u) $*" >>"$(dirname "$0")/calls"
case "$5" in
    -n) [ ! -e "$2/new" ] || exit 6; [ -e "$2/old" ] ;;
    -C) [ ! -e "$2/listing" ] || cat "$2/listing" ;;
    --verify) [ -e "$2/new" ] ;;
    "") [ ! -e "$2/broken" ] || { echo "it is broken" >&2; exit 3; }
        mv "$2/old" "$2/new" ;;
    *) exit 64 ;;
esac)";

struct UpdateEndToEnd : ComponentsRun {
    void SetUp() override {
        ComponentsRun::SetUp();
        const fs::path tool = resources() / "applyPatch";
        fs::remove(tool);
        std::ofstream(tool) << "#!/bin/sh" << kTool << "\n";
        fs::permissions(tool, static_cast<fs::perms>(0755));
        std::ofstream(resources() / "Patchfile.patch") << "patch";
    }
    fs::path resources() const { return bundle / "Contents/Resources"; }

    /// A copy in that folder of the Applications folder, with a file that says what it is. It opens
    /// the product's documents, unless it is to be unknown to the host.
    fs::path add(const std::string& name, const std::string& kind,
                 const std::string& application = "Scrivel 21.app", bool isKnown = true) {
        fs::path its = applications() / name;
        fs::create_directories(its / application / "Contents");
        std::ofstream(its / kind);
        std::ofstream(its / application / "Contents/Info.plist")
            << "<plist version=\"1.0\"><dict><key>CFBundleShortVersionString</key><string>21.0."
            << kind << "</string>"
            << (isKnown ? "<key>CFBundleDocumentTypes</key><array><dict>"
                          "<key>CFBundleTypeExtensions</key><array><string>enl</string></array>"
                          "</dict></array>"
                        : "")
            << "</dict></plist>";
        return its;
    }
    Result update(const std::string& members = R"("authorize": true)") {
        return runAnswering("update", "{" + members + "}");
    }
    /// With "No" and "Yes" pressed in this order on the pages that offer copies.
    Result updatePressing(const std::vector<std::string>& answers) {
        std::string steps = R"({"press": "nextBtn"}, {"press": "nextBtn"})";
        for (const std::string& answer : answers)
            steps +=
                std::string(R"(, {"press": ")") + (answer == "No" ? "back" : "next") + "Btn\"}";
        return update(R"("authorize": true, "steps": [)" + steps + R"(, {"press": "nextBtn"}])");
    }

    /// Each copy's folder without the Applications folder, and what became of it.
    std::vector<std::pair<std::string, std::string>> copies(const Result& result) const {
        std::vector<std::pair<std::string, std::string>> all;
        for (const Json& copy : result.of("copy"))
            all.emplace_back(
                copy["folder"].get<std::string>().substr(applications().string().size() + 1),
                copy["state"]);
        return all;
    }
    /// The page and title of each row that was shown.
    static std::vector<std::string> rowsShown(const Result& result) {
        std::vector<std::string> rows;
        for (const Json& row : result.of("page"))
            rows.push_back(std::to_string(row["page"].get<int>()) + " " +
                           row["title"].get<std::string>());
        return rows;
    }
    /// What the tool was called with, without the user and the base arguments' beginning.
    std::vector<std::string> toolCalls() const {
        std::vector<std::string> calls;
        std::istringstream lines(contentsOf(resources() / "calls"));
        for (std::string line; std::getline(lines, line);)
            calls.push_back(named(line.substr(line.find(' ') + 1)));
        return calls;
    }
    std::vector<std::string> loggedAfterBanner() const {
        auto lines = loggedAfter("**    Build number: 19023");
        lines.erase(lines.begin(), lines.begin() + 3);
        return lines;
    }
    static std::string base(const std::string& its) {
        return "-d ROOT/Applications/" + its + " -i APP/Contents/Resources/Patchfile.patch";
    }
    static std::string testLine(const std::string& its, int status = 0) {
        return "Running as user: APP/Contents/Resources/applyPatch " + base(its) +
               " -n Result: " + std::to_string(status);
    }
    static std::string applyLine(const std::string& its) {
        return "Running as admin: APP/Contents/Resources/applyPatch " + base(its) + " Result: 0";
    }
};

/// Only root has an administrator's rights here without a question.
struct UpdateAsRoot : UpdateEndToEnd {
    void SetUp() override {
        UpdateEndToEnd::SetUp();
        if (!isRoot())
            GTEST_SKIP() << "it needs an administrator's rights";
    }
};

TEST_F(UpdateEndToEnd, WithoutACopyThatOpensTheDocumentsEvenTheUsualOneIsNotLookedAt) {
    add("Scrivel 21", "old", "Scrivel 21.app", false);
    const Result result = update();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(rowsShown(result), Contains("18 "));
    EXPECT_THAT(copies(result), IsEmpty());
    EXPECT_THAT(toolCalls(), IsEmpty());
    EXPECT_THAT(result.of("authorize"), IsEmpty());
    EXPECT_THAT(loggedAfterBanner(), IsEmpty());
}

TEST_F(UpdateAsRoot, OfThreeCopiesTheOneThatTheUpdateFitsIsOfferedAndUpdated) {
    add("A", "old");
    add("B", "altered");
    add("C", "new");
    const Result result = update();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(copies(result),
                ElementsAre(Pair("A", "updated"), Pair("B", "unfit"), Pair("C", "current")));
    const Json copy = result.of("copy").front();
    EXPECT_EQ(copy["version"], "21.0.old") << "the script changes no dictionary";
    EXPECT_EQ(copy["reason"], "");
    EXPECT_THAT(rowsShown(result),
                ElementsAre("0 ", "1 Welcome to Scrivel 21", "14 Welcome to Scrivel 21 Update",
                            "4 Read Me", "0 ", "0 ", "16 ", "10 Updating System",
                            "10 Updating System", "16 ", "17 Finish", "17 "));
    EXPECT_THAT(
        loggedAfterBanner(),
        ElementsAre(
            testLine("A"), "Found patchable candidate: ROOT/Applications/A.", testLine("B", 1),
            "Found unpatchable instance: ROOT/Applications/B.", testLine("C", 6),
            "Found unpatchable instance: ROOT/Applications/C.", "Authenticate",
            "Authentication status :Succeeded", applyLine("A"), "State: Penmark Mode: mode_remove",
            "findApplicationsWithBundleIdentifier: com.microsoft.Word",
            "findApplication: Microsoft Word", " Result= Disable", "State: Penmark Mode: mode_copy",
            "findApplicationsWithBundleIdentifier: com.microsoft.Word",
            "findApplication: Microsoft Word", " Result= Disable", "Executing applyPatch",
            "execCmdLineApp applyPatch " + base("A") + " -C result: "));
    EXPECT_THAT(toolCalls(), ElementsAre(base("A") + " -n", base("B") + " -n", base("C") + " -n",
                                         base("A"), base("A") + " -C", base("A") + " --verify"));
    EXPECT_TRUE(fs::exists(applications() / "A/new"));
}

TEST_F(UpdateAsRoot, EveryCallOfTheToolIsAnEvent) {
    add("A", "old");
    std::vector<std::string> calls;
    for (const Json& tool : update().of("tool"))
        calls.push_back(tool["as"].get<std::string>() + " " +
                        tool["arguments"].back().get<std::string>() + " " +
                        std::to_string(tool["status"].get<int>()));
    const std::string patch = (resources() / "Patchfile.patch").string();
    EXPECT_THAT(calls,
                ElementsAre("user -n 0", "admin " + patch + " 0", "user -C 0", "user --verify 0"));
}

TEST_F(UpdateEndToEnd, TheUsualInstallationIsExaminedOnceAndAlsoWhenTheHostDoesNotNameIt) {
    add("Scrivel 21", "altered");
    EXPECT_THAT(copies(update()), ElementsAre(Pair("Scrivel 21", "unfit")));
    add("Another", "altered");
    EXPECT_THAT(copies(update()),
                ElementsAre(Pair("Another", "unfit"), Pair("Scrivel 21", "unfit")));
    add("Scrivel 21", "altered", "Scrivel 21.app", false);
    EXPECT_THAT(copies(update()),
                ElementsAre(Pair("Another", "unfit"), Pair("Scrivel 21", "unfit")));
}

TEST_F(UpdateEndToEnd, LetterCaseDoesNotCountInTheNameAndACopyOfAnotherNameIsPassedOver) {
    add("Capitals", "altered", "SCRIVEL 21.APP");
    add("Duplicate", "old", "Scrivel 21 copy.app");
    const Result result = update();
    EXPECT_THAT(copies(result), ElementsAre(Pair("Capitals", "unfit")));
    EXPECT_THAT(loggedAfterBanner(),
                ElementsAre(testLine("Capitals", 1),
                            "Found unpatchable instance: ROOT/Applications/Capitals."));
}

TEST_F(UpdateAsRoot, NoLeavesACopyAndOffersTheNext) {
    add("A", "old");
    add("B", "old");
    const Result result = updatePressing({"No", "Yes"});
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(copies(result), ElementsAre(Pair("A", "declined"), Pair("B", "updated")));
    EXPECT_TRUE(fs::exists(applications() / "A/old"));
    EXPECT_TRUE(fs::exists(applications() / "B/new"));
}

TEST_F(UpdateEndToEnd, NoOnEveryCopyAsksForNoRightsAndIsNoFailure) {
    add("A", "old");
    add("B", "old");
    const Result result = updatePressing({"No", "No"});
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(copies(result), ElementsAre(Pair("A", "declined"), Pair("B", "declined")));
    EXPECT_THAT(result.of("authorize"), IsEmpty());
    EXPECT_THAT(rowsShown(result), Contains("17 Finish"));
}

TEST_F(UpdateEndToEnd, TheButtonsReadNoAndYesWhileACopyIsOffered) {
    add("A", "old");
    const Result result =
        update(R"("steps": [{"press": "nextBtn"}, {"press": "nextBtn"}, {"snapshot": "offered"},
                            {"press": "cancelBtn"}])");
    EXPECT_EQ(result.exit, 1);
    EXPECT_THAT(copies(result), ElementsAre(Pair("A", "offered")));
    const Json controls = result.of("snapshot").at(0)["controls"];
    EXPECT_EQ(controls["backBtn"]["title"], "No");
    EXPECT_EQ(controls["nextBtn"]["title"], "Yes");
    EXPECT_TRUE(controls["backBtn"]["enabled"] && controls["nextBtn"]["enabled"]);
    EXPECT_EQ(controls["patchFound"]["text"],
              "\nA copy of Scrivel was found at the following location:\n\n" +
                  (applications() / "A").string() + "\n\nWould you like to update this copy?\n");
    EXPECT_THAT(logged().back(), EndsWith("User Cancelled"));
}

TEST_F(UpdateEndToEnd, RefusedRightsUpdateNothingAndAreExit5) {
    add("A", "old");
    add("B", "old");
    const Result result = update(R"("authorize": false)");
    EXPECT_EQ(result.exit, 5) << result.error;
    EXPECT_THAT(copies(result), ElementsAre(Pair("A", "refused"), Pair("B", "refused")));
    EXPECT_THAT(result.of("authorize"), SizeIs(1));
    EXPECT_THAT(ownErrors(result),
                ElementsAre("scrivel-installer: administrator rights were needed and refused. " +
                            (applications() / "A").string() +
                            ": Administrator rights were "
                            "refused. " +
                            (applications() / "B").string() +
                            ": Administrator rights were refused."));
    EXPECT_THAT(loggedAfterBanner(),
                ElementsAre(testLine("A"), "Found patchable candidate: ROOT/Applications/A.",
                            testLine("B"), "Found patchable candidate: ROOT/Applications/B.",
                            "Authenticate", "Authentication status :Failed"));
    EXPECT_TRUE(fs::exists(applications() / "A/old"));
}

TEST_F(UpdateAsRoot, ACopyThatIsNotUpdatedAfterAllIsExit4WhateverTheToolsStartSaid) {
    std::ofstream(add("A", "old") / "broken");
    add("B", "old");
    const Result result = update();
    EXPECT_EQ(result.exit, 4);
    EXPECT_THAT(copies(result), ElementsAre(Pair("A", "failed"), Pair("B", "updated")));
    EXPECT_EQ(result.of("copy").front()["reason"], "The update did not take effect.");
    EXPECT_THAT(result.error, HasSubstr("it is broken"));
    EXPECT_THAT(ownErrors(result),
                ElementsAre("scrivel-installer: " + (applications() / "A").string() +
                            ": The update did not take effect. The log tells what the tools "
                            "said."));
    EXPECT_THAT(logged(), Contains(testing::EndsWith(
                              "applyPatch -d " + (applications() / "A").string() + " -i " +
                              (resources() / "Patchfile.patch").string() + " Result: 0")))
        << "the log has the status of the start";
}

TEST_F(UpdateEndToEnd, WithoutTheToolEveryCopyIsUnfit) {
    add("A", "old");
    fs::remove(resources() / "applyPatch");
    const Result result = update();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(copies(result), ElementsAre(Pair("A", "unfit")));
    EXPECT_THAT(
        loggedAfterBanner(),
        ElementsAre(testLine("A", 127), "Found unpatchable instance: ROOT/Applications/A."));
}

TEST_F(UpdateAsRoot, ContentOfTheUpdateIsBroughtToWhereItsSetIsInstalled) {
    const fs::path its = add("A", "old");
    const fs::path content = its / "Product-Support/Content.bundle";
    const auto write = [](const fs::path& file, const std::string& text) {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << text;
    };
    write(content / "Filters/Law/one.filter", "new");
    write(content / "Filters/Law/two.filter", "new");
    write(content / "Styles/Law/one.style", "new");
    write(its / "Filters/one.filter", "old");
    write(its / "Filters/gone.filter", "old");
    const auto line = [&](const std::string& item, const std::string& rest = "") {
        return item + "," + (content / item).string() + rest + "\n";
    };
    std::ofstream(its / "listing")
        << line("Filters/Law/one.filter") << line("Filters/Law/two.filter", ",third")
        << line("Styles/Law/one.style") << line("Filters/Law/gone.filter")
        << "Filters/Law/two.filter,/elsewhere/Filters/Law/two.filter\n";
    const Result result = update();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(contentsOf(its / "Filters/one.filter"), "new");
    EXPECT_FALSE(fs::exists(its / "Filters/two.filter"));
    EXPECT_FALSE(fs::exists(its / "Filters/gone.filter"));
    EXPECT_FALSE(fs::exists(its / "Styles"));
}

TEST_F(UpdateAsRoot, TheCopysOwnAddInIsInstalledInWord) {
    addTwoWords();
    const fs::path its = add("A", "old");
    for (const std::string& bundleName : {k2016, k16}) {
        fs::create_directories(its / "Penmark" / bundleName);
        std::ofstream(its / "Penmark" / bundleName / "from") << "the copy";
    }
    made(shared() / k16);
    const Result result = update();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(contentsOf(shared() / k16 / "from"), "the copy");
    EXPECT_EQ(contentsOf(shared() / k2016 / "from"), "the copy");
}

TEST_F(UpdateAsRoot, ACopyInAFolderWithAnyNameIsUpdated) {
    const std::string name = "Büro, „Zweite“ $(x)/日本語";
    const fs::path its = add(name, "old");
    const Result result = update();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(copies(result), ElementsAre(Pair(name, "updated")));
}

TEST_F(UpdateEndToEnd, TheEmptyDocumentIsGoneAfterTheSearch) {
    fs::create_directories(root / "tmp");
    add("A", "altered");
    EXPECT_EQ(update().exit, 0);
    EXPECT_TRUE(fs::is_empty(root / "tmp"));
}

TEST_F(UpdateAsRoot, WithoutEventsTheSummaryTellsEachCopy) {
    add("A", "old");
    add("B", "new");
    const Result result = run("update --unattended");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(result.output, HasSubstr("“" + (applications() / "A").string() +
                                         "” was updated.\n\n“" + (applications() / "B").string() +
                                         "” is up to date already.\nThe log is "));
}

} // namespace
