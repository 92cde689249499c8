#include "word/AlternateLocations.h"

#include <deque>
#include <filesystem>
#include <functional>

#include <gmock/gmock.h>

#include "tests/word/WordStage.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kSetQuestion =
    "If you have configured Word to use a different Startup Folder, Or you are using a non-English "
    "Language version of Word, Click 'Set' to set the Startup Folder location.";
const std::string kRefusal = "The item you picked does not seem to be in a Microsoft Word "
                             "installation directory.  Please try again.";

struct AlternateLocationsTest : tests::WordStage {
    struct Question {
        std::string title, message;
        Texts buttons;
    };
    std::vector<Question> questions;
    /// What the user presses, by title; when used up the sheet is closed.
    std::deque<std::string> presses;

    void SetUp() override {
        WordStage::SetUp();
        host.modalLoop.idle = [this] { return answer(); };
    }
    bool answer() {
        auto& files = host.interfaceFiles;
        auto& window = files.interfaces.find("ecPanel")->second->window;
        std::vector<controls::Button*> buttons;
        Question question{.title = window.title(),
                          .message =
                              files.control<controls::TextField>("ecPanel", "msgText").text(),
                          .buttons = {}};
        for (const auto* outlet : {"defBtn", "altBtn", "othBtn"})
            if (auto& button = files.control<controls::Button>("ecPanel", outlet);
                !button.isHidden()) {
                buttons.push_back(&button);
                question.buttons.push_back(button.title());
            }
        questions.push_back(question);
        if (presses.empty()) {
            window.performClose();
            return true;
        }
        const std::string title = presses.front();
        presses.pop_front();
        for (controls::Button* button : buttons)
            if (button->title() == title) {
                button->press();
                return true;
            }
        ADD_FAILURE() << "no button " << title;
        window.performClose();
        return true;
    }
    void choose(std::optional<std::string> path) { host.fileChoosers.answers.push_back(path); }

    /// A Word that lies as an installation does, with "Office" beside it.
    std::string installation(const std::string& place, const std::string& version) {
        made(place + "/Office");
        return wordUnknown(place + "/Word.app", version);
    }
    void show() {
        controller->constructWordAndStartupPaths();
        controller->doAltPMRK();
    }
    controls::TableView& table() { return controller->acTbl; }
    /// Which of "+-CR" can be pressed.
    std::string usable() const {
        std::string all;
        all += controller->acPlus.isEnabled() ? "+" : "";
        all += controller->acMinusBtn.isEnabled() ? "-" : "";
        all += controller->acChange.isEnabled() ? "C" : "";
        all += controller->acResetBtn.isEnabled() ? "R" : "";
        return all;
    }
    Texts row(int number) {
        Texts cells;
        for (const auto column : table().columns())
            cells.push_back(table().value(column, number));
        return cells;
    }
    /// Two Words of breadcrumbs and a found one: the table's rows 0, 1 and 2.
    void threeRows() {
        first = installation("First", "14");
        second = installation("Second", "16");
        remember({first + "|||/S1|||14", second + "|||/S2|||16"});
        found = word("Found.app", "16");
        show();
        ASSERT_EQ(table().rows(), 3);
    }
    std::string first, second, found;
};

// --- the table

TEST_F(AlternateLocationsTest, TheTableShowsEachPairWithItsVersionsLabel) {
    threeRows();
    EXPECT_THAT(row(0), ElementsAre(first, "/S1", "2011"));
    EXPECT_THAT(row(1), ElementsAre(second, "/S2", "2016"));
    EXPECT_THAT(row(2), ElementsAre(found, shared, "2016"));
}

TEST_F(AlternateLocationsTest, AVersionIsShownByItsLabelAndOthersByNone) {
    struct Label {
        const char *version, *label;
    };
    std::string path = installation("Place", "12");
    for (const auto& [version, label] : {Label{"12.3", "2008"},
                                         {"13", ""},
                                         {"14", "2011"},
                                         {"15.2", "2016"},
                                         {"16", "2016"},
                                         {"17", ""},
                                         {"99", ""}}) {
        host.bundles.strings[{path, "CFBundleShortVersionString"}] = version;
        remember({path + "|||/S|||0"});
        show();
        EXPECT_THAT(row(0), ElementsAre(path, "/S", label)) << version;
    }
}

TEST_F(AlternateLocationsTest, OtherColumnsAndRowsShowNothing) {
    threeRows();
    EXPECT_EQ(table().value("another", 0), "");
    EXPECT_EQ(controller->tableViewObjectValue("wordPath", 3), "");
    EXPECT_EQ(controller->tableViewObjectValue("wordPath", -1), "");
    EXPECT_EQ(controller->numberOfRowsInTableView(), 3);
}

TEST_F(AlternateLocationsTest, APathWithALineFeedStandsInItsCell) {
    const std::string path = installation("Pla\nce", "16");
    remember({path + "|||/S\n2|||16"});
    show();
    EXPECT_THAT(row(0), ElementsAre(path, "/S\n2", "2016"));
}

// --- what can be pressed

TEST_F(AlternateLocationsTest, WithNoRowSelectedOnlyPlusIsUsable) {
    threeRows();
    table().selectRow(0);
    table().selectRow(-1);
    EXPECT_EQ(usable(), "+");
    const Texts before = remembered();
    controller->doACminus();
    controller->doACchange();
    controller->doACReset();
    EXPECT_THAT(questions, IsEmpty());
    EXPECT_THAT(host.fileChoosers.asked, IsEmpty());
    EXPECT_EQ(remembered(), before);
    EXPECT_THAT(host.propertyLists.written, IsEmpty());
}

TEST_F(AlternateLocationsTest, ARowFromABreadcrumbCanBeRemovedChangedAndReset) {
    threeRows();
    table().selectRow(1);
    EXPECT_EQ(usable(), "+-CR");
}

TEST_F(AlternateLocationsTest, ARowFromASearchCanBeChangedAlone) {
    threeRows();
    table().selectRow(2);
    EXPECT_EQ(usable(), "+C");
}

TEST_F(AlternateLocationsTest, ABreadcrumbIsKnownInAnyLetterCaseButNotWithAnotherVersion) {
    const std::string path = installation("Place", "16");
    remember({path + "|||/StartUp|||16"});
    show();
    remember({path + "|||/STARTUP|||16"});
    table().selectRow(0);
    EXPECT_EQ(usable(), "+-CR");
    remember({path + "|||/StartUp|||15"});
    controller->tableViewSelectionIsChanging();
    EXPECT_EQ(usable(), "+C");
    remember({path + "|||/StartUp|||16"});
    controller->updateAltPMRKControls();
    EXPECT_EQ(usable(), "+-CR");
}

TEST_F(AlternateLocationsTest, ARowThatIsGoneWhenTheTableIsReloadedIsNoLongerSelected) {
    threeRows();
    table().selectRow(2);
    fs::remove(found);
    show();
    EXPECT_EQ(table().selectedRow(), -1);
    EXPECT_EQ(usable(), "+");
}

// --- plus

TEST_F(AlternateLocationsTest, PlusAsksForWordAndWithSetForItsStartupFolder) {
    const std::string path = installation("Office 2011", "14.7");
    controller->m_breadCrumbsUpdated = true;
    choose(path);
    choose("/My Startup");
    presses = {"Set"};
    show();
    controller->acPlus.press();
    ASSERT_EQ(host.fileChoosers.asked.size(), 2u);
    const ports::Chooser& forApp = host.fileChoosers.asked[0];
    EXPECT_EQ(forApp.kind, ports::Chooser::Kind::application);
    EXPECT_EQ(forApp.title, "Please locate your installed copy of Microsoft Word");
    const ports::Chooser& forFolder = host.fileChoosers.asked[1];
    EXPECT_EQ(forFolder.kind, ports::Chooser::Kind::folder);
    EXPECT_EQ(forFolder.title, "Select your Microsoft Word startup folder");
    EXPECT_EQ(forFolder.folder, path);
    ASSERT_EQ(questions.size(), 1u);
    EXPECT_EQ(questions[0].title, "Scrivel 21 Installer");
    EXPECT_EQ(questions[0].message, kSetQuestion);
    EXPECT_THAT(questions[0].buttons, ElementsAre("No", "Set"));
    EXPECT_THAT(remembered(), ElementsAre(path + "|||/My Startup|||14"));
    EXPECT_THAT(row(0), ElementsAre(path, "/My Startup", "2011"));
    EXPECT_FALSE(controller->m_breadCrumbsUpdated);
    EXPECT_EQ(controller->m_crumb_word, path);
    EXPECT_EQ(controller->m_crumb_version, 14);
}

TEST_F(AlternateLocationsTest, ItIsWantedThatNoLooksForTheFolderOfTheWordAndNotForTheWord) {
    const std::string path = installation("Office 16", "16");
    const std::string holder = folder.path("Office 16");
    choose(path);
    presses = {"No"};
    controller->doACplus();
    EXPECT_THAT(remembered(), IsEmpty()) << "a folder has no version, and so no startup folder";
    EXPECT_EQ(controller->m_crumb_startup, "");
    EXPECT_THAT(logged(),
                testing::Contains("Word Startup Folder(s) for: \"" + holder + "\", Version: 255."));

    remember({holder + "|||/Of the folder|||16"});
    choose(path);
    presses = {"No"};
    controller->doACplus();
    EXPECT_EQ(controller->m_crumb_startup, "/Of the folder");
    EXPECT_THAT(remembered(),
                ElementsAre(holder + "|||/Of the folder|||16", path + "|||/Of the folder|||16"));
}

TEST_F(AlternateLocationsTest, AnItemWithoutAnOfficeFolderBesideItIsRefused) {
    choose(wordUnknown("Elsewhere/Word.app", "16"));
    controller->acPlus.press();
    ASSERT_EQ(questions.size(), 1u);
    EXPECT_EQ(questions[0].title, "Scrivel 21 Installer");
    EXPECT_EQ(questions[0].message, kRefusal);
    EXPECT_THAT(questions[0].buttons, ElementsAre("OK"));
    EXPECT_EQ(host.fileChoosers.asked.size(), 1u);
    EXPECT_THAT(host.propertyLists.written, IsEmpty());
    EXPECT_TRUE(controller->acPlus.isEnabled());
}

TEST_F(AlternateLocationsTest, TheFolderThatHoldsABundleIsItsParentWithAndWithoutALastSlash) {
    const std::string path = installation("Place", "16");
    for (const std::string& chosen : {path, path + "/", path + "//"}) {
        choose(chosen);
        choose(std::nullopt);
        presses = {"Set"};
        controller->doACplus();
        EXPECT_EQ(questions.back().message, kSetQuestion) << chosen;
    }
}

TEST_F(AlternateLocationsTest, CancellingAnyPanelLeavesEverythingAsItIs) {
    const std::string path = installation("Place", "16");
    choose(std::nullopt);
    controller->doACplus();
    EXPECT_THAT(questions, IsEmpty());
    for (const auto& answer : {std::optional<std::string>(), std::optional<std::string>("")}) {
        choose(path);
        choose(answer);
        presses = {"Set"};
        controller->doACplus();
    }
    EXPECT_EQ(questions.size(), 2u);
    EXPECT_THAT(host.propertyLists.written, IsEmpty());
}

TEST_F(AlternateLocationsTest, OnlyTheCodesOfNoAndSetRecordAnything) {
    controller->m_crumb_word = installation("Place", "16");
    remember({folder.path("Place") + "|||/S|||16"});
    for (const int code : {-1, 2, 1000}) {
        choose("/chosen");
        controller->alertDidEndWord(code);
        EXPECT_EQ(remembered().size(), 1u) << code;
    }
    EXPECT_THAT(host.fileChoosers.asked, IsEmpty());
}

TEST_F(AlternateLocationsTest, WithoutAnInterfaceFileForTheQuestionTheAnswerIsNo) {
    host.interfaceFiles.missing.insert("ecPanel");
    const std::string path = installation("Place", "16");
    remember({folder.path("Place") + "|||/S|||16"});
    choose(path);
    controller->doACplus();
    EXPECT_EQ(remembered().back(), path + "|||/S|||16");
}

TEST_F(AlternateLocationsTest, AFileThatIsChosenIsRecordedWithoutAVersion) {
    made("Place/Office");
    const std::string path = folder.write("Place/Microsoft Word", "");
    choose(path);
    choose("/S");
    presses = {"Set"};
    controller->doACplus();
    EXPECT_THAT(remembered(), ElementsAre(path + "|||/S|||255"));
    EXPECT_THAT(row(0), ElementsAre(path, "/S", ""));
}

// --- minus

TEST_F(AlternateLocationsTest, MinusAsksAndRemovesTheOldFilesWithTheBreadcrumb) {
    const std::string startup = made("Startup");
    made("Startup/Scrivel PMRK Word 16.bundle");
    folder.write("Startup/Scrivel.dot", "");
    folder.write("Startup/Mine.dot", "");
    const std::string path = installation("Place", "14");
    remember({path + "|||" + startup + "|||14"});
    show();
    table().selectRow(0);
    presses = {"Uninstall"};
    controller->acMinusBtn.press();
    ASSERT_EQ(questions.size(), 1u);
    EXPECT_EQ(questions[0].title, "Scrivel 21 Installer");
    EXPECT_EQ(questions[0].message,
              "Uninstall Penmark components from the selected folder, immediately?");
    EXPECT_THAT(questions[0].buttons, ElementsAre("Cancel", "Uninstall"));
    EXPECT_THAT(toolCalls(), ElementsAre("/usr/bin/chflags -R nouchg " + startup +
                                             "/Scrivel PMRK Word 16.bundle",
                                         "/bin/rm -rf " + startup + "/Scrivel PMRK Word 16.bundle",
                                         "/usr/bin/chflags nouchg " + startup + "/Scrivel.dot",
                                         "/bin/rm -f " + startup + "/Scrivel.dot"));
    EXPECT_THAT(remembered(), IsEmpty());
    EXPECT_EQ(table().rows(), 0);
    EXPECT_EQ(usable(), "+");
}

TEST_F(AlternateLocationsTest, CancelAndTheOtherCodesRemoveNothing) {
    threeRows();
    table().selectRow(0);
    presses = {"Cancel"};
    controller->acMinusBtn.press();
    controller->acMinusBtn.press(); // and the sheet is closed
    EXPECT_EQ(questions.size(), 2u);
    for (const int code : {1, -1, 2})
        controller->minusAlertDidEnd(code, 0);
    EXPECT_EQ(remembered().size(), 2u);
    EXPECT_THAT(host.propertyLists.written, IsEmpty());
    EXPECT_EQ(usable(), "+-CR");
}

TEST_F(AlternateLocationsTest, ItIsWantedThatTheTablesRowIsTheIndexOfTheBreadcrumb) {
    const std::string startup = made("Startup");
    folder.write("Startup/Scrivel.dot", "");
    const std::string path = installation("Place", "14");
    // the first breadcrumb's Word is gone, so that the table begins with the second
    remember({"/gone/Word.app|||" + startup + "|||16", path + "|||/Other|||14"});
    show();
    EXPECT_THAT(row(0), ElementsAre(path, "/Other", "2011"));
    table().selectRow(0);
    presses = {"Uninstall"};
    controller->doACminus();
    EXPECT_THAT(toolCalls(), testing::Contains("/bin/rm -f " + startup + "/Scrivel.dot"));
    EXPECT_THAT(remembered(), ElementsAre(path + "|||/Other|||14"));
    EXPECT_EQ(usable(), "+C") << "the row stays, and its buttons are disabled all the same";
}

TEST_F(AlternateLocationsTest, ARowBeyondTheBreadcrumbsRemovesNoneButSaves) {
    threeRows();
    made("Startup");
    controller->minusAlertDidEnd(0, 2);
    EXPECT_EQ(remembered().size(), 2u);
    EXPECT_EQ(host.propertyLists.written.size(), 1u);
    EXPECT_THAT(toolCalls(), IsEmpty());
    EXPECT_FALSE(controller->acMinusBtn.isEnabled());
    EXPECT_FALSE(controller->acResetBtn.isEnabled());
}

TEST_F(AlternateLocationsTest, ABreadcrumbWithoutAFolderOrWithOneThatIsGoneIsRemoved) {
    remember({"/W.app", "/X.app|||/no/such/folder|||16"});
    controller->minusAlertDidEnd(0, 1);
    controller->minusAlertDidEnd(0, 0);
    EXPECT_THAT(toolCalls(), IsEmpty());
    EXPECT_THAT(remembered(), IsEmpty());
}

// --- change

TEST_F(AlternateLocationsTest, ChangeRemembersAnotherFolderForTheSelectedRow) {
    threeRows();
    table().selectRow(2);
    choose("/New");
    controller->acChange.press();
    ASSERT_EQ(host.fileChoosers.asked.size(), 1u);
    EXPECT_EQ(host.fileChoosers.asked[0].folder, folder.path("Applications"));
    EXPECT_EQ(host.fileChoosers.asked[0].title, "Select your Microsoft Word startup folder");
    EXPECT_THAT(remembered(),
                ElementsAre(first + "|||/S1|||14", second + "|||/S2|||16", found + "|||/New|||16"));
    EXPECT_THAT(row(2), ElementsAre(found, "/New", "2016"));
    EXPECT_EQ(usable(), "+-CR");
}

TEST_F(AlternateLocationsTest, ChangeReplacesTheBreadcrumbThatIsThere) {
    threeRows();
    table().selectRow(0);
    choose("/New");
    controller->acChange.press();
    EXPECT_THAT(remembered(), ElementsAre(first + "|||/New|||14", second + "|||/S2|||16"));
}

TEST_F(AlternateLocationsTest, ACancelledChangeLeavesTheRow) {
    threeRows();
    table().selectRow(2);
    choose(std::nullopt);
    controller->acChange.press();
    EXPECT_EQ(remembered().size(), 2u);
    EXPECT_EQ(usable(), "+C");
}

// --- reset

TEST_F(AlternateLocationsTest, ResetForgetsTheBreadcrumbThatTheRowComesFrom) {
    const std::string path = word("Word.app", "16");
    remember({"/gone/Word.app|||/S|||16", path + "|||/Mine|||16"});
    show();
    table().selectRow(0);
    EXPECT_EQ(usable(), "+-CR");
    controller->acResetBtn.press();
    EXPECT_THAT(remembered(), ElementsAre("/gone/Word.app|||/S|||16"));
    EXPECT_THAT(row(0), ElementsAre(path, shared, "2016")) << "as the search has it";
    EXPECT_EQ(usable(), "+C");
    EXPECT_THAT(questions, IsEmpty());
}

TEST_F(AlternateLocationsTest, ResetOfARowFromASearchChangesNothing) {
    threeRows();
    table().selectRow(2);
    controller->doACReset();
    EXPECT_EQ(remembered().size(), 2u);
    EXPECT_THAT(host.propertyLists.written, IsEmpty());
}

TEST_F(AlternateLocationsTest, ResetForgetsTheFirstOfEqualBreadcrumbsOnly) {
    const std::string path = installation("Place", "16");
    remember({path + "|||/s|||16", path + "|||/S|||16"});
    show();
    table().selectRow(0);
    controller->doACReset();
    EXPECT_THAT(remembered(), ElementsAre(path + "|||/S|||16"));
}

// --- the pages

TEST_F(AlternateLocationsTest, TheFoundPageTellsHowManyWordsGetTheAddIn) {
    const auto text = [this] {
        controller->constructWordAndStartupPaths();
        controller->uninstallBtn.setHidden(false);
        EXPECT_EQ(controller->doFoundMSWord(), 0);
        EXPECT_TRUE(controller->uninstallBtn.isHidden());
        return controller->numOfMSWordsText.text();
    };
    EXPECT_EQ(text(), "The Scrivel 21 Installer could not find Microsoft Word 2016 nor 2019 "
                      "installed on this computer.");
    const std::string one = installation("One", "16");
    remember({one + "|||/S|||16"});
    EXPECT_EQ(text(), "The Scrivel 21 Installer will install the Penmark add-in for the instance "
                      "of Microsoft Word 2016 or 2019 installed on this computer.");
    controller->addToWordPaths({wordUnknown("Two.app", "16")});
    EXPECT_EQ(text(), "The Scrivel 21 Installer will install the Penmark add-in for the 2 "
                      "instances of Microsoft Word 2016 or 2019 installed on this computer.");
}

TEST_F(AlternateLocationsTest, TheFoundPageSpeaksTheUsersLanguage) {
    host.texts.table = {{"The %@ will install the Penmark add-in for the %d instances of Microsoft "
                         "Word 2016 or 2019 installed on this computer.",
                         "%d Kopien: %@"},
                        {"Scrivel 21 Installer", "Das %d-Programm"}};
    controller->addToWordPaths({wordUnknown("One.app", "16"), wordUnknown("Two.app", "16")});
    controller->constructWordAndStartupPaths();
    controller->doFoundMSWord();
    EXPECT_EQ(controller->numOfMSWordsText.text(), "2 Kopien: Das %d-Programm");
}

TEST_F(AlternateLocationsTest, ThePageOfTheTableHidesUninstallAndShowsTheRows) {
    controller->uninstallBtn.setHidden(false);
    EXPECT_EQ(controller->doAltPMRK(), 0);
    EXPECT_TRUE(controller->uninstallBtn.isHidden());
}

TEST_F(AlternateLocationsTest, EveryOperationIsAnActionByName) {
    for (const auto* name : {"askUserForWord", "doACplus", "doACminus", "doACchange", "doACReset",
                             "updateAltPMRKControls", "doFoundMSWord", "doAltPMRK",
                             "preparePmrkFolder", "cleanupPmrkFolder"})
        EXPECT_TRUE(ec::ecController::hasAction(name)) << name;
}

} // namespace
