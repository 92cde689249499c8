// The built program where several Words of all ages are installed: what each of its wizards finds,
// logs from its first line to its last, and leaves on disk; with and without remembered places,
// with administrator rights refused, and in folders that may not be written.
#include <gmock/gmock.h>

#include "tests/app/ClassicFile.h"
#include "tests/app/ComponentsRun.h"

namespace {

using namespace tests;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// --- the parts of the logs that stand in several of them

const std::string kSearch = R"(findApplicationsWithBundleIdentifier: com.microsoft.Word
findApplication: Microsoft Word
Determine Word Paths: (
    "ROOT/Applications/Microsoft Office 2011/Microsoft Word.app",
    "ROOT/Applications/Microsoft Word 2016.app",
    "ROOT/Applications/Microsoft Word Beta.app",
    "ROOT/Applications/Microsoft Word.app",
    "ROOT/Applications/Microsoft Office 2004/Microsoft Word",
    "ROOT/Applications/Microsoft Office X/Microsoft Word"
)
)";

const std::string kStartupFolders =
    R"(Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2011/Microsoft Word.app", Version: 14.
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word 2016.app", Version: 15.
    --> "SHARED"
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word Beta.app", Version: 16.
    --> "SHARED"
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word.app", Version: 16.
    --> "SHARED"
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2004/Microsoft Word", Version: 11.
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office X/Microsoft Word", Version: 10.
)";

/// As a check and a removal pass through them while the shared folder is empty.
const std::string kStartupFoldersInTurn =
    R"(Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2011/Microsoft Word.app", Version: 14.
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word 2016.app", Version: 15.
    --> "SHARED"
Processing Startup Folder: SHARED
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word Beta.app", Version: 16.
    --> "SHARED"
Processing Startup Folder: SHARED
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word.app", Version: 16.
    --> "SHARED"
Processing Startup Folder: SHARED
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2004/Microsoft Word", Version: 11.
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office X/Microsoft Word", Version: 10.
)";

/// Six subjects of filters and three of styles.
const std::string kCategoryChecks = R"(State: Scrivel Content Files Mode: mode_check
State: Scrivel Content Files Mode: mode_check
State: Scrivel Content Files Mode: mode_check
State: Scrivel Content Files Mode: mode_check
State: Scrivel Content Files Mode: mode_check
State: Scrivel Content Files Mode: mode_check
State: Scrivel Content Files Mode: mode_check
State: Scrivel Content Files Mode: mode_check
State: Scrivel Content Files Mode: mode_check
)";

/// The folder of the examples is asked for without a path. (The blank at the line's end counts.)
const std::string kExamples = "Dir: (null)\n"
                              "Exception Raised \n";

const std::string kReadMeCheck = R"(File: (null)
 Result= Yes
)";

const std::string kOtherChecksOfTheCustomizer = kCategoryChecks +
                                                R"(State: Spotlight Support Mode: mode_check
CHECK: Did not find installed Spotlight
State: Scrivel Services Mode: mode_check
CHECK: Did not find installed Services
State: Tessaron Extension Mode: mode_check
)" + kReadMeCheck + kExamples;

/// In the other modes nobody looks for the importer and the service.
const std::string kOtherChecks = kCategoryChecks + R"(State: Spotlight Support Mode: mode_check
State: Scrivel Services Mode: mode_check
State: Tessaron Extension Mode: mode_check
)" + kReadMeCheck + kExamples;

const std::string kPenmarkBanner = R"(******************************************************
******************************************************
**                                                  **
**  Install Scrivel Penmark                         **
**                                                  **
**                                                  **
**    Build number: 19023
**                                                  **
******************************************************
******************************************************
)";

const std::string kCustomBanner = R"(******************************************************
******************************************************
**                                                  **
**  Custom Install from menu                        **
**                                                  **
**                                                  **
**    Build number: 19023
**                                                  **
******************************************************
******************************************************
)";

const std::string kInitialBanner = R"(******************************************************
******************************************************
**                                                  **
**  Initial install                                 **
**                                                  **
**                                                  **
**                                                  **
**    Build number: 19023
**                                                  **
******************************************************
******************************************************
)";

const std::string kCopyToEveryWord = R"(State: Penmark Mode: mode_copy
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2011/Microsoft Word.app", Version: 14.
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word 2016.app", Version: 15.
    --> "SHARED"
Processing Startup Folder: SHARED
Make Dir: SHARED
Running as user: /bin/mkdir -p SHARED Result: 0
chmod: SHARED mode:777
Running as user: /bin/chmod 777 SHARED Result: 0
Copy: DISK/Penmark/Scrivel PMRK Word 2016.bundle -> SHARED/Scrivel PMRK Word 2016.bundle
Running as user: /usr/bin/ditto -rsrcFork DISK/Penmark/Scrivel PMRK Word 2016.bundle SHARED/Scrivel PMRK Word 2016.bundle Result: 0
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word Beta.app", Version: 16.
    --> "SHARED"
Processing Startup Folder: SHARED
Copy: DISK/Penmark/Scrivel PMRK Word 16.bundle -> SHARED/Scrivel PMRK Word 16.bundle
Running as user: /usr/bin/ditto -rsrcFork DISK/Penmark/Scrivel PMRK Word 16.bundle SHARED/Scrivel PMRK Word 16.bundle Result: 0
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word.app", Version: 16.
    --> "SHARED"
Processing Startup Folder: SHARED
Copy: DISK/Penmark/Scrivel PMRK Word 16.bundle -> SHARED/Scrivel PMRK Word 16.bundle
Running as user: /usr/bin/ditto -rsrcFork DISK/Penmark/Scrivel PMRK Word 16.bundle SHARED/Scrivel PMRK Word 16.bundle Result: 0
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2004/Microsoft Word", Version: 11.
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office X/Microsoft Word", Version: 10.
 Result= Yes
)";

/// The four runs of the copy are refused with the first: nobody is asked twice.
const std::string kExtensionRefused = R"(State: Tessaron Extension Mode: mode_remove
State: Tessaron Extension Mode: mode_copy
Authenticate
Authentication status :Failed
)";

const std::string kExtensionGranted = R"(State: Tessaron Extension Mode: mode_remove
State: Tessaron Extension Mode: mode_copy
Authenticate
Authentication status :Succeeded
Running as admin: /bin/mkdir -p CHROME Result: 0
Running as admin: /bin/chown -R root:wheel CHROME Result: 0
Running as admin: /bin/cp TMP/kmhdpbnaogjcfelipamcbkdgonhejlfa.json CHROME/kmhdpbnaogjcfelipamcbkdgonhejlfa.json Result: 0
Running as admin: /bin/chown root:wheel CHROME/kmhdpbnaogjcfelipamcbkdgonhejlfa.json Result: 0
)";

/// Taking all subjects away leaves the popular ones, which the subjects by themselves then lose.
/// Only a file that is there is unlocked and removed.
const std::string kContentRemoved =
    R"(Remove File: DISK/Filters
Make Dir: DISK/Filters
Running as user: /bin/mkdir -p DISK/Filters Result: 0
chmod: DISK/Filters mode:777
Running as user: /bin/chmod 777 DISK/Filters Result: 0
Copy: DISK/Product-Support/Content.bundle/Most Popular/Filters -> DISK/Filters
Running as user: /usr/bin/ditto -rsrcFork DISK/Product-Support/Content.bundle/Most Popular/Filters DISK/Filters Result: 0
Uninstalling: Import filters for databases and library catalogues, by subject Result: Succeeded
State: Scrivel Content Files Mode: mode_remove
Remove File: DISK/Filters/Chemistry 1.svfilter
Unlock File: DISK/Filters/Chemistry 1.svfilter
Running as user: /usr/bin/chflags nouchg DISK/Filters/Chemistry 1.svfilter Result: 0
Running as user: /bin/rm -f DISK/Filters/Chemistry 1.svfilter Result: 0
Remove File: DISK/Filters/Chemistry 2.svfilter
Remove File: DISK/Filters/Chemistry 3.svfilter
Remove File: DISK/Filters/Chemistry 4.svfilter
Uninstalling: Import filters for chemistry Result: Succeeded
State: Scrivel Content Files Mode: mode_remove
Remove File: DISK/Filters/Economics 1.svfilter
Remove File: DISK/Filters/Economics 2.svfilter
Remove File: DISK/Filters/Economics 3.svfilter
Uninstalling: Import filters for economics Result: Succeeded
State: Scrivel Content Files Mode: mode_remove
Remove File: DISK/Filters/History 1.svfilter
Remove File: DISK/Filters/History 2.svfilter
Remove File: DISK/Filters/History 3.svfilter
Uninstalling: Import filters for history Result: Succeeded
State: Scrivel Content Files Mode: mode_remove
Remove File: DISK/Filters/Law 1.svfilter
Remove File: DISK/Filters/Law 2.svfilter
Remove File: DISK/Filters/Law 3.svfilter
Remove File: DISK/Filters/Law 4.svfilter
Remove File: DISK/Filters/Law 5.svfilter
Uninstalling: Import filters for law Result: Succeeded
State: Scrivel Content Files Mode: mode_remove
Remove File: DISK/Filters/Medicine 1.svfilter
Unlock File: DISK/Filters/Medicine 1.svfilter
Running as user: /usr/bin/chflags nouchg DISK/Filters/Medicine 1.svfilter Result: 0
Running as user: /bin/rm -f DISK/Filters/Medicine 1.svfilter Result: 0
Remove File: DISK/Filters/Medicine 2.svfilter
Unlock File: DISK/Filters/Medicine 2.svfilter
Running as user: /usr/bin/chflags nouchg DISK/Filters/Medicine 2.svfilter Result: 0
Running as user: /bin/rm -f DISK/Filters/Medicine 2.svfilter Result: 0
Remove File: DISK/Filters/Medicine 3.svfilter
Remove File: DISK/Filters/Medicine 4.svfilter
Remove File: DISK/Filters/Medicine 5.svfilter
Remove File: DISK/Filters/Medicine 6.svfilter
Uninstalling: Import filters for medicine Result: Succeeded
State: Scrivel Content Files Mode: mode_remove
Remove File: DISK/Filters/Physics 1.svfilter
Unlock File: DISK/Filters/Physics 1.svfilter
Running as user: /usr/bin/chflags nouchg DISK/Filters/Physics 1.svfilter Result: 0
Running as user: /bin/rm -f DISK/Filters/Physics 1.svfilter Result: 0
Remove File: DISK/Filters/Physics 2.svfilter
Remove File: DISK/Filters/Physics 3.svfilter
Remove File: DISK/Filters/Physics 4.svfilter
Uninstalling: Import filters for physics Result: Succeeded
Remove File: DISK/Styles
Make Dir: DISK/Styles
Running as user: /bin/mkdir -p DISK/Styles Result: 0
chmod: DISK/Styles mode:777
Running as user: /bin/chmod 777 DISK/Styles Result: 0
Copy: DISK/Product-Support/Content.bundle/Most Popular/Styles -> DISK/Styles
Running as user: /usr/bin/ditto -rsrcFork DISK/Product-Support/Content.bundle/Most Popular/Styles DISK/Styles Result: 0
Uninstalling: Citation styles of journals and publishers, by subject Result: Succeeded
State: Scrivel Content Files Mode: mode_remove
Remove File: DISK/Styles/Engineering 1.svstyle
Unlock File: DISK/Styles/Engineering 1.svstyle
Running as user: /usr/bin/chflags nouchg DISK/Styles/Engineering 1.svstyle Result: 0
Running as user: /bin/rm -f DISK/Styles/Engineering 1.svstyle Result: 0
Remove File: DISK/Styles/Engineering 2.svstyle
Remove File: DISK/Styles/Engineering 3.svstyle
Remove File: DISK/Styles/Engineering 4.svstyle
Uninstalling: Citation styles for engineering Result: Succeeded
State: Scrivel Content Files Mode: mode_remove
Remove File: DISK/Styles/Humanities 1.svstyle
Unlock File: DISK/Styles/Humanities 1.svstyle
Running as user: /usr/bin/chflags nouchg DISK/Styles/Humanities 1.svstyle Result: 0
Running as user: /bin/rm -f DISK/Styles/Humanities 1.svstyle Result: 0
Remove File: DISK/Styles/Humanities 2.svstyle
Unlock File: DISK/Styles/Humanities 2.svstyle
Running as user: /usr/bin/chflags nouchg DISK/Styles/Humanities 2.svstyle Result: 0
Running as user: /bin/rm -f DISK/Styles/Humanities 2.svstyle Result: 0
Remove File: DISK/Styles/Humanities 3.svstyle
Remove File: DISK/Styles/Humanities 4.svstyle
Remove File: DISK/Styles/Humanities 5.svstyle
Uninstalling: Citation styles for the humanities Result: Succeeded
State: Scrivel Content Files Mode: mode_remove
Remove File: DISK/Styles/Sciences 1.svstyle
Unlock File: DISK/Styles/Sciences 1.svstyle
Running as user: /usr/bin/chflags nouchg DISK/Styles/Sciences 1.svstyle Result: 0
Running as user: /bin/rm -f DISK/Styles/Sciences 1.svstyle Result: 0
Remove File: DISK/Styles/Sciences 2.svstyle
Unlock File: DISK/Styles/Sciences 2.svstyle
Running as user: /usr/bin/chflags nouchg DISK/Styles/Sciences 2.svstyle Result: 0
Running as user: /bin/rm -f DISK/Styles/Sciences 2.svstyle Result: 0
Remove File: DISK/Styles/Sciences 3.svstyle
Remove File: DISK/Styles/Sciences 4.svstyle
Remove File: DISK/Styles/Sciences 5.svstyle
Remove File: DISK/Styles/Sciences 6.svstyle
Uninstalling: Citation styles for the sciences Result: Succeeded
)";

/// The importer's removal counts as failed, on purpose.
const std::string kSystemIntegrationRemoved = R"(State: Spotlight Support Mode: mode_remove
Uninstalling: Spotlight finds the references in your libraries Result: Failed
State: Scrivel Services Mode: mode_remove
Run: KillSVService.sh -> Params: (
)
Running as user: APP/Contents/Resources/KillSVService.sh  Result: 0
Uninstalling: Scrivel 21 commands in the Services menu of other applications Result: Succeeded
State: Tessaron Extension Mode: mode_remove
Uninstalling: Tessaron for Google Chrome: collects references from web pages Result: Succeeded
)";

/// With four places remembered.
const std::string kRememberedSearch = R"(findApplicationsWithBundleIdentifier: com.microsoft.Word
findApplication: Microsoft Word
Determine Word Paths: (
    "ROOT/Applications/Microsoft Office 2004/Microsoft Word",
    "ROOT/Applications/MICROSOFT WORD 2016.app",
    "ROOT/Applications/Microsoft Word.app",
    "ROOT/Applications/Broken/Microsoft Word.app",
    "ROOT/Applications/Microsoft Office 2011/Microsoft Word.app",
    "ROOT/Applications/Microsoft Word Beta.app",
    "ROOT/Applications/Microsoft Office X/Microsoft Word"
)
)";

/// The one that is spelled differently is not there, where letter case counts.
const std::string kRememberedStartupFolders =
    R"(Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2004/Microsoft Word", Version: 11.
    --> "HOME/Startup 2004"
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word.app", Version: 16.
    --> "HOME/Startup 16"
    --> "SHARED"
Word Startup Folder(s) for: "ROOT/Applications/Broken/Microsoft Word.app", Version: 255.
    --> "HOME/Startup Broken"
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2011/Microsoft Word.app", Version: 14.
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word Beta.app", Version: 16.
    --> "SHARED"
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office X/Microsoft Word", Version: 10.
)";

const std::string kRememberedCheck = R"(State: Penmark Mode: mode_check
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
Processing Startup Folder: SHARED
Word Startup Folder(s) for: "ROOT/Applications/Broken/Microsoft Word.app", Version: 255.
    --> "HOME/Startup Broken"
Processing Startup Folder: HOME/Startup Broken
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2011/Microsoft Word.app", Version: 14.
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word Beta.app", Version: 16.
    --> "SHARED"
Processing Startup Folder: SHARED
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office X/Microsoft Word", Version: 10.
 Result= Yes
)";

const std::string kRememberedRemoval = R"(State: Penmark Mode: mode_remove
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2004/Microsoft Word", Version: 11.
    --> "HOME/Startup 2004"
Processing Startup Folder: HOME/Startup 2004
Remove File: HOME/Startup 2004/Scrivel PMRK Word 2016.bundle
Unlock Dir: HOME/Startup 2004/Scrivel PMRK Word 2016.bundle
Running as user: /usr/bin/chflags -R nouchg HOME/Startup 2004/Scrivel PMRK Word 2016.bundle Result: 0
Running as user: /bin/rm -rf HOME/Startup 2004/Scrivel PMRK Word 2016.bundle Result: 0
Word Startup Folder(s) for: "ROOT/Applications/MICROSOFT WORD 2016.app", Version: 255.
    --> "HOME/Startup 2016"
Processing Startup Folder: HOME/Startup 2016
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word.app", Version: 16.
    --> "HOME/Startup 16"
    --> "SHARED"
Processing Startup Folder: HOME/Startup 16
Processing Startup Folder: SHARED
Word Startup Folder(s) for: "ROOT/Applications/Broken/Microsoft Word.app", Version: 255.
    --> "HOME/Startup Broken"
Processing Startup Folder: HOME/Startup Broken
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office 2011/Microsoft Word.app", Version: 14.
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Word Beta.app", Version: 16.
    --> "SHARED"
Processing Startup Folder: SHARED
Word Startup Folder(s) for: "ROOT/Applications/Microsoft Office X/Microsoft Word", Version: 10.
 Result= Yes
)";

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
