// What the wizard shows to be read, and the picture at its side.
#include <filesystem>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/wizard/WizardStage.h"

namespace {

using controls::StyledText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct WizardTextsTest : testing::Test, tests::WizardStage {
    void outcome(const char* name, ec::OpMode mode, bool succeeded) {
        using Result = ec::ComponentOutcome::Result;
        controller.outcomes.push_back({.name = name,
                                       .mode = mode,
                                       .result = !succeeded                   ? Result::failed
                                                 : mode == ec::OpMode::remove ? Result::removed
                                                                              : Result::installed});
    }
};

constexpr int kSummaryPages[]{7, 8, 11, 17, 27, 28};

// --- Documents

TEST_F(WizardTextsTest, EachPageShowsItsDocumentInTheUsersLanguage) {
    host.texts.files = {{"Welcome.html", "/de/Welcome.html"},
                        {"UpdateWelcome.html", "/de/UpdateWelcome.html"},
                        {"ReadMe.html", "/de/ReadMe.html"},
                        {"License.html", "/de/License.html"}};
    show(34, {cancel()});
    EXPECT_EQ(controller.welcomeText.file(), "/de/Welcome.html");
    EXPECT_EQ(controller.patchWelcomeText.file(), "/de/UpdateWelcome.html");
    EXPECT_EQ(controller.readMeText.file(), "/de/ReadMe.html");
    EXPECT_EQ(controller.licenseText.file(), "/de/License.html");
}

TEST_F(WizardTextsTest, ADocumentThatIsMissingIsSaidToBeByItsName) {
    host.texts.files = {{"Welcome.html", "/en/Welcome.html"}};
    show(34, {cancel()});
    EXPECT_EQ(controller.welcomeText.file(), "/en/Welcome.html");
    EXPECT_EQ(controller.licenseText.file(), "");
    EXPECT_EQ(controller.licenseText.text().text(),
              "The text “License.html” is missing from this copy of the installer. Get a complete "
              "copy to read it.");
}

TEST_F(WizardTextsTest, TheTextAboutTheProductIsReadFromTheResourcesAndMayBeMissing) {
    show(34, {cancel()});
    EXPECT_EQ(controller.aboutText.text(), "");
    tests::WizardStage other;
    other.folder.write("About.txt", "Scrivel 21\nfor readers");
    other.show(34, {other.cancel()});
    EXPECT_EQ(other.controller.m_aboutFileString, "Scrivel 21\nfor readers");
    EXPECT_EQ(other.controller.aboutText.text(), "Scrivel 21\nfor readers");
}

TEST_F(WizardTextsTest, TheSelectedComponentIsDescribedInTheUsersLanguage) {
    host.texts.table = {{"Word integration", "Arbeiten mit Word"}};
    show(34, {cancel()});
    auto& outline = controller.ecOutlineView;
    outline.select(outline.dataSource()->outlineViewChildOfItem(0, nullptr));
    EXPECT_EQ(controller.infoText.text(), "Arbeiten mit Word");
    outline.select(outline.dataSource()->outlineViewChildOfItem(1, nullptr));
    EXPECT_EQ(controller.infoText.text(), "System integration");
    outline.select(nullptr);
    EXPECT_EQ(controller.infoText.text(), "");
}

TEST_F(WizardTextsTest, AnEmptyTreeOfComponentsIsExplainedInTheUsersLanguage) {
    for (const char* rules : {"", "\r\r", "no fields at all", "Member|1|of no group|inst_Word\n"}) {
        host.texts.table = {{"The list of components is missing from this copy of the installer. "
                             "Get a complete copy to choose components.",
                             "Die Liste fehlt"}};
        tests::Components none(rules);
        ec::ecController empty(host.host(), none.rules, none.root);
        empty.infoText.setText("as the interface file has it");
        user = {[&] { EXPECT_EQ(empty.infoText.text(), "Die Liste fehlt") << rules; },
                [&] { empty.cancelBtn.press(); }};
        empty.showCustomizerFromMenu(35);
    }
}

TEST_F(WizardTextsTest, ATreeWithComponentsIsNotSaidToBeMissing) {
    show(35, {[this] { EXPECT_EQ(controller.infoText.text(), ""); }, cancel()});
}

// --- Help

TEST_F(WizardTextsTest, HelpOpensAtTheAnchorOfThePageInSight) {
    host.texts.files = {{"Help.html", "/en/Help.html"}};
    show(35, {[this] { controller.helpBtn.press(); }, cancel()});
    ASSERT_EQ(host.reader.matters.size(), 1u);
    EXPECT_EQ(host.reader.matters[0].title, "Help");
    EXPECT_EQ(host.reader.matters[0].file, "/en/Help.html");
    EXPECT_EQ(host.reader.matters[0].anchor, "page6");
    EXPECT_EQ(host.reader.matters[0].text, "");
    for (int page = 0; page < ec::page::kCount; ++page) {
        controller.ecTabView.select(page);
        controller.showHelp();
        EXPECT_EQ(host.reader.matters.back().anchor, "page" + std::to_string(page));
    }
}

TEST_F(WizardTextsTest, HelpThatIsMissingIsSaidToBe) {
    controller.showHelp();
    ASSERT_EQ(host.reader.matters.size(), 1u);
    EXPECT_EQ(host.reader.matters[0].file, "");
    EXPECT_THAT(host.reader.matters[0].text, HasSubstr("“Help.html” is missing"));
}

TEST_F(WizardTextsTest, TheFirstInstallHasNoHelpButton) {
    show(34, {[this] { controller.helpBtn.press(); }, cancel()});
    EXPECT_TRUE(controller.helpBtn.isHidden());
    EXPECT_THAT(host.reader.matters, IsEmpty());
}

// --- The log

TEST_F(WizardTextsTest, TheLogIsShownAsItLiesInTheUsersHome) {
    controller.places.home = folder.path("home");
    folder.write("home/Library/Logs/Scrivel 21 Stub Install.log",
                 "2024-02-03 one\n2024-02-03 two\n");
    controller.logBtn.setHidden(false);
    controller.logBtn.press();
    ASSERT_EQ(host.reader.matters.size(), 1u);
    EXPECT_EQ(host.reader.matters[0].title, "Install Log");
    EXPECT_EQ(host.reader.matters[0].text, "2024-02-03 one\n2024-02-03 two\n");
    EXPECT_EQ(host.reader.matters[0].file, "");
    EXPECT_EQ(host.reader.matters[0].anchor, "");
}

TEST_F(WizardTextsTest, AnEmptyOrMissingLogIsSaidToBeEmpty) {
    controller.places.home = folder.path("home");
    controller.showLog();
    folder.write("home/Library/Logs/Scrivel 21 Stub Install.log", "");
    controller.showLog();
    ASSERT_EQ(host.reader.matters.size(), 2u);
    for (const ports::ReadingMatter& matter : host.reader.matters)
        EXPECT_EQ(matter.text, "The install log is empty.");
}

TEST_F(WizardTextsTest, AFolderInThePlaceOfATextIsAsGoodAsNone) {
    controller.places.home = folder.path("home");
    std::filesystem::create_directories(
        folder.path("home/Library/Logs/Scrivel 21 Stub Install.log"));
    std::filesystem::create_directories(folder.path("About.txt"));
    controller.showLog();
    EXPECT_EQ(host.reader.matters.at(0).text, "The install log is empty.");
    show(34, {cancel()});
    EXPECT_EQ(controller.m_aboutFileString, "");
}

TEST_F(WizardTextsTest, TheLogButtonIsInSightOnSummariesAndWhereNoCopyWasFound) {
    show(34, {[this] {
             EXPECT_TRUE(controller.logBtn.isHidden());
             controller.cancelBtn.press();
         }});
    std::set<int> withLog(std::begin(kSummaryPages), std::end(kSummaryPages));
    withLog.insert(ec::page::kNothingFound);
    for (int page = ec::page::kCount - 1; page >= 0; --page) {
        controller.ecTabView.select(page);
        EXPECT_EQ(controller.logBtn.isHidden(), !withLog.contains(page)) << page;
    }
}

// --- Summaries

TEST_F(WizardTextsTest, EachSummaryPageHasItsOwnText) {
    const std::map<int, const controls::DocumentView*> views{
        {7, &controller.installSummary},    {8, &controller.changeSummary},
        {11, &controller.uninstallSummary}, {17, &controller.patchSummary},
        {27, &controller.penmarkSummary},   {28, &controller.penmarkUninstallSummary}};
    for (const auto& [page, view] : views) {
        EXPECT_EQ(view->text().text(), "") << page;
        controller.ecTabView.select(page);
        EXPECT_EQ(view->text().text(), "Nothing was changed.") << page;
    }
}

TEST_F(WizardTextsTest, ASummaryTellsWhatBecameOfEachComponentFailuresInBold) {
    outcome("Penmark", ec::OpMode::copy, true);
    outcome("Services", ec::OpMode::copy, false);
    outcome("Spotlight", ec::OpMode::remove, true);
    outcome("Chemistry", ec::OpMode::remove, false);
    controller.ecTabView.select(8);
    const StyledText expected{{{"Penmark was installed.\n", std::nullopt, false},
                               {"Services could not be installed.\n", std::nullopt, true},
                               {"Spotlight was removed.\n", std::nullopt, false},
                               {"Chemistry could not be removed.\n", std::nullopt, true}},
                              4};
    EXPECT_EQ(controller.changeSummary.text(), expected);
}

TEST_F(WizardTextsTest, ASummaryIsInTheUsersLanguageWhateverTheOrderOfItsWords) {
    host.texts.table = {{"%@ was installed.", "Installiert wurde %@."}};
    outcome("Penmark", ec::OpMode::copy, true);
    controller.ecTabView.select(7);
    EXPECT_EQ(controller.installSummary.text().text(), "Installiert wurde Penmark.\n");
}

TEST_F(WizardTextsTest, ATitleWithPercentSignsIsTakenAsItIs) {
    outcome("100% %@ %d", ec::OpMode::copy, true);
    controller.ecTabView.select(7);
    EXPECT_EQ(controller.installSummary.text().text(), "100% %@ %d was installed.\n");
}

// --- Progress indicators

TEST_F(WizardTextsTest, AnIndicatorRestsOnceItsPageIsOutOfSight) {
    controller.ecTabView.select(10);
    controller.progress.startAnimation();
    controller.ecTabView.select(12);
    EXPECT_FALSE(controller.progress.isRunning());
    controller.ecTabView.select(0);
    controller.custProgress.startAnimation();
    controller.ecTabView.select(6);
    EXPECT_FALSE(controller.custProgress.isRunning());
}

TEST_F(WizardTextsTest, AnIndicatorRunsOnWhileItsPageStays) {
    controller.ecTabView.select(10);
    controller.progress.startAnimation();
    controller.ecTabView.select(10);
    controller.ecTabView.select(-1);
    EXPECT_TRUE(controller.progress.isRunning());
}

// --- The picture

/// An icon family with one element.
const std::string kPicture("icns\0\0\0\x14ic07\0\0\0\x0C\x89PNG", 20);

struct Draws final : controls::Control::Observer {
    explicit Draws(controls::Control& control) : watched(control) { watched.addObserver(*this); }
    ~Draws() { watched.removeObserver(*this); }
    void controlChanged(controls::Control&) override {}
    void displayNow(controls::Control&) override { ++count; }
    controls::Control& watched;
    int count = 0;
};

TEST_F(WizardTextsTest, APictureOfTheResourcesIsShownAndDrawn) {
    folder.write("Customizer.icns", kPicture);
    const Draws draws(controller.ecImage);
    controller.installAppLogo();
    EXPECT_EQ(controller.ecImage.picture().name, "/Customizer.icns");
    EXPECT_EQ(controller.ecImage.picture().path, folder.path() + "/Customizer.icns");
    EXPECT_EQ(draws.count, 1);
}

TEST_F(WizardTextsTest, APictureThatIsMissingOrBrokenLeavesTheOneThatIsShown) {
    folder.write("Customizer.icns", kPicture);
    folder.write("cut.icns", kPicture.substr(0, 12));
    folder.write("empty.icns", "");
    folder.write("text.icns", "not a picture");
    std::filesystem::create_directory(folder.path("folder.icns"));
    controller.installAppLogo();
    const auto shown = controller.ecImage.picture();
    const Draws draws(controller.ecImage);
    for (const auto* name :
         {"/missing.icns", "/cut.icns", "/empty.icns", "/text.icns", "/folder.icns", "", "/"}) {
        controller.installPicture(name);
        EXPECT_EQ(controller.ecImage.picture(), shown) << name;
    }
    EXPECT_EQ(draws.count, 0);
}

TEST_F(WizardTextsTest, WithoutAPictureThereIsNoneAndTheWizardGoesOn) {
    show(34, {next(), cancel()});
    EXPECT_EQ(controller.ecImage.picture(), controls::ImageView::Picture{});
    folder.write("Customizer.icns", kPicture);
    show(34, {next(), next()});
    EXPECT_EQ(controller.ecImage.picture().name, "/Customizer.icns") << "looked for on every row";
}

TEST_F(WizardTextsTest, ThePicturesNameIsPutBehindTheFolderAsItStands) {
    folder.write("other.icns", kPicture);
    controller.m_custResourceDir = folder.path() + "/oth";
    controller.installPicture("er.icns");
    EXPECT_EQ(controller.ecImage.picture().path, folder.path("other.icns"));
}

} // namespace
