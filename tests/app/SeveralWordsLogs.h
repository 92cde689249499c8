// The parts of the logs of SeveralWordsEndToEndTest that stand in several of them, as text without
// dates and with the run's folders named (ComponentsRun::named). Written down from what each
// operation says that it logs.
#pragma once

#include <string>

namespace tests {

inline const std::string kSearch = R"(findApplicationsWithBundleIdentifier: com.microsoft.Word
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

inline const std::string kStartupFolders =
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
inline const std::string kStartupFoldersInTurn =
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
inline const std::string kCategoryChecks = R"(State: Scrivel Content Files Mode: mode_check
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
inline const std::string kExamples = "Dir: (null)\n"
                                     "Exception Raised \n";

inline const std::string kReadMeCheck = R"(File: (null)
 Result= Yes
)";

inline const std::string kOtherChecksOfTheCustomizer = kCategoryChecks +
                                                       R"(State: Spotlight Support Mode: mode_check
CHECK: Did not find installed Spotlight
State: Scrivel Services Mode: mode_check
CHECK: Did not find installed Services
State: Tessaron Extension Mode: mode_check
)" + kReadMeCheck + kExamples;

/// In the other modes nobody looks for the importer and the service.
inline const std::string kOtherChecks = kCategoryChecks +
                                        R"(State: Spotlight Support Mode: mode_check
State: Scrivel Services Mode: mode_check
State: Tessaron Extension Mode: mode_check
)" + kReadMeCheck + kExamples;

inline const std::string kPenmarkBanner = R"(******************************************************
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

inline const std::string kCustomBanner = R"(******************************************************
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

inline const std::string kInitialBanner = R"(******************************************************
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

inline const std::string kCopyToEveryWord = R"(State: Penmark Mode: mode_copy
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
inline const std::string kExtensionRefused = R"(State: Tessaron Extension Mode: mode_remove
State: Tessaron Extension Mode: mode_copy
Authenticate
Authentication status :Failed
)";

inline const std::string kExtensionGranted = R"(State: Tessaron Extension Mode: mode_remove
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
inline const std::string kContentRemoved =
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
inline const std::string kSystemIntegrationRemoved = R"(State: Spotlight Support Mode: mode_remove
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
inline const std::string kRememberedSearch =
    R"(findApplicationsWithBundleIdentifier: com.microsoft.Word
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
inline const std::string kRememberedStartupFolders =
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

inline const std::string kRememberedCheck = R"(State: Penmark Mode: mode_check
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

inline const std::string kRememberedRemoval = R"(State: Penmark Mode: mode_remove
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

} // namespace tests
