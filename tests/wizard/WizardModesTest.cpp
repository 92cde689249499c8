// Each mode of the wizard walked as a user does: pages, buttons, log, result.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/wizard/WizardStage.h"

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

using Lines = std::vector<std::string>;

struct WizardModesTest : testing::Test, tests::WizardStage {
    using WizardStage::answer;
    Lines banner(const std::string& modeLine) const {
        const std::string stars(54, '*');
        const std::string frame = "**" + std::string(50, ' ') + "**";
        return {stars, stars, frame, modeLine, frame, frame, "**    Build number: 19023",
                frame, stars, stars};
    }
    /// Where in the log the banner stands; -1 when it is not there.
    long bannerAt(const std::string& modeLine) const {
        const Lines lines = host.logged();
        const Lines wanted = banner(modeLine);
        const auto found = std::ranges::search(lines, wanted);
        return found.empty() ? -1 : found.begin() - lines.begin();
    }
    void select(std::uint32_t item) { components.rules.setItemState(item, 1); }
};

constexpr const char* kCustomLine = "**  Custom Install from menu                        **";
constexpr const char* kPenmarkLine = "**  Install Scrivel Penmark                         **";
constexpr const char* kPatchLine = "**  Patcher Started                                 **";

// --- The short first install

TEST_F(WizardModesTest, TheShortInstallIsWelcomeReadMeUpdatingSystemSummary) {
    EXPECT_EQ(show(34, {next(), next(), next()}), 129);
    EXPECT_THAT(looks, ElementsAre("1 Welcome to Scrivel 21: (Back) Next Cancel",
                                   "4 Read Me: Back Next Cancel",
                                   "7 Thank you for using Scrivel 21: (Back) Done (Cancel)"));
    EXPECT_THAT(pages(), ElementsAre(1, 4, 10, 7, 7)) << "the last is the terminator";
    EXPECT_THAT(drawn, ElementsAre("10 Updating System: (Back) (Next) (Cancel) working"));
    EXPECT_THAT(rows.front().outline,
                ElementsAre("Welcome", "Read Me", "Updating System", "Summary"));
    EXPECT_EQ(timesLogged("Scrivel 21 Installer: Exited Normally"), 1);
    EXPECT_FALSE(controller.window.isVisible());
    EXPECT_FALSE(host.modalLoop.terminated);
}

TEST_F(WizardModesTest, TheShortInstallGoesBackToTheWelcome) {
    show(34, {next(), back(), next(), cancel()});
    EXPECT_THAT(looks, ElementsAre("1 Welcome to Scrivel 21: (Back) Next Cancel",
                                   "4 Read Me: Back Next Cancel",
                                   "1 Welcome to Scrivel 21: (Back) Next Cancel",
                                   "4 Read Me: Back Next Cancel"));
}

// --- The full first install

TEST_F(WizardModesTest, TheFullInstallAsksForTheLicenceAndTheComponents) {
    EXPECT_EQ(show(0, {next(), next(), [this] { controller.agreeBtns.press(0); }, next(), next(),
                       next()}),
              129);
    EXPECT_THAT(looks, ElementsAre("1 Welcome to Scrivel 21: (Back) Next Cancel",
                                   "4 Read Me: Back Next Cancel",
                                   "5 End User License Agreement: Back (Next) Cancel",
                                   "5 End User License Agreement: Back Next Cancel",
                                   "6 Select Components: Back Next Cancel",
                                   "7 Thank you for using Scrivel 21: (Back) Done (Cancel)"));
    EXPECT_THAT(pages(), ElementsAre(0, 1, 4, 5, 6, 10, 10, 7, 7));
    EXPECT_THAT(drawn, ElementsAre("0 : (Back) (Next) Cancel scanning",
                                   "10 Updating System: Back Next Cancel working",
                                   "10 Updating System: (Back) (Next) (Cancel) working"));
    EXPECT_TRUE(controller.helpBtn.isHidden());
    EXPECT_THAT(host.logged(), IsSupersetOf({"State: Searching for Microsoft Word Mode: mode_check",
                                             "Scrivel 21 Installer: Exited Normally"}));
}

TEST_F(WizardModesTest, WithoutWordTheSearchGoesToTheRowGotWordByTheNextRow) {
    show(0, {next(), next(), [this] { controller.agreeBtns.press(0); }, next(), next(), next()});
    std::vector<int> states;
    for (const ports::RowShown& row : rows)
        states.push_back(row.state);
    EXPECT_THAT(states, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8));
    EXPECT_EQ(timesLogged("Check For Word: does not exist in /Applications"), 1);
}

TEST_F(WizardModesTest, EveryOtherLaunchModeIsTheFullInstall) {
    for (const std::uint32_t mode : {0u, 7u, 33u, 37u, 0xFFFFFFFFu}) {
        tests::WizardStage other;
        other.show(mode, {other.next(), other.cancel()});
        EXPECT_THAT(other.pages(), ElementsAre(0, 1, 4)) << mode;
        EXPECT_EQ(other.controller.m_mode, mode);
        EXPECT_EQ(other.controller.secretIdentity(), "");
    }
}

TEST_F(WizardModesTest, TheFullInstallWalksBackPageByPage) {
    show(0, {next(), next(), [this] { controller.agreeBtns.press(0); }, next(), back(), back(),
             back(), cancel()});
    EXPECT_THAT(pages(), ElementsAre(0, 1, 4, 5, 6, 5, 4, 1));
    EXPECT_EQ(looks.back(), "1 Welcome to Scrivel 21: (Back) Next Cancel");
    EXPECT_EQ(looks[looks.size() - 3], "5 End User License Agreement: Back Next Cancel")
        << "the consent that was given stands";
}

TEST_F(WizardModesTest, DisagreeingTakesNextAwayAgain) {
    show(0, {next(), next(), [this] { controller.agreeBtns.press(0); },
             [this] { controller.agreeBtns.press(1); }, cancel()});
    EXPECT_EQ(looks.back(), "5 End User License Agreement: Back (Next) Cancel");
}

TEST_F(WizardModesTest, TheScanStartsItsIndicatorAndStopsItWhenItsPageIsGone) {
    show(0, {[this] {
             EXPECT_FALSE(controller.custProgress.isRunning());
             controller.window.performClose();
         }});
    EXPECT_THAT(drawn, ElementsAre("0 : (Back) (Next) Cancel scanning"));
}

TEST_F(WizardModesTest, TheScanForgetsThatAPathWasAdded) {
    controller.m_bPMRK_path_added = true;
    show(0, {cancel()});
    EXPECT_FALSE(controller.m_bPMRK_path_added);
}

// --- The Customizer

TEST_F(WizardModesTest, TheCustomizerWritesItsBannerAndScansTwiceOnTheFirstCall) {
    EXPECT_EQ(show(35, {cancel()}), 0);
    EXPECT_THAT(pages(), ElementsAre(0, 1, 0, 6));
    EXPECT_GE(bannerAt(kCustomLine), 0);
    EXPECT_EQ(controller.secretIdentity(), "Customizer_Customizer");
    EXPECT_FALSE(controller.helpBtn.isHidden());
    EXPECT_EQ(timesLogged("State: Tessaron Extension Mode: mode_check"), 2);
}

TEST_F(WizardModesTest, EveryLineOfABannerIs54CharactersWideButTheBuildLine) {
    for (const std::string mode : {kCustomLine, kPenmarkLine, kPatchLine})
        for (const std::string& line : banner(mode))
            EXPECT_EQ(line.size(), line.starts_with("**    Build") ? 25u : 54u) << line;
    show(35, {cancel()});
    show(36, {cancel()});
    showPatcher({cancel()});
    EXPECT_GE(bannerAt(kCustomLine), 0);
    EXPECT_GT(bannerAt(kPenmarkLine), bannerAt(kCustomLine));
    EXPECT_GT(bannerAt(kPatchLine), bannerAt(kPenmarkLine));
}

TEST_F(WizardModesTest, TheFirstInstallHasNoBanner) {
    show(0, {cancel()});
    EXPECT_THAT(host.logged(), Not(Contains(testing::StartsWith("*"))));
}

TEST_F(WizardModesTest, TheCustomizerPassesTheLevelPageOverWhereNothingNeedsIt) {
    EXPECT_EQ(show(35, {next(), next()}), 0) << "the result code stays";
    EXPECT_THAT(looks, ElementsAre("6 Select Components: (Back) Next Cancel",
                                   "8 Finish: (Back) Done (Cancel)"));
    EXPECT_THAT(pages(), ElementsAre(0, 1, 0, 6, 13, 10, 8, 11));
    EXPECT_FALSE(host.modalLoop.terminated);
    EXPECT_EQ(timesLogged("Scrivel 21 Installer: Exited Normally"), 0);
}

TEST_F(WizardModesTest, TheCustomizerStopsAtTheLevelPageWhereItIsNeededAndGoesBack) {
    show(35, {[this] {
                  select(tests::stage_item::kSpotlight);
                  controller.nextBtn.press();
              },
              back(), next(), next(), next()});
    EXPECT_THAT(looks,
                ElementsAre("6 Select Components: (Back) Next Cancel", "13 : Back Next Cancel",
                            "6 Select Components: (Back) Next Cancel", "13 : Back Next Cancel",
                            "8 Finish: (Back) Done (Cancel)"));
}

TEST_F(WizardModesTest, OnPagesThatNoEntryStandsForTheOutlineMarksItsFirst) {
    show(35, {[this] {
                  select(tests::stage_item::kServices);
                  controller.nextBtn.press();
              },
              [this] {
                  EXPECT_EQ(controller.ecTabView.selected(), 13);
                  EXPECT_EQ(currentName(), "Customization");
                  controller.cancelBtn.press();
              }});
    EXPECT_EQ(rows[2].page, 0);
    EXPECT_EQ(rows[2].current, 0);
}

TEST_F(WizardModesTest, DoneInTheCustomizerGoesOnToTheNextRowBehindTheClosedWindowAsIsWanted) {
    show(35, {next(), next()});
    EXPECT_EQ(rows.back().state, 5);
    EXPECT_EQ(rows.back().page, 11);
    EXPECT_EQ(controller.nextBtn.title(), "Exit");
    EXPECT_FALSE(controller.window.isVisible());
    EXPECT_TRUE(controller.isFinished());
}

TEST_F(WizardModesTest, UninstallingEverythingAsksAndANoKeepsThePage) {
    show(35, {uninstall(), answer("No"), cancel()});
    ASSERT_EQ(questions.size(), 1u);
    EXPECT_EQ(questions[0].title, "Scrivel 21 Installer");
    EXPECT_EQ(questions[0].message,
              "Uninstall will remove all external Scrivel components from your computer.  Are you "
              "sure you want to do this?");
    EXPECT_THAT(questions[0].buttons, ElementsAre("No", "Yes"));
    EXPECT_EQ(questions[0].answer, "No");
    EXPECT_EQ(questions[0].code, 1);
    EXPECT_FALSE(controller.m_bUninstall);
    EXPECT_TRUE(controller.uninstallBtn.isEnabled());
    EXPECT_THAT(looks, ElementsAre("6 Select Components: (Back) Next Cancel",
                                   "6 Select Components: (Back) Next Cancel"));
}

TEST_F(WizardModesTest, UninstallingEverythingEndsOnItsOwnPageAndEndsTheProgram) {
    EXPECT_EQ(show(35, {uninstall(), answer("Yes"), next()}), 0);
    EXPECT_THAT(
        looks, ElementsAre("6 Select Components: (Back) Next Cancel", "11 : (Back) Exit (Cancel)"));
    EXPECT_THAT(pages(), ElementsAre(0, 1, 0, 6, 10, 8, 11, 11));
    EXPECT_TRUE(controller.m_bUninstall);
    EXPECT_FALSE(controller.uninstallBtn.isEnabled());
    EXPECT_TRUE(host.modalLoop.terminated);
    EXPECT_FALSE(controller.window.isVisible());
    EXPECT_EQ(questions.at(0).code, 0);
}

TEST_F(WizardModesTest, AnUninstallThatWasConfirmedDoesNotLeadTheNextRun) {
    show(35, {uninstall(), answer("Yes"), [this] { controller.window.orderOut(); }});
    EXPECT_TRUE(controller.m_bUninstall);
    show(35, {[this] {
             EXPECT_FALSE(controller.m_bUninstall);
             EXPECT_TRUE(controller.uninstallBtn.isEnabled());
             EXPECT_TRUE(controller.outcomes.empty());
             controller.cancelBtn.press();
         }});
    EXPECT_EQ(looks.back(), "6 Select Components: (Back) Next Cancel");
}

TEST_F(WizardModesTest, OnlyTheCustomizerOffersToUninstallEverything) {
    const auto hidden = [this] { return controller.uninstallBtn.isHidden(); };
    show(35, {[&] {
             EXPECT_FALSE(hidden());
             controller.window.performClose();
         }});
    show(36, {[&] {
             EXPECT_TRUE(hidden());
             controller.window.performClose();
         }});
    showPatcher({[&] {
        EXPECT_TRUE(hidden());
        controller.window.performClose();
    }});
    tests::WizardStage first;
    first.show(0, {first.cancel()});
    EXPECT_TRUE(first.controller.uninstallBtn.isHidden());
}

// --- Penmark

TEST_F(WizardModesTest, PenmarkInstallsOverItsComponents) {
    EXPECT_EQ(show(36, {next(), back(), next(), next(), next()}), 129);
    EXPECT_THAT(looks,
                ElementsAre("26 Welcome to Scrivel Penmark: (Back) Next Cancel",
                            "6 Select Components: Back Next Cancel",
                            "26 Welcome to Scrivel Penmark: (Back) Next Cancel",
                            "6 Select Components: Back Next Cancel", "27 : (Back) Done (Cancel)"));
    EXPECT_THAT(pages(), ElementsAre(0, 1, 0, 26, 6, 26, 6, 10, 27, 27));
    EXPECT_GE(bannerAt(kPenmarkLine), 0);
    EXPECT_EQ(controller.secretIdentity(), "Customizer_SVWeb_Install");
    EXPECT_FALSE(host.modalLoop.terminated);
}

TEST_F(WizardModesTest, PenmarkUninstallsAfterAYesAndEndsTheProgram) {
    EXPECT_EQ(show(36, {[this] {
                            controller.matSVWInstall.press(1);
                            controller.nextBtn.press();
                        },
                        answer("Yes"), next()}),
              0);
    EXPECT_THAT(looks, ElementsAre("26 Welcome to Scrivel Penmark: (Back) Next Cancel",
                                   "28 Finish: (Back) Done (Cancel)"));
    EXPECT_THAT(pages(), ElementsAre(0, 1, 0, 26, 10, 27, 28, 28));
    EXPECT_TRUE(host.modalLoop.terminated);
    EXPECT_EQ(questions.at(0).message, "Uninstall will remove Scrivel Penmark from your computer.  "
                                       "Are you sure you want to do this?");
}

TEST_F(WizardModesTest, PenmarkKeepsItsPageAfterANo) {
    show(36, {[this] {
                  controller.matSVWInstall.press(1);
                  controller.nextBtn.press();
              },
              answer("No"),
              [this] {
                  controller.matSVWInstall.press(0);
                  controller.nextBtn.press();
              },
              cancel()});
    EXPECT_THAT(looks, ElementsAre("26 Welcome to Scrivel Penmark: (Back) Next Cancel",
                                   "26 Welcome to Scrivel Penmark: (Back) Next Cancel",
                                   "6 Select Components: Back Next Cancel"));
    EXPECT_FALSE(controller.m_bUninstall);
}

TEST_F(WizardModesTest, TheQuestionIsAskedInTheUsersLanguage) {
    host.texts.table = {{"Yes", "Ja"}, {"No", "Nein"}};
    show(36, {[this] {
                  controller.matSVWInstall.press(1);
                  controller.nextBtn.press();
              },
              answer("Nein"), cancel()});
    EXPECT_THAT(questions.at(0).buttons, ElementsAre("Nein", "Ja"));
}

TEST_F(WizardModesTest, AQuestionThatHangsWhenTheProgramEndsUninstallsNothing) {
    EXPECT_EQ(show(36, {[this] {
                            controller.matSVWInstall.press(1);
                            controller.nextBtn.press();
                        },
                        [this] { host.modalLoop.terminate(); }}),
              0);
    EXPECT_FALSE(controller.m_bUninstall);
    EXPECT_EQ(controller.state(), 1);
    EXPECT_FALSE(controller.window.isVisible());
    EXPECT_FALSE(isAsked());
}

TEST_F(WizardModesTest, AQuestionThatCanNotBeShownUninstallsNothing) {
    host.interfaceFiles.missing.insert("ecPanel");
    show(35, {uninstall(), cancel()});
    EXPECT_FALSE(controller.m_bUninstall);
    EXPECT_EQ(host.systemLog.lines, Lines{"Load of ecPanal.NIB failed"});
    EXPECT_THAT(questions, IsEmpty());
    EXPECT_EQ(looks.back(), "6 Select Components: (Back) Next Cancel");
}

TEST_F(WizardModesTest, ClosingTheQuestionIsANo) {
    show(35,
         {uninstall(),
          [this] { host.interfaceFiles.interfaces.find("ecPanel")->second->window.performClose(); },
          cancel()});
    EXPECT_EQ(questions.at(0).answer, "No");
    EXPECT_FALSE(controller.m_bUninstall);
}

// --- The patcher

TEST_F(WizardModesTest, ThePatcherFindsNothingAndEndsTheProgram) {
    EXPECT_EQ(showPatcher({next(), next(), next()}), 0);
    EXPECT_THAT(looks, ElementsAre("14 Welcome to Scrivel 21 Update: (Back) Next Cancel",
                                   "4 Read Me: Back Next Cancel", "18 : (Back) Done (Cancel)"));
    EXPECT_GE(bannerAt(kPatchLine), 0);
    EXPECT_EQ(controller.secretIdentity(), "Customizer_Patcher");
    EXPECT_EQ(controller.m_mode, 0u);
    EXPECT_TRUE(host.modalLoop.terminated);
    EXPECT_THAT(drawn, Contains("0 : Back Next Cancel scanning"));
}

// --- Opening, closing, opening again

TEST_F(WizardModesTest, TheWindowIsLoadedAndTitledOnce) {
    show(35, {cancel()});
    show(36, {cancel()});
    show(0, {cancel()});
    EXPECT_THAT(host.interfaceFiles.loaded, ElementsAre("Customizer"));
    EXPECT_EQ(controller.window.title(), "Scrivel 21 Customizer");
    EXPECT_THAT(pages(), ElementsAre(0, 1, 0, 6, 0, 26)) << "launch mode 0 began nothing anew";
}

TEST_F(WizardModesTest, AWindowThatCanNotBeLoadedAnswers131AndMayBeTriedAgain) {
    host.interfaceFiles.missing.insert("Customizer");
    for (const std::uint32_t mode : {0u, 34u, 35u, 36u})
        EXPECT_EQ(show(mode, {}), 131);
    EXPECT_EQ(showPatcher({}), 131);
    EXPECT_EQ(host.systemLog.lines, Lines(5, "Load of Customizer NIB failed"));
    EXPECT_THAT(rows, IsEmpty());
    EXPECT_THAT(host.streams.appended, IsEmpty());
    EXPECT_FALSE(controller.window.isVisible());
    EXPECT_EQ(controller.mResultCode, 0);
    host.interfaceFiles.missing.clear();
    EXPECT_EQ(show(34, {cancel()}), 0);
}

TEST_F(WizardModesTest, LaunchModesOtherThan35And36GoOnWhereTheWizardStands) {
    show(0, {next(), cancel()});
    rows.clear();
    show(34, {next(), cancel()});
    EXPECT_EQ(looks[looks.size() - 2], "4 Read Me: Back Next Cancel");
    EXPECT_THAT(pages(), ElementsAre(5)) << "still the tables of the full install";
    show(7, {cancel()});
    EXPECT_EQ(looks.back(), "5 End User License Agreement: Back (Next) Cancel");
}

TEST_F(WizardModesTest, LaunchModes35And36BeginAnewAtEachCall) {
    for (int i = 0; i < 3; ++i) {
        rows.clear();
        show(35, {next(), next()});
        EXPECT_EQ(pages().at(pages().size() - 5), 6) << i;
        rows.clear();
        show(36, {next(), next(), next()});
        EXPECT_THAT(pages(), ElementsAre(0, 26, 6, 10, 27, 27)) << i;
    }
}

TEST_F(WizardModesTest, CancelIsLoggedGivesTheRightsUpAndLeavesTheResultAsItIs) {
    EXPECT_EQ(show(34, {next(), next(), next()}), 129);
    ASSERT_TRUE(controller.authenticate());
    EXPECT_TRUE(host.administrator.sessionIsOpen);
    EXPECT_EQ(show(35, {cancel()}), 129) << "the result of the run before, as nothing has set it";
    EXPECT_EQ(timesLogged("Scrivel 21 Installer: User Cancelled"), 1);
    EXPECT_FALSE(host.administrator.sessionIsOpen);
    EXPECT_FALSE(controller.window.isVisible());
}

TEST_F(WizardModesTest, EveryExitGivesTheRightsUp) {
    const auto authenticated = [this](const Deed& deed) {
        return [this, deed] {
            ASSERT_TRUE(controller.authenticate());
            deed();
            EXPECT_FALSE(host.administrator.sessionIsOpen);
        };
    };
    show(34, {next(), next(), authenticated(next())});
    show(35, {next(), authenticated(next())});
    show(35, {uninstall(), answer("Yes"), authenticated(next())});
}

TEST_F(WizardModesTest, ClosingTheWindowMeansCancelWhereCancelCanBePressed) {
    show(34, {closeWindow()});
    EXPECT_EQ(timesLogged("Scrivel 21 Installer: User Cancelled"), 1);
    EXPECT_FALSE(controller.window.isVisible());
}

TEST_F(WizardModesTest, ClosingTheWindowOnTheLastPageMeansItsButton) {
    EXPECT_EQ(show(34, {next(), next(), closeWindow()}), 129);
    EXPECT_EQ(timesLogged("Scrivel 21 Installer: Exited Normally"), 1);
    EXPECT_EQ(timesLogged("Scrivel 21 Installer: User Cancelled"), 0);
    show(35, {uninstall(), answer("Yes"), closeWindow()});
    EXPECT_TRUE(host.modalLoop.terminated);
}

TEST_F(WizardModesTest, WhileWorkRunsTheWindowCanNotBeClosed) {
    struct Closer final : controls::Control::Observer {
        explicit Closer(ec::ecController& its) : wizard(its) {}
        void controlChanged(controls::Control&) override {}
        void displayNow(controls::Control&) override {
            closed = closed || wizard.window.performClose();
            ++attempts;
        }
        ec::ecController& wizard;
        bool closed = false;
        int attempts = 0;
    } closer(controller);
    show(34, {next(),
              [&] {
                  controller.window.addObserver(closer);
                  controller.nextBtn.press();
                  controller.window.removeObserver(closer);
              },
              next()});
    EXPECT_EQ(closer.attempts, 1);
    EXPECT_FALSE(closer.closed);
    EXPECT_EQ(looks.size(), 3u);
}

TEST_F(WizardModesTest, AFinishedWizardThatIsShownAgainCanBeClosed) {
    show(34, {next(), next(), next()});
    EXPECT_EQ(show(34, {next(), back(), next(), closeWindow()}), 129);
    EXPECT_EQ(timesLogged("Scrivel 21 Installer: Exited Normally"), 1) << "it ended once";
}

TEST_F(WizardModesTest, AWizardThatIsOpenedAfterTheEndOfTheProgramReturnsAtOnce) {
    host.modalLoop.terminate();
    EXPECT_EQ(show(35, {}), 0);
    EXPECT_FALSE(controller.window.isVisible());
}

// --- Word running

TEST_F(WizardModesTest, WhileWordRunsNextShowsThePageThatAsksToQuitIt) {
    show(34, {[this] {
                  host.applications.running.insert("com.microsoft.Word");
                  controller.nextBtn.press();
              },
              next(), next(),
              [this] {
                  host.applications.running.clear();
                  controller.nextBtn.press();
              },
              cancel()});
    EXPECT_THAT(looks, ElementsAre("1 Welcome to Scrivel 21: (Back) Next Cancel",
                                   "12 Welcome to Scrivel 21: (Back) Retry Cancel",
                                   "12 Welcome to Scrivel 21: (Back) Retry Cancel",
                                   "12 Welcome to Scrivel 21: (Back) Retry Cancel",
                                   "4 Read Me: Back Next Cancel"));
    EXPECT_THAT(pages(), ElementsAre(1, 12, 1, 4)) << "watchers are told of page 12 as well";
}

TEST_F(WizardModesTest, CancelAndClosingWorkOnThePageThatAsksToQuitWord) {
    host.applications.running.insert("com.microsoft.Word");
    show(34, {next(), cancel()});
    EXPECT_EQ(controller.ecTabView.selected(), 12);
    show(34, {closeWindow()});
    EXPECT_EQ(timesLogged("Scrivel 21 Installer: User Cancelled"), 2);
}

TEST_F(WizardModesTest, ARunningWordDoesNotKeepTheWindowOfAFinishedRunOpen) {
    EXPECT_EQ(show(34, {next(), next(),
                        [this] {
                            host.applications.running.insert("com.microsoft.Word");
                            controller.nextBtn.press();
                        },
                        closeWindow()}),
              129);
    EXPECT_EQ(looks.back(), "12 Thank you for using Scrivel 21: (Back) Retry (Cancel)");
    EXPECT_EQ(controller.ecTabView.selected(), 7) << "not the page that asks to quit Word";
    tests::WizardStage other;
    EXPECT_EQ(other.show(34, {other.next(), other.next(),
                              [&] {
                                  other.host.applications.running.insert("com.microsoft.Word");
                                  other.controller.window.performClose();
                              }}),
              129);
}

TEST_F(WizardModesTest, BackDoesNotAskForWord) {
    show(34, {next(),
              [this] {
                  host.applications.running.insert("com.microsoft.Word");
                  controller.backBtn.press();
              },
              cancel()});
    EXPECT_EQ(looks.back(), "1 Welcome to Scrivel 21: (Back) Next Cancel");
}

TEST_F(WizardModesTest, ARefusalAfterRetryLeavesThePageAsItWas) {
    show(36, {[this] {
                  controller.matSVWInstall.press(1);
                  host.applications.running.insert("com.microsoft.Word");
                  controller.nextBtn.press();
              },
              [this] {
                  host.applications.running.clear();
                  controller.nextBtn.press();
              },
              answer("No"), cancel()});
    EXPECT_EQ(looks.back(), "26 Welcome to Scrivel Penmark: (Back) Next Cancel");
}

// --- Actions by name

TEST_F(WizardModesTest, AnActionThatDoesNotExistLeavesALineInTheSystemLogAndNothingElse) {
    for (const std::string name : {"noSuchAction", "doexit", "doExit:", " doExit"}) {
        host.systemLog.lines.clear();
        EXPECT_EQ(controller.runSelector(name), ec::ActionResult::nothing);
        EXPECT_THAT(host.systemLog.lines, ElementsAre("There is no action named \"" + name + "\""));
        EXPECT_FALSE(ec::ecController::hasAction(name));
    }
    EXPECT_THAT(host.streams.appended, IsEmpty());
}

TEST_F(WizardModesTest, AnEmptyActionDoesNothingSilently) {
    EXPECT_EQ(controller.runSelector(""), ec::ActionResult::nothing);
    EXPECT_THAT(host.systemLog.lines, IsEmpty());
}

TEST_F(WizardModesTest, ButtonActionsDoWhatTheirNamesSay) {
    show(34, {cancel()});
    const auto after = [this](const char* name) {
        EXPECT_EQ(controller.runSelector(name), ec::ActionResult::nothing);
        return look();
    };
    EXPECT_EQ(after("setDone"), "1 Welcome to Scrivel 21: (Back) Done (Cancel)");
    EXPECT_EQ(after("enableButtons"), "1 Welcome to Scrivel 21: Back Done Cancel");
    EXPECT_EQ(after("setCont"), "1 Welcome to Scrivel 21: Back Continue Cancel");
    EXPECT_EQ(after("disableBack"), "1 Welcome to Scrivel 21: (Back) Continue Cancel");
    EXPECT_EQ(after("setExit"), "1 Welcome to Scrivel 21: (Back) Exit (Cancel)");
    EXPECT_EQ(after("enableButtons"), "1 Welcome to Scrivel 21: Back Exit Cancel");
    EXPECT_EQ(after("disableBackOnly"), "1 Welcome to Scrivel 21: (Back) Exit Cancel");
    EXPECT_EQ(after("agreeChangeDisagree"), "1 Welcome to Scrivel 21: (Back) (Exit) Cancel");
    EXPECT_EQ(after("enableButtons"), "1 Welcome to Scrivel 21: Back (Exit) Cancel")
        << "Next is untouched";
    EXPECT_EQ(after("agreeChangeAgree"), "1 Welcome to Scrivel 21: Back Exit Cancel");
    EXPECT_EQ(after("setNext"), "1 Welcome to Scrivel 21: Back Next Cancel");
    EXPECT_EQ(after("disableButtons"), "1 Welcome to Scrivel 21: (Back) Next (Cancel)");
    EXPECT_EQ(after("doSVWebNext"), "1 Welcome to Scrivel 21: (Back) Next (Cancel)");
}

TEST_F(WizardModesTest, GoingCustomJumpsNowhereAsNoTableHasTheLabel) {
    show(34, {next(), cancel()});
    rows.clear();
    for (const char* name : {"doGoCustom", "skipToAltPMRK"}) {
        controller.runSelector(name);
        EXPECT_EQ(controller.state(), 5);
        EXPECT_EQ(controller.ecTabView.selected(), 4);
        EXPECT_THAT(rows, IsEmpty());
    }
}

} // namespace
