// The page on which the user chooses the level of Services and Spotlight: whether it is needed.
#include "engine/SpotlightServices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"

namespace {

using ec::ActionResult;
using testing::ElementsAre;
using testing::IsEmpty;

struct LevelPageTest : testing::Test {
    static constexpr std::uint32_t kWord = 1, kSpotlight = 2, kServices = 3;

    fakes::FakeHost host;
    tests::Components components{"Group|0|\n"
                                 "Word|1|A|inst_Word\n"
                                 "Spotlight|1|B|inst_Spotlight\n"
                                 "Services|1|C|inst_Services\n"
                                 "No method|1|D\n"
                                 "Alike|1|E|inst_Spotlight2\n"
                                 "Alike|1|F|Inst_Services\n"};
    ec::WizardOutlets outlets;
    ec::WizardSession session{host.bundles, host.places};
    struct Recorder final : ec::ActionPerformer {
        explicit Recorder(ec::WizardOutlets& its) : outlets(its) {}
        ActionResult runSelector(std::string_view name) override {
            if (!name.empty())
                events.push_back(std::string(name) +
                                 (outlets.backBtn.isEnabled() ? " with Back" : " without Back"));
            return ActionResult::nothing;
        }
        ec::WizardOutlets& outlets;
        std::vector<std::string> events;
    } recorder{outlets};
    ec::WizardSteps steps{{.actions = recorder,
                           .outlets = outlets,
                           .session = session,
                           .texts = host.texts,
                           .appearance = host.appearance,
                           .beeper = host.beeper,
                           .rowShown = {}}};
    ec::InstallLog log{{.places = host.places,
                        .clock = host.clock,
                        .streams = host.streams,
                        .texts = host.texts,
                        .processingText = outlets.processingText,
                        .written = {}}};
    ec::CommandRunner runner{{.log = log,
                              .session = session,
                              .tools = host.tools,
                              .administrator = host.administrator,
                              .streams = host.streams}};
    ec::FileOperations files{{.log = log, .runner = runner, .finderFiles = host.finderFiles}};
    ec::SpotlightServices pageOver(const ec::ecRules& rules) {
        return ec::SpotlightServices{{.log = log,
                                      .session = session,
                                      .rules = rules,
                                      .outlets = outlets,
                                      .steps = steps,
                                      .runner = runner,
                                      .files = files,
                                      .bundles = host.bundles}};
    }
    ec::SpotlightServices page = pageOver(components.rules);

    static constexpr std::array<ec::StepRow, 4> kRows{{
        {.page = 6},
        {.page = 13, .leaveAction = "leave"},
        {.page = 10, .enterAction = "enter"},
        {},
    }};

    void SetUp() override {
        steps.useTables(kRows, {});
        steps.skipToNextState();
        steps.skipToNextState();
    }
    /// As the user leaves the components with `state` where the checks found `initial`.
    void setStates(std::uint32_t item, std::int32_t initial, std::int32_t state) {
        components.rules.setInitialItemState(item, initial);
        components.rules.setItemState(item, state);
    }
    /// The controls of the page that are enabled.
    std::vector<std::string> enabled() const {
        std::vector<std::string> names;
        for (const auto* name : {"spotText", "spotBtns", "servText", "servBtns"}) {
            const auto& control = outlets.outlets.find(name)->control;
            if (std::visit([](const auto* its) { return its->isEnabled(); }, control))
                names.emplace_back(name);
        }
        return names;
    }
};

TEST_F(LevelPageTest, WithNothingSelectedThePageIsPassedOverWithoutBack) {
    EXPECT_EQ(page.adjustServSpot(), 0);
    EXPECT_THAT(enabled(), IsEmpty());
    EXPECT_EQ(steps.state(), 2);
    EXPECT_THAT(recorder.events, ElementsAre("leave without Back", "enter with Back"));
}

TEST_F(LevelPageTest, ASpotlightImporterThatWasJustSelectedNeedsThePage) {
    setStates(kSpotlight, 0, 1);
    EXPECT_EQ(page.adjustServSpot(), 0);
    EXPECT_THAT(enabled(), ElementsAre("spotText", "spotBtns"));
    EXPECT_EQ(steps.state(), 1);
    EXPECT_THAT(recorder.events, IsEmpty());
    EXPECT_TRUE(outlets.backBtn.isEnabled());
}

TEST_F(LevelPageTest, ServicesThatWereJustSelectedNeedThePage) {
    setStates(kServices, 0, 1);
    page.adjustServSpot();
    EXPECT_THAT(enabled(), ElementsAre("servText", "servBtns"));
    EXPECT_EQ(steps.state(), 1);
}

TEST_F(LevelPageTest, BothMayBeNeeded) {
    setStates(kSpotlight, 0, 1);
    setStates(kServices, 0, 1);
    page.adjustServSpot();
    EXPECT_THAT(enabled(), ElementsAre("spotText", "spotBtns", "servText", "servBtns"));
}

TEST_F(LevelPageTest, WhatWasInstalledBeforeNeedsNoPage) {
    setStates(kSpotlight, 1, 1);
    setStates(kServices, 1, 1);
    page.adjustServSpot();
    EXPECT_THAT(enabled(), IsEmpty());
    EXPECT_EQ(steps.state(), 2);
    EXPECT_EQ(recorder.events.at(0), "leave without Back");
}

TEST_F(LevelPageTest, OneThatWasInstalledBeforeStaysDisabledBesideOneThatIsNew) {
    setStates(kSpotlight, 1, 1);
    setStates(kServices, 0, 1);
    page.adjustServSpot();
    EXPECT_THAT(enabled(), ElementsAre("servText", "servBtns"));
}

TEST_F(LevelPageTest, OnlyTheStateOneIsSelected) {
    for (const std::int32_t state : {0, -1, -2, 2}) {
        setStates(kSpotlight, 0, state);
        setStates(kServices, 1, state);
        steps.skipToRelativeState(1 - steps.state());
        page.adjustServSpot();
        EXPECT_EQ(steps.state(), 2) << state;
        EXPECT_THAT(enabled(), IsEmpty()) << state;
    }
}

TEST_F(LevelPageTest, EveryInitialStateButOneCountsAsNew) {
    for (const std::int32_t initial : {0, -1, -2, 2}) {
        setStates(kSpotlight, initial, 1);
        steps.skipToRelativeState(1 - steps.state());
        page.adjustServSpot();
        EXPECT_EQ(steps.state(), 1) << initial;
        EXPECT_THAT(enabled(), ElementsAre("spotText", "spotBtns")) << initial;
    }
}

TEST_F(LevelPageTest, OtherMethodsNeedNoPage) {
    for (const std::uint32_t item : {kWord, 4u, 5u, 6u})
        setStates(item, 0, 1);
    page.adjustServSpot();
    EXPECT_EQ(steps.state(), 2);
}

TEST_F(LevelPageTest, TheChoiceStaysAsItShows) {
    outlets.spotBtns.press(1);
    setStates(kSpotlight, 0, 1);
    page.adjustServSpot();
    EXPECT_EQ(outlets.spotBtns.selected(), 1);
    EXPECT_EQ(outlets.servBtns.selected(), 0);
    outlets.servBtns.press(1);
    EXPECT_EQ(outlets.servBtns.selected(), 0) << "it is disabled";
}

TEST_F(LevelPageTest, ComingAgainForgetsWhatWasNeededBefore) {
    setStates(kSpotlight, 0, 1);
    page.adjustServSpot();
    setStates(kSpotlight, 0, 0);
    setStates(kServices, 0, 1);
    page.adjustServSpot();
    EXPECT_THAT(enabled(), ElementsAre("servText", "servBtns"));
}

TEST_F(LevelPageTest, WithoutRulesThePageIsPassedOver) {
    tests::Components none{""};
    ec::SpotlightServices other = pageOver(none.rules);
    EXPECT_EQ(other.adjustServSpot(), 0);
    EXPECT_EQ(steps.state(), 2);
}

} // namespace
