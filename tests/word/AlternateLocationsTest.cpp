#include "word/AlternateLocations.h"

#include <filesystem>

#include <gmock/gmock.h>

#include "tests/word/LocationsStage.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

struct AlternateLocationsTest : tests::LocationsStage {};

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
