// The unattended front end and its driver over the real controller and fake ports: what the built
// program's runs can't bring about.
#include <fstream>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/ComponentList.h"
#include "app/WizardRun.h"
#include "app/unattended/AnswersDriver.h"
#include "app/unattended/Descriptions.h"
#include "app/unattended/Observers.h"
#include "app/unattended/UnattendedFrontEnd.h"
#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using app::Event;
using app::ExitCode;
using app::Scene;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Optional;
using testing::SizeIs;

constexpr const char* kRules = "Café|0|a group\nOne|1|first|inst_File|a\nTwo|1|second\nAlone|0\n";

struct Unattended : testing::Test {
    fakes::FakeHost fakes;
    ports::Host host = fakes.host();
    tests::Components components{kRules};
    ec::ecController wizard{host, components.rules, components.root};
    Scene scene{wizard.outlets, &wizard};
    app::EventStream events{fakes.clock, fakes.mainQueue};
    std::vector<Event> seen;

    Unattended() {
        events.addListener([this](const Event& event) { seen.push_back(event); });
        wizard.attach();
    }
    app::Refusal perform(const app::Step& step) { return performStep(step, scene, events); }
    std::vector<std::int32_t> states() const {
        std::vector<std::int32_t> all;
        for (const auto& component : wizard.components())
            all.push_back(component.state);
        return all;
    }
    std::unique_ptr<app::AnswersDriver> driver(const std::string& answers, bool agree = false) {
        return std::make_unique<app::AnswersDriver>(
            app::AnswersDriver::Needs{.events = events,
                                      .answers = app::AnswersFile::parse(answers, "a.json"),
                                      .agree = agree,
                                      .appsAreRunning = [] { return false; },
                                      .pause = [](auto) { return true; },
                                      .firstButton = "m_button",
                                      .controller = [this] { return &wizard; }});
    }
};

// --- steps

struct TwoRows final : controls::TableDataSource {
    int numberOfRowsInTableView() override { return 2; }
    std::string tableViewObjectValue(std::string_view column, int row) override {
        return std::string(column) + std::to_string(row);
    }
};

TEST_F(Unattended, ARowOfATableIsSelectedAndDeselected) {
    TwoRows rows;
    wizard.acTbl.setDataSource(&rows);
    EXPECT_EQ(perform(app::SelectRowStep{"acTbl", 1}), std::nullopt);
    EXPECT_EQ(wizard.acTbl.selectedRow(), 1);
    EXPECT_EQ(app::describedControls(wizard.outlets)["acTbl"],
              Event({{"kind", "table"},
                     {"rows",
                      {{"wordPath0", "startupPath0", "wordversion0"},
                       {"wordPath1", "startupPath1", "wordversion1"}}},
                     {"selected", 1}}));
    EXPECT_EQ(perform(app::SelectRowStep{"acTbl", -1}), std::nullopt);
    EXPECT_EQ(wizard.acTbl.selectedRow(), -1);
    EXPECT_THAT(perform(app::SelectRowStep{"acTbl", 2}), Optional(HasSubstr("0 to 1")));
    EXPECT_THAT(perform(app::SelectRowStep{"acTbl", -2}), Optional(HasSubstr("no row -2")));
    wizard.acTbl.setEnabled(false);
    EXPECT_THAT(perform(app::SelectRowStep{"acTbl", 0}), Optional(HasSubstr("disabled")));
    wizard.acTbl.setDataSource(nullptr);
}

TEST_F(Unattended, AHiddenMatrixCanNotBeSelectedIn) {
    wizard.agreeBtns.setHidden(true);
    EXPECT_THAT(perform(app::SelectStep{"agreeBtns", 0}), Optional(HasSubstr("hidden")));
    EXPECT_EQ(wizard.agreeBtns.selected(), 1);
}

TEST_F(Unattended, AnUnavailableComponentCanBeNeitherToggledNorSet) {
    components.rules.setInitialItemState(1, ec::ItemState::unavailable);
    for (const std::optional<int> state :
         {std::optional<int>(), std::optional(0), std::optional(1)})
        EXPECT_THAT(perform(app::ComponentStep{"One", state}),
                    Optional(HasSubstr("not available on this computer")));
    EXPECT_THAT(states(), ElementsAre(0, -1, 0, 0));
}

TEST_F(Unattended, AMixedGroupIsSetEitherWay) {
    EXPECT_EQ(perform(app::ComponentStep{"Two", 1}), std::nullopt);
    EXPECT_THAT(states(), ElementsAre(-2, 0, 1, 0));
    EXPECT_EQ(perform(app::ComponentStep{"Café", 1}), std::nullopt);
    EXPECT_THAT(states(), ElementsAre(1, 1, 1, 0));
    EXPECT_EQ(perform(app::ComponentStep{"Café/One", 0}), std::nullopt);
    EXPECT_EQ(perform(app::ComponentStep{"Café", 0}), std::nullopt);
    EXPECT_THAT(states(), ElementsAre(0, 0, 0, 0));
}

TEST_F(Unattended, SetDoesNotClickWhereTheStateIsTheWantedOne) {
    const unsigned generation = wizard.ecOutlineView.generation();
    EXPECT_EQ(perform(app::ComponentStep{"One", 0}), std::nullopt);
    EXPECT_EQ(wizard.ecOutlineView.generation(), generation);
}

TEST_F(Unattended, AWindowThatIsNotTheWizardsHasNoComponentsAndNoActions) {
    controls::Window window;
    controls::MenuItem item;
    controls::Interface outlets{window, {{"m_item", &item}}};
    const Scene other{outlets};
    EXPECT_THAT(performStep(app::ComponentStep{"One", 1}, other, events),
                Optional(HasSubstr("no components")));
    EXPECT_THAT(performStep(app::CallStep{"next"}, other, events),
                Optional(HasSubstr("no actions")));
    bool chosen = false;
    item.setAction([&] { chosen = true; });
    EXPECT_EQ(performStep(app::PressStep{"m_item"}, other, events), std::nullopt);
    EXPECT_TRUE(chosen);
    item.setEnabled(false);
    EXPECT_THAT(performStep(app::PressStep{"m_item"}, other, events),
                Optional(HasSubstr("menu command \"m_item\" can't be used now")));
    EXPECT_EQ(performStep(app::SnapshotStep{"s"}, other, events), std::nullopt);
    EXPECT_EQ(seen.back()["page"], nullptr);
    EXPECT_EQ(seen.back()["state"], nullptr);
    EXPECT_EQ(seen.back()["components"], Event::array());
    EXPECT_EQ(seen.back()["controls"]["m_item"],
              Event({{"kind", "menu"}, {"enabled", false}, {"hidden", false}}));
}

// --- answers and choices

TEST_F(Unattended, AfterTheLastAnswerTheDefaultButtonAnswersOrWithYesTheAgreeingOne) {
    const app::Question question{"?", {"No", "Yes", "Cancel"}};
    const auto declines = driver(R"({"answers": ["Cancel"]})");
    EXPECT_EQ(declines->answer(question), 2u);
    EXPECT_EQ(declines->answer(question), 0u);
    const auto agrees = driver("{}", /*agree=*/true);
    EXPECT_EQ(agrees->answer(question), 1u);
    EXPECT_EQ(agrees->answer({"?", {"OK"}}), 0u);
}

TEST_F(Unattended, ChoosersGetTheirPathsInOrderAndThenCancel) {
    const auto made = driver(R"({"choices": ["/A.app", null, "/B"]})");
    const tests::TemporaryFolder own;
    app::UnattendedFrontEnd front({.driver = *made,
                                   .background = fakes.backgroundQueue,
                                   .resourceFolder = own.path(),
                                   .runPending = [] {},
                                   .waitForWork = [](auto) {}});
    app::ObservedChoosers choosers(front, events);
    using Kind = ports::Chooser::Kind;
    EXPECT_EQ(choosers.choose({Kind::application, "Which?", "", {}}), "/A.app");
    EXPECT_EQ(choosers.choose({Kind::folder, "Where?", "/start", {}}), std::nullopt);
    EXPECT_EQ(choosers.choose({Kind::folder, "Where?", "/start", {}}), "/B");
    EXPECT_EQ(choosers.choose({Kind::folder, "Where?", "/start", {}}), std::nullopt);
    ASSERT_THAT(seen, SizeIs(4));
    seen[0].erase("time");
    EXPECT_EQ(seen[0], Event({{"event", "chooser"},
                              {"kind", "application"},
                              {"title", "Which?"},
                              {"folder", ""},
                              {"answer", "/A.app"}}));
    EXPECT_EQ(seen[1]["kind"], "folder");
    EXPECT_EQ(seen[1]["answer"], nullptr);
}

// --- the pilot

TEST_F(Unattended, APressThatChangesNothingEndsThePilotsRun) {
    wizard.window.orderFront();
    int presses = 0;
    wizard.nextBtn.setAction([&] { ++presses; });
    app::WizardPilot pilot({});
    EXPECT_THAT(pilot.act(wizard), Optional(HasSubstr("can't go on")));
    EXPECT_EQ(presses, 1);
    wizard.nextBtn.setEnabled(false);
    EXPECT_THAT(pilot.act(wizard), Optional(HasSubstr("can't go on")));
    EXPECT_EQ(presses, 1);
}

TEST_F(Unattended, ThePilotDoesNotGoOnForEver) {
    wizard.window.orderFront();
    wizard.nextBtn.setAction(
        [&] { wizard.backBtn.setEnabled(!wizard.backBtn.isEnabled()); }); // always something new
    app::WizardPilot pilot({});
    int turns = 0;
    while (!pilot.act(wizard))
        ASSERT_LT(++turns, 1000);
    EXPECT_GT(turns, 10);
}

// --- interface files

TEST_F(Unattended, AnInterfaceFileMustBeThereWithAllItsOutlets) {
    const tests::TemporaryFolder own;
    const auto made = driver("{}");
    app::UnattendedFrontEnd front({.driver = *made,
                                   .background = fakes.backgroundQueue,
                                   .resourceFolder = own.path(),
                                   .runPending = [] {},
                                   .waitForWork = [](auto) {}});
    controls::Window window;
    controls::Button button;
    controls::Interface outlets{window, {{"button", &button}}};
    const auto loads = [&](const std::string& text) {
        std::ofstream(own.path() + "/Some.ui") << text;
        return front.load("Some", outlets);
    };
    EXPECT_FALSE(front.load("Some", outlets)) << "missing";
    EXPECT_FALSE(loads(""));
    EXPECT_FALSE(loads("no interface file"));
    EXPECT_FALSE(loads(R"(<widget name="buttons"/>)"));
    EXPECT_TRUE(loads(R"(<widget class="QPushButton" name="button"/>)"));
    std::filesystem::remove(own.path() + "/Some.ui");
    std::filesystem::create_directory(own.path() + "/Some.ui");
    EXPECT_FALSE(front.load("Some", outlets)) << "a folder";
}

// --- outcomes

struct Outcomes : Unattended {
    using Result = ec::ComponentOutcome::Result;
    /// A component that was to be removed.
    static ec::ComponentOutcome removal(const char* name, Result result) {
        return {.name = name,
                .mode = ec::OpMode::remove,
                .result = result,
                .reason = ec::OutcomeReason{"“%@” is still there.", "/x"}};
    }
    app::WizardEnding ending;

    ExitCode code() { return app::outcomeOfWizard(wizard, ending).code; }
    std::string reason() { return app::outcomeOfWizard(wizard, ending).reason; }
};

TEST_F(Outcomes, AWizardThatIsNotFinishedWasCancelled) {
    EXPECT_EQ(code(), ExitCode::cancelled);
    wizard.finish();
    EXPECT_EQ(code(), ExitCode::done);
    EXPECT_EQ(app::outcomeOfWizard(wizard, ending).summary, "Nothing was changed.");
}

TEST_F(Outcomes, WhatFailedIsNamedAndRefusedRightsAreTheReasonForIt) {
    wizard.finish();
    wizard.outcomes = {{.name = "One", .mode = ec::OpMode::copy, .result = Result::installed},
                       removal("Two", Result::failed)};
    EXPECT_EQ(code(), ExitCode::failed);
    EXPECT_EQ(reason(), "Two: “/x” is still there. The log tells what the tools said.");
    EXPECT_EQ(app::outcomeOfWizard(wizard, ending).summary,
              "One was installed.\nTwo could not be removed. “/x” is still there.");
    wizard.outcomes.push_back(removal("Three", Result::refused));
    EXPECT_EQ(code(), ExitCode::refused);
    EXPECT_THAT(reason(), HasSubstr("Two: “/x” is still there. Three: "));
    wizard.outcomes = {{.name = "Four", .mode = ec::OpMode::copy}};
    EXPECT_EQ(code(), ExitCode::done) << "what is as it was is no failure";
}

TEST_F(Outcomes, WhereSeveralHoldTheFirstIsGiven) {
    wizard.finish();
    wizard.outcomes = {removal("Two", Result::refused)};
    ending.cancelled = "given up";
    EXPECT_EQ(code(), ExitCode::cancelled);
    EXPECT_EQ(reason(), "given up");
    wizard.ecTabView.select(ec::page::kQuitWord);
    EXPECT_EQ(code(), ExitCode::appsRunning);
    ending.unfollowed = "steps[0]";
    EXPECT_EQ(code(), ExitCode::unfollowed);
}

// --- the list

TEST_F(Unattended, TheTableIsAlignedByCharactersAndNamesEveryState) {
    components.rules.setInitialItemState(1, ec::ItemState::unavailable);
    components.rules.setInitialItemState(2, ec::ItemState::on);
    components.rules.setInitialItemState(0, ec::ItemState::mixed);
    EXPECT_EQ(app::componentTable(wizard), "Café   partly installed\n"
                                           "  One  not available\n"
                                           "  Two  installed\n"
                                           "Alone  not installed");
    const Event array = app::componentArray(wizard, components.rules);
    EXPECT_EQ(array.at(1).dump(), R"({"item":1,"name":"One","group":0,"state":-1,"initial":-1,)"
                                  R"("enabled":false,"description":"first","method":"inst_File"})");
    EXPECT_EQ(array.at(3)["description"], nullptr);
}

} // namespace
