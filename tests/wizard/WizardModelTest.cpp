// A user who does anything at all, in random order, against what must hold whatever is done.
//
// SCRIVEL_MODEL_STEPS says how many steps are made and SCRIVEL_MODEL_SEED where the dice start;
// the seed is printed, so that a failure can be had again. tools/model_test makes longer runs.
#include <array>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <iostream>
#include <random>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "tests/wizard/WizardStage.h"

namespace {

using ec::ItemState;
using tests::WizardStage;

constexpr std::array kActionNames{
    "adjustServSpot",
    "agreeChangeAgree",
    "agreeChangeDisagree",
    "askUserForWord",
    "back",
    "cancel",
    "dethenticate",
    "disableBack",
    "disableBackOnly",
    "disableButtons",
    "disableButtonsInPatch",
    "doACReset",
    "doACchange",
    "doACminus",
    "doACplus",
    "doAgreeChange",
    "doAltPMRK",
    "doCheckForWord",
    "doChoose",
    "doCustExit",
    "doExit",
    "doFoundMSWord",
    "doGoCustom",
    "doNextState",
    "doPatchNo",
    "doPatchYes",
    "doSVWUninstall",
    "doSVWebNext",
    "doStartSVWeb",
    "doUninstall",
    "doUninstallExit",
    "enableButtons",
    "findTheScrivels",
    "hideWordLocations",
    "initialInstall",
    "installAppLogo",
    "installCheck",
    "makeChange",
    "next",
    "nextState",
    "patchFindUI",
    "patchProgressUI",
    "prev",
    "prevState",
    "saveBreadcrumbs",
    "setCont",
    "setDone",
    "setExit",
    "setNext",
    "showHelp",
    "showLog",
    "showWordLocations",
    "skipToAltPMRK",
    "skipToNextState",
    "skipToPrevState",
    "startCustomState",
    "startPatchState",
    "startSVWebInstallState",
    "startToFind",
    "startToMakeChange",
    "startToInitialInstall",
    "constructWordAndStartupPaths",
    "updateOutlineText",
    "updateTitleText",
    "wordQuitHandler",
};
constexpr std::array kLabels{"GotWord", "Go",     "Found",          "Done",    "Nothing",
                             "Start",   "Custom", "doSVWUninstall", "altPMRK", ""};
const std::set<int> kPagesWithLog{7, 8, 11, 17, 18, 27, 28};

/// One program run: a wizard that is opened again and again until the program ends or the test has
/// seen enough of it.
class RandomUser {
  public:
    RandomUser(std::mt19937_64& dice, long& stepsLeft, const tests::TemporaryFolder& disk)
        : m_dice(dice), m_stepsLeft(stepsLeft), m_disk(disk) {
        m_stage.host.modalLoop.idle = [this] { return turn(); };
        m_stage.host.bundles.strings[{m_disk.path("Word.app"), "CFBundleShortVersionString"}] =
            "16.1";
        m_stage.host.applications.openers["enl"] = {m_disk.path("A/Scrivel 21.app"),
                                                    m_disk.path("B/Scrivel 21.app")};
    }

    void openOnce() {
        // Once something was done by name that no button does, only the modes that begin anew
        // clear it away.
        m_byName = m_mayActByName && chance(60);
        const auto mode = std::array{0u, 34u, 35u, 36u, 7u, 99u}[below(6)];
        m_tainted = (m_tainted && mode != 35 && mode != 36) || m_byName;
        m_goesOn = chance(30);
        m_turns = 0;
        m_turnsOfThisOpening = 5 + below(60);
        m_stage.rows.clear();
        if (mode == 99) {
            m_tainted = m_byName;
            note("open the patcher");
            m_stage.controller.showPatcherFromMenu();
        } else {
            note("open in mode " + std::to_string(mode));
            m_stage.controller.showCustomizerFromMenu(mode);
        }
        EXPECT_FALSE(m_stage.controller.window.isVisible()) << history();
        EXPECT_FALSE(m_stage.host.modalLoop.isRunning()) << history();
        EXPECT_FALSE(m_stage.isAsked()) << history();
        forgetRecords();
    }
    bool hasEnded() const { return m_stage.host.modalLoop.terminated; }

  private:
    using Controller = ec::ecController;

    std::size_t below(std::size_t end) { return static_cast<std::size_t>(m_dice() % end); }
    bool chance(int percent) { return below(100) < static_cast<std::size_t>(percent); }
    void note(std::string what) {
        m_history.push_back(std::move(what));
        if (m_history.size() > 40)
            m_history.pop_front();
    }
    std::string history() const {
        std::string all = "The last steps:\n";
        for (const std::string& step : m_history)
            all += "  " + step + "\n";
        return all + "Now: row " + std::to_string(m_stage.controller.state()) + ", " +
               m_stage.look() + "\n";
    }
    /// What a run records would grow without end.
    void forgetRecords() {
        m_stage.looks.clear();
        m_stage.drawn.clear();
        m_stage.questions.clear();
        m_stage.host.texts.lookedUp.clear();
        m_stage.host.streams.appended.clear();
        m_stage.host.streams.files.clear();
        m_stage.host.reader.matters.clear();
        m_stage.host.applications.asked.clear();
        m_stage.host.systemLog.lines.clear();
        m_stage.host.propertyLists.written.clear();
        m_stage.host.fileChoosers.asked.clear();
        m_stage.host.tools.calls.clear();
    }

    /// What happens while the wizard, or a question of it, waits.
    bool turn() {
        --m_stepsLeft;
        if (testing::Test::HasFailure()) {
            abandon();
            return true;
        }
        if (m_stage.isAsked()) {
            answerSomehow();
            return true;
        }
        if (m_turns++ > 0)
            check();
        else
            m_stage.rows.clear();
        if (m_turns > 500) {
            ADD_FAILURE() << "The wizard can't be left\n" << history();
            abandon();
        } else if (m_turns > m_turnsOfThisOpening || m_stepsLeft <= 0) {
            leave();
        } else if (m_byName && chance(35)) {
            doSomethingByName();
        } else {
            pressSomething();
        }
        return true;
    }
    void abandon() {
        m_stage.controller.window.orderOut();
        m_stage.host.modalLoop.terminate();
    }

    void answerSomehow() {
        auto& files = m_stage.host.interfaceFiles;
        const auto button = std::array{"defBtn", "altBtn", "othBtn"}[below(3)];
        switch (m_turns > m_turnsOfThisOpening ? 0 : below(6)) {
        case 0:
            note("close the question");
            files.interfaces.find("ecPanel")->second->window.performClose();
            break;
        case 1:
            wordStartsOrQuits();
            break;
        default:
            note(std::string("answer with ") + button);
            files.control<controls::Button>("ecPanel", button).press();
        }
    }
    void wordStartsOrQuits() {
        auto& running = m_stage.host.applications.running;
        if (running.empty())
            running.insert("com.microsoft.Word");
        else
            running.clear();
        note(running.empty() ? "Word quits" : "Word starts");
    }

    /// The user has had enough: goes on to the end, or closes the window. Both must work.
    void leave() {
        Controller& wizard = m_stage.controller;
        if (m_tainted) {
            note("taken away");
            wizard.window.orderOut();
        } else if (m_goesOn && !wizard.isFinished()) {
            m_stage.host.applications.running.clear();
            wizard.agreeBtns.press(0);
            wizard.matSVWInstall.press(0);
            wizard.acDoneBtn.press();
            note("Word quits, agree, install, Done, Next");
            EXPECT_LT(m_turns, m_turnsOfThisOpening + 16) << "no end in sight\n" << history();
            EXPECT_TRUE(wizard.nextBtn.isEnabled()) << history();
            wizard.nextBtn.press();
        } else {
            note("close the window");
            EXPECT_TRUE(wizard.window.performClose()) << history();
        }
    }

    void press(const char* name, controls::Button& button) {
        note(std::string("press ") + name);
        button.press();
    }
    void pressSomething() {
        Controller& wizard = m_stage.controller;
        const int page = wizard.ecTabView.selected();
        if (chance(60) && pressSomethingOnPage(page))
            return;
        switch (below(15)) {
        case 0:
        case 1:
            return press("cancel", wizard.cancelBtn);
        case 2:
            return press("help", wizard.helpBtn);
        case 3:
            return press("log", wizard.logBtn);
        case 4:
            return wordStartsOrQuits();
        case 5:
            note("close the window");
            wizard.window.performClose();
            return;
        case 6:
        case 7:
        case 8:
            return press("back", wizard.backBtn);
        case 9:
            return makeSomethingUnavailable();
        default:
            return press("next", wizard.nextBtn);
        }
    }
    /// What stands on the pages themselves; false on a page where nothing can be pressed.
    bool pressSomethingOnPage(int page) {
        Controller& wizard = m_stage.controller;
        switch (page) {
        case 5:
            pressRow("agreeBtns", wizard.agreeBtns);
            return true;
        case 6:
            if (chance(10))
                press("uninstall", wizard.uninstallBtn);
            else if (chance(10))
                press("locations", wizard.locationsBtn);
            else
                toggleSomething();
            return true;
        case 13:
            pressRow("spotBtns", wizard.spotBtns);
            pressRow("servBtns", wizard.servBtns);
            return true;
        case 25:
            if (chance(30))
                press("done", wizard.acDoneBtn);
            else
                pressSomethingOfTheLocations();
            return true;
        case 26:
            pressRow("matSVWInstall", wizard.matSVWInstall);
            return true;
        default:
            return false;
        }
    }
    void pressRow(const char* name, controls::RadioMatrix& matrix) {
        const int row = static_cast<int>(below(4)) - 1;
        note(std::string("press row ") + std::to_string(row) + " of " + name);
        matrix.press(row);
    }
    void pressSomethingOfTheLocations() {
        Controller& wizard = m_stage.controller;
        note("press something of the locations");
        m_stage.host.fileChoosers.answers.clear();
        if (chance(80))
            m_stage.host.fileChoosers.answers = {m_disk.path("Word.app"), m_disk.path("Startup")};
        wizard.acTbl.selectRow(static_cast<int>(below(4)) - 1);
        controls::Button* const buttons[]{&wizard.acPlus, &wizard.acMinusBtn, &wizard.acChange,
                                          &wizard.acResetBtn};
        buttons[below(4)]->press();
        checkLocations();
    }
    void checkLocations() {
        const Controller& wizard = m_stage.controller;
        const bool selected = wizard.acTbl.selectedRow() >= 0;
        EXPECT_EQ(wizard.acChange.isEnabled(), selected) << history();
        EXPECT_TRUE(selected || !wizard.acMinusBtn.isEnabled()) << history();
        EXPECT_EQ(wizard.acMinusBtn.isEnabled(), wizard.acResetBtn.isEnabled()) << history();
        EXPECT_LE(wizard.acTbl.rows(), 1) << history();
    }
    /// As a check would.
    void makeSomethingUnavailable() {
        const auto item = static_cast<std::uint32_t>(below(6));
        note("item " + std::to_string(item) + " is found in another state");
        m_stage.components.rules.setInitialItemState(item, static_cast<int>(below(3)) - 1);
        m_stage.controller.settleGroups();
    }

    void toggleSomething() {
        controls::OutlineView& outline = m_stage.controller.ecOutlineView;
        controls::OutlineDataSource& source = *outline.dataSource();
        auto* group = source.outlineViewChildOfItem(static_cast<int>(below(3)), nullptr);
        const auto members =
            static_cast<std::size_t>(source.outlineViewNumberOfChildrenOfItem(group));
        auto* item = group;
        if (members > 0 && chance(70))
            item = source.outlineViewChildOfItem(static_cast<int>(below(members)), group);
        note("toggle " + std::string(source.outlineViewObjectValue("component", item)));
        outline.select(chance(20) ? nullptr : item);
        const auto before = static_cast<ec::ecItem*>(item)->getItemState();
        const bool toggled = outline.press(item);
        EXPECT_EQ(toggled, before != ItemState::unavailable) << history();
        if (toggled)
            checkGroup(*static_cast<ec::ecItem*>(group), item == group);
    }
    void checkGroup(const ec::ecItem& group, bool wholeGroup) {
        std::set<int> states;
        for (const auto& member : group.children())
            states.insert(member->getItemState());
        if (states.empty())
            return;
        EXPECT_EQ(group.getItemState(), states.size() == 1 ? *states.begin() : ItemState::mixed)
            << history();
        EXPECT_TRUE(!wholeGroup || states.size() == 1) << history();
    }

    void doSomethingByName() {
        Controller& wizard = m_stage.controller;
        switch (below(8)) {
        case 0: {
            const char* label = kLabels[below(kLabels.size())];
            note(std::string("jump to ") + label);
            wizard.skipToState(label);
            m_stepped = true;
            break;
        }
        case 1: {
            const int rows = static_cast<int>(below(9)) - 4;
            note("skip " + std::to_string(rows));
            wizard.skipToRelativeState(rows);
            m_stepped = true;
            break;
        }
        case 2:
            note("begin a mode");
            wizard.startState(static_cast<std::uint32_t>(below(6)));
            m_stepped = true;
            break;
        default:
            const char* name = kActionNames[below(kActionNames.size())];
            note(std::string("run ") + name);
            EXPECT_TRUE(Controller::hasAction(name));
            (void)wizard.runSelector(name);
        }
    }

    void check() {
        const Controller& wizard = m_stage.controller;
        if (!wizard.window.isVisible())
            return;
        const int page = wizard.ecTabView.selected();
        EXPECT_TRUE(page >= 0 && page <= 28) << history();
        const ec::StepRow& row = wizard.currentRow(); // safe in every state
        EXPECT_TRUE(row.page >= -1 && row.page <= 28) << history();
        EXPECT_LT(std::abs(wizard.state()), 1'000'000) << history();
        const bool firstRowShown = m_stepped && !m_stage.rows.empty() &&
                                   m_stage.rows.back().state == 0 && wizard.state() == 0;
        EXPECT_FALSE(firstRowShown && wizard.backBtn.isEnabled()) << history();
        m_stepped = false;
        checkOutline();
        EXPECT_EQ(wizard.logBtn.isHidden(), !kPagesWithLog.contains(page)) << history();
        if (!m_tainted)
            checkWhatButtonsLeadTo(row, page);
        m_stage.rows.clear();
        if (m_turns % 64 == 0)
            forgetRecords();
    }
    void checkOutline() {
        const auto& runs = m_stage.controller.outlineText.styledText().runs;
        int bold = 0;
        for (std::size_t i = 1; i < runs.size(); i += 2)
            bold += runs[i].bold;
        EXPECT_EQ(runs.size() % 2, 0u) << history();
        EXPECT_EQ(bold, runs.empty() ? 0 : 1) << history();
    }
    /// What holds as long as nothing was done that no button does.
    void checkWhatButtonsLeadTo(const ec::StepRow& row, int page) {
        const Controller& wizard = m_stage.controller;
        EXPECT_GE(wizard.state(), 0) << history();
        EXPECT_LE(wizard.state(), 10) << "one past the longest table\n" << history();
        EXPECT_TRUE(wizard.cancelBtn.isEnabled() || wizard.nextBtn.isEnabled() ||
                    wizard.isFinished())
            << "the user can neither go on nor leave\n"
            << history();
        const bool atLocations = page == 25;
        EXPECT_TRUE(page == row.page || page == 12 || row.page == -1 ||
                    (atLocations && row.page == 6))
            << history();
        EXPECT_EQ(wizard.nextBtn.isHidden(), atLocations) << history();
        EXPECT_EQ(wizard.backBtn.isHidden(), atLocations) << history();
        // A finished wizard that is shown again stands past its last row, whose page is none.
        const bool pastItsLastRow = wizard.isFinished() && row.isTerminator();
        EXPECT_TRUE((page == 12) == (wizard.nextBtn.title() == "Retry") || pastItsLastRow)
            << history();
        EXPECT_TRUE(!wizard.backBtn.isEnabled() || (page != 12 && wizard.state() != 0) ||
                    pastItsLastRow)
            << history();
        EXPECT_EQ(wizard.helpBtn.isHidden(), wizard.secretIdentity().empty()) << history();
        EXPECT_FALSE(!m_mayActByName && wizard.custProgress.isRunning()) << history();
        EXPECT_FALSE(!m_mayActByName && wizard.progress.isRunning()) << history();
        EXPECT_EQ(wizard.uninstallBtn.isHidden(),
                  wizard.secretIdentity() != "Customizer_Customizer" || atLocations)
            << history();
        if (page == 5)
            EXPECT_EQ(wizard.nextBtn.isEnabled(), wizard.agreeBtns.isOn(0)) << history();
        else
            EXPECT_TRUE(wizard.nextBtn.isEnabled()) << history();
        const auto* title = std::ranges::find(ec::gInstallStateLabels,
                                              atLocations ? page : row.page, &ec::PageTitle::page);
        EXPECT_EQ(wizard.titleText.text(), title == ec::gInstallStateLabels.end()
                                               ? std::string_view()
                                               : title->title.english())
            << history();
    }

    std::mt19937_64& m_dice;
    long& m_stepsLeft;
    const tests::TemporaryFolder& m_disk; ///< with a Word on it
    WizardStage m_stage;
    std::deque<std::string> m_history;
    bool m_mayActByName = chance(50);
    bool m_byName = false;  ///< does this opening also do what no button does?
    bool m_tainted = false; ///< has anything of that been done since a mode began?
    bool m_goesOn = false;
    bool m_stepped = false; ///< was the last step one of the state machine's own?
    std::size_t m_turns = 0;
    std::size_t m_turnsOfThisOpening = 0;
};

long fromEnvironment(const char* name, long otherwise) {
    const char* text = std::getenv(name);
    return text ? std::strtol(text, nullptr, 10) : otherwise;
}

TEST(WizardModel, WhateverTheUserDoesTheWizardStaysSoundAndCanBeLeft) {
    const auto seed = static_cast<std::uint64_t>(fromEnvironment("SCRIVEL_MODEL_SEED", 1));
    long stepsLeft = fromEnvironment("SCRIVEL_MODEL_STEPS", 100'000);
    std::cout << "SCRIVEL_MODEL_SEED=" << seed << " SCRIVEL_MODEL_STEPS=" << stepsLeft << '\n';
    std::mt19937_64 dice(seed);
    const tests::TemporaryFolder disk;
    for (const auto* made : {"Word.app", "Office", "Startup"})
        std::filesystem::create_directory(disk.path(made));
    while (stepsLeft > 0 && !HasFailure()) {
        RandomUser user(dice, stepsLeft, disk);
        for (int opening = 0; opening < 50 && stepsLeft > 0 && !user.hasEnded(); ++opening)
            user.openOnce();
    }
}

TEST(WizardModel, EveryActionThatItRunsExists) {
    for (const char* name : kActionNames)
        EXPECT_TRUE(ec::ecController::hasAction(name)) << name;
}

} // namespace
