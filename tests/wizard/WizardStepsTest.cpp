// The state machine alone, over tables of the tests' own: what happens in which order, and what the
// buttons, the page, the outline and the title show afterwards.
#include "wizard/WizardSteps.h"

#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/FakeHost.h"

namespace {

using controls::Colour;
using controls::StyledText;
using controls::TextRun;
using ec::ActionResult;
using ec::StepRow;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr StepRow kEnd{};

constexpr StepRow plain(int page) {
    return {.page = page};
}
constexpr StepRow labelled(std::string_view label, int page) {
    return {.page = page, .label = label};
}

/// A row with every action.
constexpr std::array kFull{
    StepRow{.page = 3,
            .pictureAction = "picture0",
            .enterAction = "enter0",
            .leaveAction = "leave0",
            .secondLeaveAction = "second0"},
    StepRow{.page = 5,
            .label = "middle",
            .pictureAction = "picture1",
            .enterAction = "enter1",
            .leaveAction = "leave1",
            .secondLeaveAction = "second1"},
    StepRow{.page = 8,
            .label = "last",
            .pictureAction = "picture2",
            .enterAction = "enter2",
            .leaveAction = "leave2",
            .secondLeaveAction = "second2"},
    kEnd,
};

struct WizardStepsTest : testing::Test {
    /// Everything that happens, in its order: actions by their names, "row N page P" for the event,
    /// "draw P" for the pages drawn at once.
    std::vector<std::string> events;

    struct Recorder final : ec::ActionPerformer, controls::Control::Observer {
        Recorder(std::vector<std::string>& list, ec::WizardOutlets& its)
            : events(list), outlets(its) {}
        ActionResult runSelector(std::string_view name) override {
            if (name.empty())
                return ActionResult::nothing;
            events.emplace_back(name);
            const auto reaction = reactions.find(name);
            return reaction == reactions.end() ? ActionResult::nothing : reaction->second();
        }
        void controlChanged(controls::Control&) override {}
        void displayNow(controls::Control&) override {
            events.push_back("draw " + std::to_string(outlets.ecTabView.selected()));
        }
        std::vector<std::string>& events;
        ec::WizardOutlets& outlets;
        std::map<std::string, std::function<ActionResult()>, std::less<>> reactions;
    };

    fakes::FakeHost host;
    ec::WizardOutlets outlets;
    ec::WizardSession session{host.bundles, host.places};
    Recorder recorder{events, outlets};
    std::vector<ports::RowShown> shown;
    ec::WizardSteps steps{{.actions = recorder,
                           .outlets = outlets,
                           .session = session,
                           .texts = host.texts,
                           .appearance = host.appearance,
                           .beeper = host.beeper,
                           .rowShown = [this](const ports::RowShown& row) {
                               shown.push_back(row);
                               events.push_back("row " + std::to_string(row.state) + " page " +
                                                std::to_string(row.page));
                           }}};

    void SetUp() override { outlets.ecTabView.addObserver(recorder); }
    void TearDown() override { outlets.ecTabView.removeObserver(recorder); }

    /// Puts tables in place and steps to a row of them without a trace.
    void begin(std::span<const StepRow> rows, std::span<const ec::OutlineRow> outline = {},
               int row = 0) {
        const auto reactions = std::exchange(recorder.reactions, {});
        steps.useTables(rows, outline);
        while (steps.state() < row)
            steps.skipToNextState();
        while (steps.state() > row)
            steps.skipToRelativeState(row - steps.state());
        steps.updateOutlineText();
        recorder.reactions = reactions;
        events.clear();
        shown.clear();
    }
    void onAction(const std::string& name, std::function<void()> reaction) {
        recorder.reactions[name] = [act = std::move(reaction)] {
            act();
            return ActionResult::nothing;
        };
    }
    void refuseOn(const std::string& name) {
        recorder.reactions[name] = [] { return ActionResult::object; };
    }
    int page() const { return outlets.ecTabView.selected(); }
    std::string title() const { return outlets.titleText.text(); }
    /// The outline's current entry as it shows: the one whose whole line is bold; -1 for none.
    int boldEntry() const {
        const std::vector<TextRun>& runs = outlets.outlineText.styledText().runs;
        for (std::size_t i = 1; i < runs.size(); i += 2)
            if (runs[i].bold)
                return static_cast<int>(i / 2);
        return -1;
    }
};

// --- Forward

TEST_F(WizardStepsTest, NextAsksBothLeaveActionsThenShowsThePageTellsItAndEnters) {
    begin(kFull);
    steps.nextState();
    EXPECT_THAT(events,
                ElementsAre("leave0", "second0", "draw 5", "row 1 page 5", "picture1", "enter1"));
    EXPECT_EQ(steps.state(), 1);
    EXPECT_EQ(page(), 5);
}

TEST_F(WizardStepsTest, BeforeTheFirstPageNobodyIsAsked) {
    begin(kFull, {}, -1);
    steps.nextState();
    EXPECT_THAT(events, ElementsAre("draw 3", "row 0 page 3", "picture0", "enter0"));
    EXPECT_EQ(steps.state(), 0);
}

TEST_F(WizardStepsTest, ALeaveActionThatAnswersAnObjectKeepsThePageAndEndsTheQuestioning) {
    begin(kFull);
    refuseOn("leave0");
    steps.nextState();
    EXPECT_THAT(events, ElementsAre("leave0"));
    EXPECT_EQ(steps.state(), 0);
    EXPECT_EQ(page(), 3);
}

TEST_F(WizardStepsTest, TheSecondLeaveActionMayRefuseAsWell) {
    begin(kFull);
    refuseOn("second0");
    steps.nextState();
    EXPECT_THAT(events, ElementsAre("leave0", "second0"));
    EXPECT_EQ(steps.state(), 0);
}

TEST_F(WizardStepsTest, ARefusalRefreshesNeitherOutlineNorTitle) {
    begin(kFull);
    refuseOn("leave0");
    outlets.titleText.setText("as it was");
    outlets.outlineText.setText("as it was");
    steps.nextState();
    EXPECT_EQ(title(), "as it was");
    EXPECT_EQ(outlets.outlineText.text(), "as it was");
}

TEST_F(WizardStepsTest, AJumpFromALeaveActionHasShownItsRowAndNextOnlyRefreshes) {
    begin(kFull);
    onAction("leave0", [this] { steps.skipToState("last"); });
    steps.nextState();
    EXPECT_THAT(events,
                ElementsAre("leave0", "draw 8", "row 2 page 8", "picture2", "enter2", "second0"))
        << "the second leave action of the row that was left still runs";
    EXPECT_EQ(steps.state(), 2);
    EXPECT_EQ(title(), "Finish");
}

TEST_F(WizardStepsTest, AJumpFromTheSecondLeaveActionCountsAsWell) {
    begin(kFull);
    onAction("second0", [this] { steps.skipToState("last"); });
    steps.nextState();
    EXPECT_EQ(steps.state(), 2);
    EXPECT_THAT(events,
                ElementsAre("leave0", "second0", "draw 8", "row 2 page 8", "picture2", "enter2"));
}

TEST_F(WizardStepsTest, AJumpOfALeaveActionToItsOwnRowIsNoJumpAndGoesOn) {
    begin(kFull, {}, 1);
    onAction("leave1", [this] { steps.skipToState("middle"); });
    steps.nextState();
    EXPECT_EQ(steps.state(), 2);
}

TEST_F(WizardStepsTest, ALeaveActionThatJumpsNowhereLeavesTheStatePastTheLastRowAndThePage) {
    begin(kFull);
    onAction("leave0", [this] { steps.skipToState("altPMRK"); });
    steps.nextState();
    EXPECT_EQ(steps.state(), 4);
    EXPECT_EQ(page(), 3);
    EXPECT_EQ(title(), "");
    EXPECT_THAT(shown, IsEmpty());
}

TEST_F(WizardStepsTest, TheRowAfterAPage23RowIsPassedOverGoingForward) {
    static constexpr std::array kRows{plain(23), plain(25), plain(6), kEnd};
    begin(kRows);
    steps.nextState();
    EXPECT_EQ(steps.state(), 2);
    EXPECT_EQ(page(), 6);
}

TEST_F(WizardStepsTest, SkippingPassesNoRowOver) {
    static constexpr std::array kRows{plain(23), plain(25), plain(6), kEnd};
    begin(kRows);
    steps.skipToNextState();
    EXPECT_EQ(steps.state(), 1);
    EXPECT_EQ(page(), 25);
}

TEST_F(WizardStepsTest, APage23RowReachedByAJumpPassesNothingOverYet) {
    static constexpr std::array kRows{StepRow{.page = 1, .leaveAction = "jump"},
                                      plain(4),
                                      labelled("there", 23),
                                      plain(25),
                                      plain(6),
                                      kEnd};
    begin(kRows);
    onAction("jump", [this] { steps.skipToState("there"); });
    steps.nextState();
    EXPECT_EQ(steps.state(), 2);
    steps.nextState();
    EXPECT_EQ(steps.state(), 4);
}

TEST_F(WizardStepsTest, OnceFinishedNextAsksNobodyAndStays) {
    begin(kFull);
    steps.finish();
    steps.nextState();
    EXPECT_THAT(events, IsEmpty());
    EXPECT_EQ(steps.state(), 0);
}

TEST_F(WizardStepsTest, ALeaveActionThatFinishesStillLetsThisStepGoOn) {
    begin(kFull);
    onAction("leave0", [this] { steps.finish(); });
    steps.nextState();
    EXPECT_EQ(steps.state(), 1);
    steps.nextState();
    EXPECT_EQ(steps.state(), 1);
}

TEST_F(WizardStepsTest, ATerminatorKeepsThePageShowsAnEmptyTitleAndDrawsNothing) {
    begin(kFull, {}, 2);
    steps.nextState();
    EXPECT_THAT(events, ElementsAre("leave2", "second2", "row 3 page 8"));
    EXPECT_EQ(steps.state(), 3);
    EXPECT_EQ(page(), 8);
    EXPECT_EQ(title(), "");
    EXPECT_TRUE(outlets.backBtn.isEnabled());
    EXPECT_TRUE(outlets.nextBtn.isEnabled());
}

TEST_F(WizardStepsTest, DoNextStateRefreshesOnceMore) {
    begin(kFull);
    onAction("enter1", [this] { outlets.titleText.setText("spoilt by the action"); });
    steps.nextState();
    EXPECT_EQ(title(), "spoilt by the action");
    begin(kFull);
    steps.doNextState();
    EXPECT_EQ(title(), "End User License Agreement");
    EXPECT_EQ(steps.state(), 1);
}

TEST_F(WizardStepsTest, DoNextStateRefreshesEvenWhereThePageIsKept) {
    begin(kFull, {}, 1);
    refuseOn("leave1");
    outlets.titleText.setText("old");
    steps.doNextState();
    EXPECT_EQ(title(), "End User License Agreement");
}

TEST_F(WizardStepsTest, SkipToNextStateAsksNobodyNotEvenTheFinish) {
    begin(kFull);
    steps.finish();
    steps.skipToNextState();
    EXPECT_THAT(events, ElementsAre("draw 5", "row 1 page 5", "picture1", "enter1"));
    EXPECT_EQ(title(), "End User License Agreement");
}

TEST_F(WizardStepsTest, SkippingOntoATerminatorDrawsThePageThatStays) {
    begin(kFull, {}, 2);
    steps.skipToNextState();
    EXPECT_THAT(events, ElementsAre("draw 8", "row 3 page 8"));
}

// --- Nested steps

TEST_F(WizardStepsTest, AnEnterActionMayStepOnAndTheRowsAreToldInOrder) {
    begin(kFull, {}, -1);
    onAction("enter0", [this] { steps.nextState(); });
    onAction("enter1", [this] { steps.doNextState(); });
    steps.nextState();
    EXPECT_THAT(events,
                ElementsAre("draw 3", "row 0 page 3", "picture0", "enter0", "leave0", "second0",
                            "draw 5", "row 1 page 5", "picture1", "enter1", "leave1", "second1",
                            "draw 8", "row 2 page 8", "picture2", "enter2"));
    EXPECT_EQ(steps.state(), 2);
    EXPECT_EQ(page(), 8);
    EXPECT_EQ(title(), "Finish");
}

TEST_F(WizardStepsTest, APictureActionThatStepsStillHasTheOldRowsEnterActionRunAfterwards) {
    begin(kFull, {}, -1);
    onAction("picture0", [this] { steps.skipToNextState(); });
    steps.nextState();
    EXPECT_THAT(events, ElementsAre("draw 3", "row 0 page 3", "picture0", "draw 5", "row 1 page 5",
                                    "picture1", "enter1", "enter0"));
}

TEST_F(WizardStepsTest, AThousandRowsThatStepOnByThemselvesAreWalkedInOneGo) {
    std::vector<StepRow> rows(1000, StepRow{.page = 2, .enterAction = "on"});
    rows.push_back(plain(6));
    rows.push_back(kEnd);
    begin(rows, {}, -1);
    onAction("on", [this] { steps.nextState(); });
    steps.nextState();
    EXPECT_EQ(steps.state(), 1000);
    EXPECT_EQ(page(), 6);
}

TEST_F(WizardStepsTest, AnEnterActionMayBeginAnotherMode) {
    begin(kFull, {}, 0);
    onAction("enter1", [this] {
        session.m_mode = 34;
        steps.startState(0);
    });
    steps.nextState();
    EXPECT_EQ(steps.state(), 0);
    EXPECT_EQ(page(), 1);
    EXPECT_EQ(title(), "Welcome to Scrivel 21");
}

// --- Back

TEST_F(WizardStepsTest, BackAsksNobodyAndShowsTheRowBefore) {
    begin(kFull, {}, 2);
    steps.skipToPrevState();
    EXPECT_THAT(events, ElementsAre("draw 5", "row 1 page 5", "picture1", "enter1"));
    EXPECT_EQ(title(), "End User License Agreement");
}

TEST_F(WizardStepsTest, BackPassesTheProgressPageOver) {
    static constexpr std::array kRows{plain(1), plain(4), plain(10), plain(7), kEnd};
    begin(kRows, {}, 3);
    steps.skipToPrevState();
    EXPECT_EQ(steps.state(), 1);
    EXPECT_EQ(page(), 4);
}

TEST_F(WizardStepsTest, BackFromRowOneStopsAtRowZeroEvenWhenThatIsTheProgressPage) {
    static constexpr std::array kRows{plain(10), plain(7), kEnd};
    begin(kRows, {}, 1);
    steps.skipToPrevState();
    EXPECT_EQ(steps.state(), 0);
    EXPECT_EQ(page(), 10);
}

TEST_F(WizardStepsTest, BackPassesOnlyOneProgressPageOver) {
    static constexpr std::array kRows{plain(1), plain(10), plain(10), plain(7), kEnd};
    begin(kRows, {}, 3);
    steps.skipToPrevState();
    EXPECT_EQ(steps.state(), 1);
    EXPECT_EQ(page(), 10);
}

TEST_F(WizardStepsTest, BackOntoATerminatorKeepsThePageAndDrawsIt) {
    static constexpr std::array kRows{plain(1), kEnd, plain(7), kEnd};
    begin(kRows, {}, 2);
    steps.skipToPrevState();
    EXPECT_EQ(steps.state(), 1);
    EXPECT_EQ(page(), 7) << "selecting the page -1 keeps the page: that is wanted";
    EXPECT_THAT(events, ElementsAre("draw 7", "row 1 page 7"));
    EXPECT_EQ(title(), "");
}

TEST_F(WizardStepsTest, BackMovesAlsoWhenTheWizardHasFinished) {
    begin(kFull, {}, 2);
    steps.finish();
    steps.skipToPrevState();
    EXPECT_EQ(steps.state(), 1);
}

TEST_F(WizardStepsTest, PrevStateRunsTheLeaveActionsWhateverTheyAnswerAndDrawsNothing) {
    begin(kFull, {}, 2);
    refuseOn("leave2");
    refuseOn("second2");
    steps.prevState();
    EXPECT_THAT(events, ElementsAre("leave2", "second2", "row 1 page 5", "picture1", "enter1"));
    EXPECT_EQ(steps.state(), 1);
    EXPECT_EQ(page(), 5);
    EXPECT_EQ(title(), "End User License Agreement");
}

TEST_F(WizardStepsTest, PrevStatePassesTheProgressPageOverAsBackDoes) {
    static constexpr std::array kRows{plain(1), plain(4), plain(10), plain(7), kEnd};
    begin(kRows, {}, 3);
    steps.prevState();
    EXPECT_EQ(steps.state(), 1);
}

TEST_F(WizardStepsTest, OnceFinishedPrevStateRunsTheLeaveActionsAndStays) {
    begin(kFull, {}, 2);
    steps.finish();
    steps.prevState();
    EXPECT_THAT(events, ElementsAre("leave2", "second2"));
    EXPECT_EQ(steps.state(), 2);
}

TEST_F(WizardStepsTest, PrevStateGoesBackFromWhereALeaveActionJumped) {
    begin(kFull, {}, 0);
    onAction("leave0", [this] { steps.skipToState("last"); });
    steps.prevState();
    EXPECT_EQ(steps.state(), 1);
}

TEST_F(WizardStepsTest, BackFromTheFirstRowRunsNoActionAndKeepsThePage) {
    begin(kFull);
    steps.prevState();
    EXPECT_EQ(steps.state(), -1);
    EXPECT_EQ(page(), 3);
    EXPECT_THAT(events, ElementsAre("leave0", "second0"));
    begin(kFull);
    steps.skipToPrevState();
    EXPECT_EQ(steps.state(), -1);
    EXPECT_EQ(page(), 3);
    EXPECT_THAT(events, ElementsAre("draw 3"));
}

// --- Jumps

TEST_F(WizardStepsTest, AJumpShowsTheRowAndLeavesOutlineAndTitleToItsCaller) {
    begin(kFull);
    outlets.titleText.setText("the caller's");
    outlets.outlineText.setText("the caller's");
    steps.skipToState("last");
    EXPECT_THAT(events, ElementsAre("draw 8", "row 2 page 8", "picture2", "enter2"));
    EXPECT_EQ(title(), "the caller's");
    EXPECT_EQ(outlets.outlineText.text(), "the caller's");
}

TEST_F(WizardStepsTest, TheFirstRowWithTheLabelWins) {
    static constexpr std::array kRows{plain(1), labelled("x", 4), labelled("x", 5), kEnd};
    begin(kRows, {}, 2);
    steps.skipToState("x");
    EXPECT_EQ(steps.state(), 1);
}

TEST_F(WizardStepsTest, AJumpMayGoBackAndToItsOwnRow) {
    begin(kFull, {}, 2);
    steps.skipToState("middle");
    EXPECT_EQ(steps.state(), 1);
    events.clear();
    steps.skipToState("middle");
    EXPECT_EQ(steps.state(), 1);
    EXPECT_THAT(events, ElementsAre("draw 5", "row 1 page 5", "picture1", "enter1"));
}

TEST_F(WizardStepsTest, LabelsAreComparedCharacterForCharacter) {
    begin(kFull);
    for (const auto* label : {"Last", "LAST", "las", "last ", ""}) {
        begin(kFull);
        steps.skipToState(label);
        EXPECT_EQ(steps.state(), 4) << label;
    }
}

TEST_F(WizardStepsTest, AJumpToALabelThatNoRowCarriesChangesTheStateAndNothingElse) {
    begin(kFull, {}, 1);
    outlets.nextBtn.setEnabled(false);
    outlets.nextBtn.setTitle("Done");
    outlets.backBtn.setEnabled(false);
    outlets.titleText.setText("as it was");
    steps.skipToState("altPMRK");
    EXPECT_EQ(steps.state(), 4);
    EXPECT_THAT(events, IsEmpty());
    EXPECT_EQ(page(), 5);
    EXPECT_FALSE(outlets.nextBtn.isEnabled());
    EXPECT_EQ(outlets.nextBtn.title(), "Done");
    EXPECT_FALSE(outlets.backBtn.isEnabled());
    EXPECT_EQ(title(), "as it was");
}

TEST_F(WizardStepsTest, AnUnlabelledRowIsNotTheOneWithAnEmptyLabel) {
    static constexpr std::array kRows{plain(1), labelled("", 4), kEnd};
    begin(kRows);
    steps.skipToState("");
    EXPECT_EQ(steps.state(), 1);
}

TEST_F(WizardStepsTest, ARelativeSkipShowsTheRowWithoutOutlineAndTitle) {
    begin(kFull);
    outlets.titleText.setText("old");
    steps.skipToRelativeState(2);
    EXPECT_THAT(events, ElementsAre("draw 8", "row 2 page 8", "picture2", "enter2"));
    EXPECT_EQ(title(), "old");
    steps.skipToRelativeState(-1);
    EXPECT_EQ(steps.state(), 1);
    EXPECT_EQ(host.beeper.beeps, 0);
}

TEST_F(WizardStepsTest, ARelativeSkipPastTheEndBeepsAndChangesNothing) {
    for (const int rows : {3, 4, 1000, std::numeric_limits<int>::max()}) {
        begin(kFull, {}, 1);
        host.beeper.beeps = 0;
        steps.skipToRelativeState(rows);
        EXPECT_EQ(host.beeper.beeps, 1) << rows;
        EXPECT_EQ(steps.state(), 1) << rows;
        EXPECT_THAT(events, IsEmpty()) << rows;
    }
}

TEST_F(WizardStepsTest, ARelativeSkipToTheTerminatorIsNotYetPastTheEnd) {
    begin(kFull, {}, 1);
    steps.skipToRelativeState(2);
    EXPECT_EQ(steps.state(), 3);
    EXPECT_EQ(host.beeper.beeps, 0);
}

TEST_F(WizardStepsTest, ARelativeSkipBeforeTheFirstRowIsSafe) {
    begin(kFull, {}, 1);
    steps.skipToRelativeState(std::numeric_limits<int>::min());
    EXPECT_TRUE(steps.currentRow().isTerminator());
    EXPECT_EQ(page(), 5);
}

// --- Before the first row and past the last one

TEST_F(WizardStepsTest, RowsOutsideTheTableActAsTerminators) {
    begin(kFull, {}, 2);
    for (int i = 0; i < 5; ++i)
        steps.skipToNextState();
    EXPECT_EQ(steps.state(), 7);
    EXPECT_TRUE(steps.currentRow().isTerminator());
    EXPECT_EQ(page(), 8);
    EXPECT_EQ(title(), "");
    events.clear();
    steps.nextState();
    EXPECT_THAT(events, ElementsAre("row 8 page 8"));
    begin(kFull, {}, -4);
    EXPECT_TRUE(steps.currentRow().isTerminator());
    steps.nextState();
    EXPECT_EQ(steps.state(), -3);
    steps.prevState();
    EXPECT_EQ(steps.state(), -4);
}

TEST_F(WizardStepsTest, WithoutTablesEveryStepIsSafe) {
    steps.nextState();
    steps.nextState();
    steps.doNextState();
    steps.skipToNextState();
    steps.prevState();
    steps.skipToPrevState();
    steps.skipToState("anything");
    EXPECT_EQ(steps.state(), 0) << "one past the last row of none";
    steps.skipToRelativeState(0);
    EXPECT_EQ(host.beeper.beeps, 1);
    EXPECT_EQ(page(), 0);
    EXPECT_TRUE(steps.currentRow().isTerminator());
}

// --- Buttons

TEST_F(WizardStepsTest, BackIsDisabledOnTheFirstRowOnly) {
    begin(kFull, {}, -1);
    steps.nextState();
    EXPECT_FALSE(outlets.backBtn.isEnabled());
    steps.nextState();
    EXPECT_TRUE(outlets.backBtn.isEnabled());
    steps.skipToPrevState();
    EXPECT_FALSE(outlets.backBtn.isEnabled());
    steps.skipToState("last");
    EXPECT_TRUE(outlets.backBtn.isEnabled());
    steps.skipToRelativeState(-2);
    EXPECT_FALSE(outlets.backBtn.isEnabled());
    steps.skipToNextState();
    steps.prevState();
    EXPECT_FALSE(outlets.backBtn.isEnabled());
}

TEST_F(WizardStepsTest, EveryMoveGivesTheButtonsTheirTitlesAndEnablesNext) {
    const std::vector<std::function<void()>> moves{
        [this] { steps.nextState(); },           [this] { steps.doNextState(); },
        [this] { steps.skipToNextState(); },     [this] { steps.prevState(); },
        [this] { steps.skipToPrevState(); },     [this] { steps.skipToState("last"); },
        [this] { steps.skipToRelativeState(1); }};
    for (const auto& move : moves) {
        begin(kFull, {}, 1);
        outlets.nextBtn.setTitle("Done");
        outlets.nextBtn.setEnabled(false);
        outlets.backBtn.setTitle("No");
        move();
        EXPECT_EQ(outlets.nextBtn.title(), "Next");
        EXPECT_TRUE(outlets.nextBtn.isEnabled());
        EXPECT_EQ(outlets.backBtn.title(), "Back");
    }
}

TEST_F(WizardStepsTest, TheButtonsTitlesAreTheUsersLanguage) {
    host.texts.table = {{"Back", "Zurück"}, {"Next", "Weiter"}};
    begin(kFull);
    steps.nextState();
    EXPECT_EQ(outlets.backBtn.title(), "Zurück");
    EXPECT_EQ(outlets.nextBtn.title(), "Weiter");
}

TEST_F(WizardStepsTest, WhatAnEnterActionDoesToTheButtonsStands) {
    begin(kFull);
    onAction("enter1", [this] {
        outlets.backBtn.setEnabled(false);
        outlets.nextBtn.setTitle("Done");
    });
    steps.nextState();
    EXPECT_FALSE(outlets.backBtn.isEnabled());
    EXPECT_EQ(outlets.nextBtn.title(), "Done");
}

TEST_F(WizardStepsTest, NoMoveTouchesCancel) {
    begin(kFull);
    for (const bool enabled : {false, true}) {
        outlets.cancelBtn.setEnabled(enabled);
        steps.skipToState("middle");
        steps.nextState();
        steps.prevState();
        EXPECT_EQ(outlets.cancelBtn.isEnabled(), enabled);
    }
}

// --- The outline

constexpr Colour kBlue{0.0, 0.5, 0.71, 1.0};
constexpr Colour kDim{0.2, 0.2, 0.2, 0.8};
constexpr Colour kLightGrey{2.0 / 3, 2.0 / 3, 2.0 / 3, 1.0};

constexpr std::array<ec::OutlineRow, 3> kOutline{{
    {"Welcome", {3, -1, -1}},
    {"Read Me", {5, -1, -1}},
    {"License", {8, -1, -1}},
}};

TEST_F(WizardStepsTest, TheOutlineHasABulletTwoBlanksAndANameInEachLine) {
    begin(kFull, kOutline, 1);
    EXPECT_EQ(outlets.outlineText.text(), "•  Welcome\n•  Read Me\n•  License\n");
}

TEST_F(WizardStepsTest, InALightAppearanceTheCurrentLineIsBoldAndWhatComesIsDim) {
    begin(kFull, kOutline, 1);
    const StyledText expected{{{"•", kBlue, true},
                               {"  Welcome\n", std::nullopt, false},
                               {"•", kBlue, true},
                               {"  Read Me\n", std::nullopt, true},
                               {"•", kDim, false},
                               {"  License\n", kDim, false}},
                              8.0};
    EXPECT_EQ(outlets.outlineText.styledText(), expected);
}

TEST_F(WizardStepsTest, InADarkAppearanceEverythingAfterTheBulletIsLightGrey) {
    host.appearance.dark = true;
    begin(kFull, kOutline, 1);
    const StyledText expected{{{"•", kBlue, true},
                               {"  Welcome\n", kLightGrey, false},
                               {"•", kBlue, true},
                               {"  Read Me\n", kLightGrey, true},
                               {"•", kDim, false},
                               {"  License\n", kLightGrey, false}},
                              8.0};
    EXPECT_EQ(outlets.outlineText.styledText(), expected);
}

TEST_F(WizardStepsTest, TheAppearanceIsAskedAtEachRefresh) {
    begin(kFull, kOutline, 1);
    host.appearance.dark = true;
    steps.updateOutlineText();
    EXPECT_EQ(outlets.outlineText.styledText().runs.at(1).colour, kLightGrey);
    host.appearance.dark = false;
    steps.updateOutlineText();
    EXPECT_EQ(outlets.outlineText.styledText().runs.at(1).colour, std::nullopt);
}

TEST_F(WizardStepsTest, TheOutlinesNamesAreTheUsersLanguage) {
    host.texts.table = {{"Read Me", "Bitte lesen"}};
    begin(kFull, kOutline, 1);
    EXPECT_EQ(outlets.outlineText.text(), "•  Welcome\n•  Bitte lesen\n•  License\n");
}

TEST_F(WizardStepsTest, TheCurrentEntryIsTheFirstWithThePageInOneOfItsThreeSlots) {
    static constexpr std::array kRows{plain(9), plain(1), plain(2), plain(3), plain(4), kEnd};
    static constexpr std::array<ec::OutlineRow, 3> kEntries{{
        {"Welcome", {1, -1, -1}},
        {"Read Me", {-1, 2, 3}},
        {"License", {3, 2, 4}},
    }};
    begin(kRows, kEntries, 0);
    for (const int entry : {0, 1, 1, 2}) {
        steps.nextState();
        EXPECT_EQ(boldEntry(), entry) << "row " << steps.state();
    }
}

TEST_F(WizardStepsTest, OnTheFirstRowTheFirstEntryIsCurrentWhateverItsPage) {
    static constexpr std::array kRows{plain(8), plain(5), kEnd};
    begin(kRows, kOutline, 0);
    EXPECT_EQ(boldEntry(), 0);
    begin(kRows, kOutline, -1);
    EXPECT_EQ(boldEntry(), 0);
}

TEST_F(WizardStepsTest, APageThatNoEntryStandsForMarksTheFirst) {
    static constexpr std::array kRows{plain(3), plain(8), plain(13), kEnd};
    begin(kRows, kOutline, 2);
    EXPECT_EQ(boldEntry(), 0);
    steps.nextState();
    EXPECT_EQ(boldEntry(), 0) << "a terminator's page is no empty slot's";
}

TEST_F(WizardStepsTest, AnEmptyOutlineIsAnEmptyTextWithItsSpacing) {
    begin(kFull, {}, 1);
    EXPECT_EQ(outlets.outlineText.styledText(), (StyledText{{}, 8.0}));
}

// --- The title

TEST_F(WizardStepsTest, TheTitleIsThePagesAndEmptyWhereThePageHasNone) {
    const std::map<int, std::string> titles{
        {1, "Welcome to Scrivel 21"},          {4, "Read Me"},
        {5, "End User License Agreement"},     {6, "Select Components"},
        {7, "Thank you for using Scrivel 21"}, {8, "Finish"},
        {9, "Uninstall Scrivel 21"},           {10, "Updating System"},
        {14, "Welcome to Scrivel 21 Update"},  {17, "Finish"},
        {23, "Penmark for Microsoft Word"},    {25, "Scrivel Penmark Configuration"},
        {26, "Welcome to Scrivel Penmark"},    {28, "Finish"}};
    for (int number = 0; number < ec::page::kCount; ++number) {
        const std::array rows{plain(number), kEnd};
        begin(rows, {}, 0);
        steps.updateTitleText();
        const auto expected = titles.find(number);
        EXPECT_EQ(title(), expected == titles.end() ? "" : expected->second) << number;
        steps.useTables({}, {});
    }
}

TEST(WizardStepsTitles, TheTitlesAreLookedUpOnceAtTheStart) {
    fakes::FakeHost host;
    host.texts.table = {{"Read Me", "Bitte lesen"}};
    struct Nobody final : ec::ActionPerformer {
        ActionResult runSelector(std::string_view) override { return ActionResult::nothing; }
    } nobody;
    ec::WizardOutlets outlets;
    const ec::WizardSession session(host.bundles, host.places);
    ec::WizardSteps steps({.actions = nobody,
                           .outlets = outlets,
                           .session = session,
                           .texts = host.texts,
                           .appearance = host.appearance,
                           .beeper = host.beeper,
                           .rowShown = {}});
    EXPECT_THAT(host.texts.lookedUp,
                ElementsAre("Welcome to Scrivel 21", "Read Me", "End User License Agreement",
                            "Select Components", "Thank you for using Scrivel 21", "Finish",
                            "Uninstall Scrivel 21", "Updating System",
                            "Welcome to Scrivel 21 Update", "Finish", "Penmark for Microsoft Word",
                            "Scrivel Penmark Configuration", "Welcome to Scrivel Penmark",
                            "Finish"));
    host.texts.table.clear();
    static constexpr std::array kRows{plain(4), kEnd};
    steps.useTables(kRows, {});
    steps.nextState();
    EXPECT_EQ(outlets.titleText.text(), "Bitte lesen");
}

// --- What watchers are told

TEST_F(WizardStepsTest, TheEventTellsPageStateTitleOutlineEntryAndIdentity) {
    session.m_mode = 35;
    steps.startState(1);
    host.texts.table = {{"Summary", "Zusammenfassung"}};
    shown.clear();
    steps.skipToState("Go");
    ASSERT_EQ(shown.size(), 1u);
    const ports::RowShown& row = shown.front();
    EXPECT_EQ(row.page, 10);
    EXPECT_EQ(row.state, 3);
    EXPECT_EQ(row.title, "Updating System");
    EXPECT_THAT(row.outline, ElementsAre("Customization", "Updating System", "Zusammenfassung"));
    EXPECT_EQ(row.current, 1);
    EXPECT_EQ(row.identity, "Customizer_Customizer");
}

TEST_F(WizardStepsTest, TheEventOfATerminatorTellsThePageThatStays) {
    begin(kFull, kOutline, 2);
    steps.nextState();
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown.front().page, 8);
    EXPECT_EQ(shown.front().state, 3);
    EXPECT_EQ(shown.front().title, "");
    EXPECT_EQ(shown.front().current, 0);
}

TEST_F(WizardStepsTest, NoRowIsToldBeforeTheFirstPageNorForAJumpNowhere) {
    begin(kFull, {}, 0);
    steps.skipToPrevState();
    steps.skipToState("nowhere");
    EXPECT_THAT(shown, IsEmpty());
}

// --- Modes

struct ModeFacts {
    std::uint32_t launchMode, mode;
    std::string_view identity;
    std::size_t rows, entries;
    bool helpHidden;
};

TEST_F(WizardStepsTest, EachModeHasItsTablesItsIdentityAndItsHelp) {
    for (const ModeFacts& facts : {ModeFacts{0, 0, "", 9, 6, true},
                                   {34, 0, "", 5, 4, true},
                                   {35, 1, "Customizer_Customizer", 7, 3, false},
                                   {34, 1, "Customizer_Customizer", 7, 3, false},
                                   {0, 3, "Customizer_Patcher", 11, 6, false},
                                   {36, 4, "Customizer_SVWeb_Install", 10, 4, false},
                                   {36, 0, "", 9, 6, true}}) {
        session.m_mode = facts.launchMode;
        steps.finish();
        steps.startState(facts.mode);
        EXPECT_EQ(steps.state(), 0);
        EXPECT_FALSE(steps.isFinished());
        EXPECT_EQ(steps.secretIdentity(), facts.identity);
        EXPECT_EQ(outlets.helpBtn.isHidden(), facts.helpHidden);
        EXPECT_EQ(outlets.outlineText.styledText().runs.size(), 2 * facts.entries);
        steps.skipToState("no such label");
        EXPECT_EQ(steps.state(), static_cast<int>(facts.rows));
    }
}

TEST_F(WizardStepsTest, AnUnknownModeBeginsTheTablesThatAreCurrent) {
    steps.startState(4);
    steps.skipToState("Go");
    steps.finish();
    for (const std::uint32_t mode : {2u, 5u, 0xFFFFFFFFu}) {
        steps.startState(mode);
        EXPECT_EQ(steps.state(), 0);
        EXPECT_EQ(steps.secretIdentity(), "Customizer_SVWeb_Install");
        EXPECT_FALSE(outlets.helpBtn.isHidden());
        EXPECT_FALSE(steps.isFinished());
    }
}

TEST_F(WizardStepsTest, AModeBeginsWithoutAskingTheRowThatWasShown) {
    begin(kFull, {}, 1);
    session.m_mode = 34;
    steps.startState(0);
    EXPECT_THAT(events, ElementsAre("draw 1", "row 0 page 1", "installAppLogo"));
}

TEST_F(WizardStepsTest, HasLabelLooksInTheCurrentTable) {
    steps.startState(1);
    EXPECT_TRUE(steps.hasLabel("Go"));
    EXPECT_FALSE(steps.hasLabel("GotWord"));
    steps.startState(0);
    EXPECT_TRUE(steps.hasLabel("GotWord"));
    EXPECT_FALSE(steps.hasLabel("Go"));
}

} // namespace
