// The built program where several Words of all ages are installed: what each of its wizards finds,
// logs from its first line to its last, and leaves on disk; with and without remembered
// places.
#include <gmock/gmock.h>

#include "tests/app/ClassicFile.h"
#include "tests/app/ComponentsRun.h"
#include "tests/app/SeveralWordsLogs.h"

namespace {

using namespace tests;

struct SeveralWordsEndToEnd : ComponentsRun {
    void SetUp() override {
        ComponentsRun::SetUp();
        const auto version = [](char major) { return forkWithVersion({0x16, 0x01, 0x20, major}); };
        writeClassicFile(applications() / "Microsoft Office 2004/Microsoft Word", version(0x11));
        addWord("Microsoft Office 2011/Microsoft Word", "14.7.7");
        if (!writeClassicFileWithAttribute(applications() / "Microsoft Office X/Microsoft Word",
                                           version(0x10)))
            GTEST_SKIP() << "the file system of the temporary folder keeps no attributes";
        addWord("Microsoft Word 2016", "15.41");
        addWord("Microsoft Word Beta", "16.89.1");
        addWord("Microsoft Word", "16.78");
        std::ofstream(fs::path(addWord("Broken/Microsoft Word", "16")) / "Contents/Info.plist")
            << "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>com.micro";
    }
    /// Four places of which one has another letter case than its Word, and one is unreadable; an
    /// old add-in lies in the folder of the oldest.
    void rememberPlaces() const {
        const auto record = [this](const char* word, const char* startup, int version) {
            return applications().string() + "/" + word + "|||" + home.string() + "/" + startup +
                   "|||" + std::to_string(version);
        };
        rememberWords({record("Microsoft Office 2004/Microsoft Word", "Startup 2004", 11),
                       record("MICROSOFT WORD 2016.app", "Startup 2016", 15),
                       record("Microsoft Word.app", "Startup 16", 16),
                       record("Broken/Microsoft Word.app", "Startup Broken", 16)});
        made(home / "Startup 2004" / k2016 / "Contents");
        std::ofstream(home / "Startup 2004/Scrivel 20.dot") << "not the add-in";
        made(home / "Startup 2016");
    }
    std::string uninstallAnswers(const char* authorize) const {
        return R"({"answers": ["Yes"], "steps": [{"select": "matSVWInstall", "row": 1},
                   {"press": "nextBtn"}, {"press": "nextBtn"}], "authorize": )" +
               std::string(authorize) + "}";
    }
    void expectAddInsInSharedFolder() const {
        auto expected = treeOf(folder / "Penmark");
        EXPECT_EQ(treeOf(shared()), expected);
    }
};

// --- whole runs

TEST_F(SeveralWordsEndToEnd, AListFindsEveryWordAndLogsItsSearch) {
    const auto before = treeOf(folder);
    const Result result = run("list --json");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(wholeLog(), kSearch + kStartupFolders + "State: Penmark Mode: mode_check\n" +
                              kStartupFoldersInTurn + " Result= No\n" +
                              kOtherChecksOfTheCustomizer);
    EXPECT_EQ(Json::parse(result.output).at(1)["state"], 0);
    auto after = treeOf(folder);
    for (const char* own : {"output", "error"})
        after.erase(own);
    after.erase("home/Library/Logs/Scrivel 21 Stub Install.log");
    EXPECT_EQ(after, before) << "it changes nothing";
}

TEST_F(SeveralWordsEndToEnd, TheCustomizerGoesThroughTheRememberedPlacesFirst) {
    rememberPlaces();
    const std::string crumbs = contentsOf(crumbsFile());
    const Result result = customize("", R"({"authorize": false})");
    EXPECT_EQ(result.exit, 0) << result.error;
    const std::string scan =
        kRememberedStartupFolders + kRememberedCheck + kOtherChecksOfTheCustomizer;
    EXPECT_EQ(wholeLog(), kRememberedSearch + scan + kCustomBanner + scan + R"(

Customize install

)" + kRememberedRemoval + R"(State: Penmark Mode: mode_copy
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2004/Microsoft Word", Version: 11.
    --> "HOME/Startup 2004"
Processing Startup Folder: HOME/Startup 2004
Word Startup Folder(s) for: "ROOT/Applications/MICROSOFT WORD 2016.app", Version: 255.
    --> "HOME/Startup 2016"
Processing Startup Folder: HOME/Startup 2016
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word.app", Version: 16.
    --> "HOME/Startup 16"
    --> "SHARED"
Processing Startup Folder: HOME/Startup 16
Make Dir: HOME/Startup 16
Running as user: /bin/mkdir -p HOME/Startup 16 Result: 0
chmod: HOME/Startup 16 mode:777
Running as user: /bin/chmod 777 HOME/Startup 16 Result: 0
Copy: DISK/Penmark/Scrivel PMRK Word 16.bundle -> HOME/Startup 16/Scrivel PMRK Word 16.bundle
Running as user: /usr/bin/ditto -rsrcFork DISK/Penmark/Scrivel PMRK Word 16.bundle HOME/Startup 16/Scrivel PMRK Word 16.bundle Result: 0
Processing Startup Folder: SHARED
Make Dir: SHARED
Running as user: /bin/mkdir -p SHARED Result: 0
chmod: SHARED mode:777
Running as user: /bin/chmod 777 SHARED Result: 0
Copy: DISK/Penmark/Scrivel PMRK Word 16.bundle -> SHARED/Scrivel PMRK Word 16.bundle
Running as user: /usr/bin/ditto -rsrcFork DISK/Penmark/Scrivel PMRK Word 16.bundle SHARED/Scrivel PMRK Word 16.bundle Result: 0
Word Startup Folder(s) for: "ROOT/Applications/Broken/Microsoft Word.app", Version: 255.
    --> "HOME/Startup Broken"
Processing Startup Folder: HOME/Startup Broken
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2011/Microsoft Word.app", Version: 14.
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word Beta.app", Version: 16.
    --> "SHARED"
Processing Startup Folder: SHARED
Copy: DISK/Penmark/Scrivel PMRK Word 16.bundle -> SHARED/Scrivel PMRK Word 16.bundle
Running as user: /usr/bin/ditto -rsrcFork DISK/Penmark/Scrivel PMRK Word 16.bundle SHARED/Scrivel PMRK Word 16.bundle Result: 0
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office X/Microsoft Word", Version: 10.
 Result= Yes
Installing: Penmark for Microsoft Word: citations and bibliographies in your documents Result: Succeeded
)" + kContentRemoved + kSystemIntegrationRemoved +
                              "File: (null)\n"
                              "Exception Raised \n"
                              "Installing: Notes on this version, beside the installer "
                              "Result: Failed\n"
                              "Uninstalling: Takes Scrivel 21 away again; the Uninstall button of "
                              "this page removes the other components Result: Failed\n");
    EXPECT_EQ(treeOf(home / "Startup 16" / k16), treeOf(folder / "Penmark" / k16));
    EXPECT_EQ(treeOf(shared() / k16), treeOf(folder / "Penmark" / k16));
    EXPECT_FALSE(fs::exists(shared() / k2016)) << "no Word of 2016 is where it is remembered";
    EXPECT_FALSE(fs::exists(home / "Startup 2004" / k2016));
    EXPECT_TRUE(fs::exists(home / "Startup 2004/Scrivel 20.dot"));
    EXPECT_TRUE(fs::is_empty(home / "Startup 2016"));
    EXPECT_FALSE(fs::exists(home / "Startup Broken"));
    EXPECT_EQ(contentsOf(crumbsFile()), crumbs);
}

TEST_F(SeveralWordsEndToEnd, PenmarkInstallsItsAddInForEveryWordThatTakesOne) {
    const Result result = runAnswering("penmark", R"({"authorize": false})");
    EXPECT_EQ(result.exit, 5);
    const std::string scan =
        kStartupFolders + "State: Penmark Mode: mode_check\n Result= Yes\n" + kOtherChecks;
    EXPECT_EQ(wholeLog(), kSearch + scan + kPenmarkBanner + scan + kInitialBanner +
                              "State: Penmark Mode: mode_remove\n" + kStartupFoldersInTurn +
                              " Result= No\n" + kCopyToEveryWord + kExtensionRefused +
                              "Scrivel 21 Installer: Exited Normally\n");
    expectAddInsInSharedFolder();
    EXPECT_FALSE(fs::exists(extension().parent_path()));
}

TEST_F(SeveralWordsEndToEnd, PenmarkUninstallsFromEveryFolderThatIsRemembered) {
    rememberPlaces();
    const Result result = runAnswering("penmark", uninstallAnswers("false"));
    EXPECT_EQ(result.exit, 0) << result.error;
    const std::string scan = kRememberedStartupFolders +
                             "State: Penmark Mode: mode_check\n Result= Yes\n" + kOtherChecks;
    EXPECT_EQ(
        wholeLog(),
        kRememberedSearch + scan + kPenmarkBanner + scan + R"(

Customize un-install

)" + kRememberedRemoval +
            "Uninstalling: Penmark for Microsoft Word: citations and bibliographies in your "
            "documents Result: Succeeded\n" +
            kContentRemoved + kSystemIntegrationRemoved + R"(File: (null)
 Result= No
Uninstalling: Notes on this version, beside the installer Result: Failed
)" + kExamples +
            R"(Uninstalling: A sample library; it is installed with Scrivel 21 itself Result: Failed
Uninstalling: Takes Scrivel 21 away again; the Uninstall button of this page removes the other components Result: Failed
Uninstalling: Needs a later version of this installer Result: Failed
)");
    EXPECT_FALSE(fs::exists(home / "Startup 2004" / k2016));
    EXPECT_TRUE(fs::exists(home / "Startup 2004/Scrivel 20.dot"));
    EXPECT_FALSE(fs::exists(shared()));
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "removed");
}

TEST_F(SeveralWordsEndToEnd, TheFirstInstallLooksForWordOnceMoreAndSaysSoAtTheEnd) {
    const Result result = runAnswering("first-install", R"({"authorize": false})", "--yes");
    EXPECT_EQ(result.exit, 5);
    EXPECT_EQ(wholeLog(), kSearch + kStartupFolders + "State: Penmark Mode: mode_check\n" +
                              kStartupFoldersInTurn + " Result= No\n" + kOtherChecks +
                              "State: Searching for Microsoft Word Mode: mode_check\n" +
                              kInitialBanner + "State: Penmark Mode: mode_remove\n" +
                              kStartupFoldersInTurn + " Result= No\n" + kCopyToEveryWord +
                              kExtensionRefused +
                              "Check For Word: exists in /Applications\n"
                              "Scrivel 21 Installer: Exited Normally\n");
    expectAddInsInSharedFolder();
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "installed");
    EXPECT_EQ(resultOf(result, "Browser extension"), "refused");
}

TEST_F(SeveralWordsEndToEnd, TheShortFirstInstallSearchesOnlyWhenItInstalls) {
    const Result result = runAnswering("first-install --short", R"({"authorize": false})");
    EXPECT_EQ(result.exit, 5);
    EXPECT_EQ(wholeLog(), kInitialBanner + "State: Penmark Mode: mode_remove\n" + kSearch +
                              kStartupFoldersInTurn + " Result= No\n" + kCopyToEveryWord +
                              kExtensionRefused + "Scrivel 21 Installer: Exited Normally\n");
    expectAddInsInSharedFolder();
}

TEST_F(SeveralWordsEndToEnd, WithRightsTheExtensionIsWrittenByFourRunsAsAdministrator) {
    if (!isRoot())
        GTEST_SKIP() << "the browser extension needs administrator rights";
    const Result result = runAnswering("first-install --short", R"({"authorize": true})");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(wholeLog(), kInitialBanner + "State: Penmark Mode: mode_remove\n" + kSearch +
                              kStartupFoldersInTurn + " Result= No\n" + kCopyToEveryWord +
                              kExtensionGranted + "Scrivel 21 Installer: Exited Normally\n");
    expectAddInsInSharedFolder();
    EXPECT_EQ(contentsOf(extension()),
              R"({"external_update_url":"https://updates.scrivel.example/extensions/chrome/)"
              R"(update-manifest.xml"})");
}

} // namespace
