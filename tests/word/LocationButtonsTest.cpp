// The four buttons of the page of the alternate locations, with their questions and choosers.
#include <gmock/gmock.h>

#include "tests/word/LocationsStage.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kSetQuestion =
    "If you have configured Word to use a different Startup Folder, Or you are using a non-English "
    "Language version of Word, Click 'Set' to set the Startup Folder location.";
const std::string kRefusal = "The item you picked does not seem to be in a Microsoft Word "
                             "installation directory.  Please try again.";

struct LocationButtonsTest : tests::LocationsStage {};

// --- plus

TEST_F(LocationButtonsTest, PlusAsksForWordAndWithSetForItsStartupFolder) {
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

TEST_F(LocationButtonsTest, AWordThatIsAddedStandsAtOnceAfterThoseThatWereFound) {
    threeRows();
    const std::string path = installation("Third", "15.2");
    choose(path);
    choose("/S3");
    presses = {"Set"};
    controller->acPlus.press();
    ASSERT_EQ(table().rows(), 4);
    EXPECT_THAT(row(3), ElementsAre(path, "/S3", "2016"));
}

TEST_F(LocationButtonsTest, ItIsWantedThatNoLooksForTheFolderOfTheWordAndNotForTheWord) {
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

TEST_F(LocationButtonsTest, AnItemWithoutAnOfficeFolderBesideItIsRefused) {
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

TEST_F(LocationButtonsTest, TheFolderThatHoldsABundleIsItsParentWithAndWithoutALastSlash) {
    const std::string path = installation("Place", "16");
    for (const std::string& chosen : {path, path + "/", path + "//"}) {
        choose(chosen);
        choose(std::nullopt);
        presses = {"Set"};
        controller->doACplus();
        EXPECT_EQ(questions.back().message, kSetQuestion) << chosen;
    }
}

TEST_F(LocationButtonsTest, CancellingAnyPanelLeavesEverythingAsItIs) {
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

TEST_F(LocationButtonsTest, OnlyTheCodesOfNoAndSetRecordAnything) {
    controller->m_crumb_word = installation("Place", "16");
    remember({folder.path("Place") + "|||/S|||16"});
    for (const int code : {-1, 2, 1000}) {
        choose("/chosen");
        controller->alertDidEndWord(code);
        EXPECT_EQ(remembered().size(), 1u) << code;
    }
    EXPECT_THAT(host.fileChoosers.asked, IsEmpty());
}

TEST_F(LocationButtonsTest, WithoutAnInterfaceFileForTheQuestionTheAnswerIsNo) {
    host.interfaceFiles.missing.insert("ecPanel");
    const std::string path = installation("Place", "16");
    remember({folder.path("Place") + "|||/S|||16"});
    choose(path);
    controller->doACplus();
    EXPECT_EQ(remembered().back(), path + "|||/S|||16");
}

TEST_F(LocationButtonsTest, AFileThatIsChosenIsRecordedWithoutAVersion) {
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

TEST_F(LocationButtonsTest, MinusAsksAndRemovesTheOldFilesWithTheBreadcrumb) {
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

TEST_F(LocationButtonsTest, CancelAndTheOtherCodesRemoveNothing) {
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

TEST_F(LocationButtonsTest, ItIsWantedThatTheTablesRowIsTheIndexOfTheBreadcrumb) {
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

TEST_F(LocationButtonsTest, ARowBeyondTheBreadcrumbsRemovesNoneButSaves) {
    threeRows();
    made("Startup");
    controller->minusAlertDidEnd(0, 2);
    EXPECT_EQ(remembered().size(), 2u);
    EXPECT_EQ(host.propertyLists.written.size(), 1u);
    EXPECT_THAT(toolCalls(), IsEmpty());
    EXPECT_FALSE(controller->acMinusBtn.isEnabled());
    EXPECT_FALSE(controller->acResetBtn.isEnabled());
}

TEST_F(LocationButtonsTest, ABreadcrumbWithoutAFolderOrWithOneThatIsGoneIsRemoved) {
    remember({"/W.app", "/X.app|||/no/such/folder|||16"});
    controller->minusAlertDidEnd(0, 1);
    controller->minusAlertDidEnd(0, 0);
    EXPECT_THAT(toolCalls(), IsEmpty());
    EXPECT_THAT(remembered(), IsEmpty());
}

// --- change

TEST_F(LocationButtonsTest, ChangeRemembersAnotherFolderForTheSelectedRow) {
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

TEST_F(LocationButtonsTest, ChangeReplacesTheBreadcrumbThatIsThere) {
    threeRows();
    table().selectRow(0);
    choose("/New");
    controller->acChange.press();
    EXPECT_THAT(remembered(), ElementsAre(first + "|||/New|||14", second + "|||/S2|||16"));
}

TEST_F(LocationButtonsTest, ACancelledChangeLeavesTheRow) {
    threeRows();
    table().selectRow(2);
    choose(std::nullopt);
    controller->acChange.press();
    EXPECT_EQ(remembered().size(), 2u);
    EXPECT_EQ(usable(), "+C");
}

// --- reset

TEST_F(LocationButtonsTest, ResetForgetsTheBreadcrumbThatTheRowComesFrom) {
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

TEST_F(LocationButtonsTest, ResetOfARowFromASearchChangesNothing) {
    threeRows();
    table().selectRow(2);
    controller->doACReset();
    EXPECT_EQ(remembered().size(), 2u);
    EXPECT_THAT(host.propertyLists.written, IsEmpty());
}

TEST_F(LocationButtonsTest, ResetForgetsTheFirstOfEqualBreadcrumbsOnly) {
    const std::string path = installation("Place", "16");
    remember({path + "|||/s|||16", path + "|||/S|||16"});
    show();
    table().selectRow(0);
    controller->doACReset();
    EXPECT_THAT(remembered(), ElementsAre(path + "|||/S|||16"));
}

} // namespace
