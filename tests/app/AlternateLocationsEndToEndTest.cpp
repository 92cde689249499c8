// The built program's page of the alternate locations, worked unattended: what is chosen, asked,
// logged, kept in the preferences file and removed from disk.
#include <algorithm>

#include <gmock/gmock.h>

#include "tests/app/InstallerRun.h"

namespace {

using namespace tests;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;

const std::string k16 = "Scrivel PMRK Word 16.bundle";

struct AlternateLocationsEndToEnd : InstallerRun {
    /// A Word in a folder of the Applications folder with "Office" beside it; answers its path.
    std::string installation(const std::string& name, const std::string& version,
                             const std::string& identifier = "com.microsoft.Word") {
        const fs::path place = root / "Applications" / name;
        fs::create_directories(place / "Office");
        fs::create_directories(place / "Microsoft Word.app/Contents");
        std::ofstream(place / "Microsoft Word.app/Contents/Info.plist")
            << "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>" << identifier
            << "</string><key>CFBundleShortVersionString</key><string>" << version
            << "</string></dict></plist>";
        return (place / "Microsoft Word.app").string();
    }
    /// One that the search does not find.
    std::string unknown(const std::string& name, const std::string& version) {
        return installation(name, version, "com.example.Writer");
    }
    std::string made(const std::string& name) {
        fs::create_directories(folder / name);
        return (folder / name).string();
    }
    std::string shared() const {
        return root.string() + "/Library/Application Support/Microsoft/Office365/"
                               "User Content.localized/Startup.localized/Word";
    }
    /// The customizer at the page of the locations; `steps` follow.
    Result locations(const std::string& choices, const std::string& answers,
                     const std::string& steps) {
        fs::create_directories(home / "Library/Preferences");
        std::ofstream(folder / "answers.json")
            << R"({"choices": [)" << choices << R"(], "answers": [)" << answers
            << R"(], "authorize": false, "steps": [{"press": "locationsBtn"}, )" << steps << "]}";
        return run("customize --events --answers '" + (folder / "answers.json").string() + "'");
    }
    static std::string quoted(const std::string& text) { return Json(text).dump(); }
    static Json tableOf(const Result& result, std::size_t snapshot) {
        return result.of("snapshot").at(snapshot)["controls"]["acTbl"]["rows"];
    }
    static bool isEnabled(const Result& result, std::size_t snapshot, const char* button) {
        return result.of("snapshot").at(snapshot)["controls"][button]["enabled"];
    }
    std::string crumbs() const {
        return contentsOf(home / "Library/Preferences/"
                                 "com.BrackleyHarlow.ScrivelCustomizer.plist");
    }
    static std::vector<std::pair<int, std::string>> pagesOf(const Result& result) {
        std::vector<std::pair<int, std::string>> pages;
        for (const Json& page : result.of("page"))
            pages.emplace_back(page["page"], page["title"]);
        return pages;
    }
};

TEST_F(AlternateLocationsEndToEnd, ComingAndGoingAreTwoPageEvents) {
    const Result result =
        locations("", "", R"({"snapshot": "there"}, {"press": "acDoneBtn"}, {"snapshot": "back"})");
    const auto pages = pagesOf(result);
    ASSERT_GE(pages.size(), 2u);
    EXPECT_EQ(pages[pages.size() - 2], std::pair(25, std::string("Scrivel Penmark Configuration")));
    EXPECT_EQ(pages.back(), std::pair(6, std::string("Select Components")));
    const Json there = result.of("snapshot").at(0)["controls"];
    for (const char* name : {"nextBtn", "backBtn", "uninstallBtn"})
        EXPECT_EQ(there[name]["hidden"], true) << name;
    EXPECT_EQ(there["titleText"]["text"], "Scrivel Penmark Configuration");
    const Json back = result.of("snapshot").at(1)["controls"];
    for (const char* name : {"nextBtn", "backBtn", "uninstallBtn"})
        EXPECT_EQ(back[name]["hidden"], false) << name;
    EXPECT_EQ(back["titleText"]["text"], "Select Components");
    EXPECT_EQ(result.exit, 1) << "cancelled on the page of the components";
}

TEST_F(AlternateLocationsEndToEnd, AWordIsAddedWithItsFolderAndRemovedWithItsFiles) {
    const std::string word = unknown("Office 2016", "16.2");
    const std::string startup = made("My \"start|up\"\nfolder");
    fs::create_directories(fs::path(startup) / k16 / "Contents");
    std::ofstream(fs::path(startup) / "Mine.dotm") << "mine";
    const Result result =
        locations(quoted(word) + ", " + quoted(startup), R"("Set", "Cancel", "Uninstall")",
                  R"({"press": "acPlus"}, {"snapshot": "added"}, {"selectRow": "acTbl", "row": 0},
            {"snapshot": "selected"}, {"press": "acMinusBtn"}, {"snapshot": "cancelled"},
            {"press": "acMinusBtn"}, {"snapshot": "removed"})");
    EXPECT_EQ(result.exit, 1) << "every step was done, and then the wizard given up";
    EXPECT_EQ(tableOf(result, 0), Json({{word, startup, "2016"}}));
    EXPECT_FALSE(isEnabled(result, 0, "acMinusBtn"));
    EXPECT_TRUE(isEnabled(result, 1, "acMinusBtn"));
    EXPECT_TRUE(isEnabled(result, 1, "acResetBtn"));
    EXPECT_EQ(tableOf(result, 2), tableOf(result, 0));
    EXPECT_FALSE(isEnabled(result, 3, "acMinusBtn"));

    std::vector<Json> choosers = result.of("chooser");
    ASSERT_EQ(choosers.size(), 2u);
    EXPECT_EQ(choosers[0]["kind"], "application");
    EXPECT_EQ(choosers[0]["title"], "Please locate your installed copy of Microsoft Word");
    EXPECT_EQ(choosers[0]["answer"], word);
    EXPECT_EQ(choosers[1]["kind"], "folder");
    EXPECT_EQ(choosers[1]["title"], "Select your Microsoft Word startup folder");
    EXPECT_EQ(choosers[1]["folder"], word);
    std::vector<std::string> answers;
    for (const Json& question : result.of("question")) {
        EXPECT_EQ(question["title"], "Scrivel 21 Installer");
        answers.push_back(question["answer"]);
    }
    EXPECT_THAT(answers, ElementsAre("Set", "Cancel", "Uninstall"));
    EXPECT_THAT(result.of("question").at(0)["message"].get<std::string>(),
                HasSubstr("Click 'Set' to set the Startup Folder location."));

    EXPECT_FALSE(fs::exists(fs::path(startup) / k16));
    EXPECT_TRUE(fs::exists(fs::path(startup) / "Mine.dotm"));
    EXPECT_THAT(crumbs(), Not(HasSubstr("|||")));
    EXPECT_THAT(crumbs(), HasSubstr("<key>Scrivel</key>"));
}

TEST_F(AlternateLocationsEndToEnd, TheLogTellsEachFolderAndEachFileThatIsRemoved) {
    const std::string word = unknown("Office 2016", "16");
    const std::string startup = made("Startup");
    std::ofstream(fs::path(startup) / "Scrivel.dot") << "old";
    const Result result = locations(
        quoted(word) + ", " + quoted(startup), R"("Set", "Uninstall")",
        R"({"press": "acPlus"}, {"selectRow": "acTbl", "row": 0}, {"press": "acMinusBtn"})");
    const std::string old = startup + "/Scrivel.dot";
    std::vector<std::string> lines;
    for (const Json& line : result.of("log"))
        lines.push_back(line["line"]);
    EXPECT_THAT(lines,
                IsSupersetOf({"Word Startup Folder(s) for: \"" +
                                  fs::path(word).parent_path().string() + "\", Version: 255.",
                              "Word Startup Folder(s) for: \"" + word + "\", Version: 16.",
                              "    --> \"" + startup + "\"", "    --> \"" + shared() + "\"",
                              "Remove File: " + old, "Unlock File: " + old}));
    EXPECT_THAT(lines, Contains("Running as user: /bin/rm -f " + old + " Result: 0"));
}

TEST_F(AlternateLocationsEndToEnd, WhatWasChosenIsThereInTheNextRun) {
    const std::string word = unknown("Office 2011", "14.7");
    const std::string startup = made("Startup");
    locations(quoted(word) + ", " + quoted(startup), R"("Set")", R"({"press": "acPlus"})");
    EXPECT_THAT(crumbs(), HasSubstr("<string>" + word + "|||" + startup + "|||14</string>"));
    const std::string other = made("Other");
    const Result next = locations(quoted(other), "",
                                  R"({"selectRow": "acTbl", "row": 0}, {"press": "acChange"},
            {"snapshot": "changed"}, {"press": "acResetBtn"}, {"snapshot": "reset"})");
    EXPECT_EQ(tableOf(next, 0), Json({{word, other, "2011"}}));
    EXPECT_EQ(next.of("chooser").at(0)["folder"], fs::path(word).parent_path().string());
    EXPECT_EQ(tableOf(next, 1), Json::array()) << "a Word 2011 has no startup folder by itself";
    EXPECT_FALSE(isEnabled(next, 1, "acChange"));
    EXPECT_THAT(crumbs(), Not(HasSubstr("|||")));
}

TEST_F(AlternateLocationsEndToEnd, AWordThatTheSearchFindsIsListedAndCanOnlyBeChanged) {
    const std::string word = installation("Office", "16.89.1");
    const Result result =
        locations("", "", R"({"selectRow": "acTbl", "row": 0}, {"snapshot": "selected"},
                             {"press": "acMinusBtn"})");
    EXPECT_EQ(tableOf(result, 0), Json({{word, shared(), "2016"}}));
    EXPECT_TRUE(isEnabled(result, 0, "acChange"));
    EXPECT_FALSE(isEnabled(result, 0, "acResetBtn"));
    EXPECT_EQ(result.exit, 3);
    EXPECT_THAT(result.error, HasSubstr("acMinusBtn"));
}

TEST_F(AlternateLocationsEndToEnd, AnItemThatIsNoInstallationIsRefused) {
    const std::string word = unknown("Loose", "16");
    fs::remove(fs::path(word).parent_path() / "Office");
    const Result result = locations(quoted(word), "", R"({"press": "acPlus"}, {"snapshot": "s"})");
    const Json question = result.of("question").at(0);
    EXPECT_EQ(question["message"], "The item you picked does not seem to be in a Microsoft Word "
                                   "installation directory.  Please try again.");
    EXPECT_EQ(question["buttons"], Json({"OK"}));
    EXPECT_EQ(tableOf(result, 0), Json::array());
    EXPECT_EQ(crumbs(), "");
}

TEST_F(AlternateLocationsEndToEnd, ActionsByNameReachThePage) {
    const std::string word = unknown("Office 2016", "15");
    const std::string startup = made("Startup");
    const Result result = locations(
        quoted(word) + ", " + quoted(startup), R"("Set")",
        R"({"call": "askUserForWord"}, {"call": "doFoundMSWord"}, {"call": "hideWordLocations"},
           {"snapshot": "s"})");
    EXPECT_EQ(tableOf(result, 0), Json({{word, startup, "2016"}}));
    EXPECT_EQ(result.of("snapshot").at(0)["controls"]["numOfMSWordsText"]["text"],
              "The Scrivel 21 Installer will install the Penmark add-in for the instance of "
              "Microsoft Word 2016 or 2019 installed on this computer.");
    EXPECT_EQ(result.of("snapshot").at(0)["page"], 6);
}

TEST_F(AlternateLocationsEndToEnd, GivenUpOnThePageTheWizardIsCancelled) {
    const Result result = locations("", "", R"({"snapshot": "s"})");
    EXPECT_EQ(result.exit, 1);
    EXPECT_EQ(logged().back(), "Scrivel 21 Installer: User Cancelled");
}

} // namespace
