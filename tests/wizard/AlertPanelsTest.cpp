// The wizard's questions: sheets with up to three buttons, and the two choosers.
#include "wizard/AlertPanels.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/FakeHost.h"

namespace {

using ec::ButtonText;
using testing::ElementsAre;
using testing::IsEmpty;

struct AlertPanelsTest : testing::Test {
    fakes::FakeHost host;
    controls::Window window;
    std::vector<ports::QuestionAnswered> answered;
    ec::WizardSession session{host.bundles, host.places};
    ec::AlertPanels panels{{.session = session,
                            .window = window,
                            .interfaceFiles = host.interfaceFiles,
                            .modalLoop = host.modalLoop,
                            .fileChoosers = host.fileChoosers,
                            .systemLog = host.systemLog,
                            .texts = host.texts,
                            .answered = [this](const ports::QuestionAnswered& question) {
                                answered.push_back(question);
                            }}};
    /// What happens at each wait.
    std::deque<std::function<void()>> deeds;

    void SetUp() override {
        host.modalLoop.idle = [this] {
            if (deeds.empty())
                return false;
            const auto deed = std::move(deeds.front());
            deeds.pop_front();
            deed();
            return true;
        };
    }

    std::int32_t ask(const ButtonText& def, const ButtonText& alt = {},
                     const ButtonText& oth = {}) {
        return panels.askUserTitle("A title", "A message", def, alt, oth);
    }
    controls::Button& button(std::string_view outlet) {
        return host.interfaceFiles.control<controls::Button>("ecPanel", outlet);
    }
    controls::Window& sheet() {
        return host.interfaceFiles.interfaces.find("ecPanel")->second->window;
    }
    std::function<void()> press(std::string_view outlet) {
        return [this, outlet] { button(outlet).press(); };
    }
    std::function<void()> closeSheet() {
        return [this] { sheet().performClose(); };
    }
};

TEST_F(AlertPanelsTest, TheDefaultButtonAnswersOneTheAlternateZeroTheOtherMinusOne) {
    deeds = {press("defBtn"), press("altBtn"), press("othBtn")};
    EXPECT_EQ(ask("Yes", "No", "Later"), 1);
    EXPECT_EQ(ask("Yes", "No", "Later"), 0);
    EXPECT_EQ(ask("Yes", "No", "Later"), -1);
    EXPECT_THAT(host.modalLoop.sheets, IsEmpty());
    EXPECT_FALSE(host.modalLoop.isRunning());
}

TEST_F(AlertPanelsTest, TheSheetShowsTitleMessageIconAndButtons) {
    session.m_custResourceDir = "/resources";
    deeds = {[this] {
        const controls::Interface& panel = *host.interfaceFiles.interfaces.find("ecPanel")->second;
        EXPECT_EQ(panel.window.title(), "A title");
        EXPECT_TRUE(panel.window.isVisible());
        EXPECT_THAT(host.modalLoop.sheets, ElementsAre(&panel.window));
        EXPECT_EQ(host.interfaceFiles.control<controls::TextField>("ecPanel", "msgText").text(),
                  "A message");
        const auto& icon = host.interfaceFiles.control<controls::ImageView>("ecPanel", "msgIcon");
        EXPECT_EQ(icon.picture().name, "Customizer.icns");
        EXPECT_EQ(icon.picture().path, "/resources/Customizer.icns");
        for (const auto& [outlet, title] : std::map<std::string_view, std::string>{
                 {"defBtn", "One"}, {"altBtn", "Two"}, {"othBtn", "Three"}}) {
            EXPECT_EQ(button(outlet).title(), title);
            EXPECT_TRUE(button(outlet).isEnabled()) << outlet;
            EXPECT_FALSE(button(outlet).isHidden()) << outlet;
        }
        button("defBtn").press();
    }};
    ask("One", "Two", "Three");
}

TEST_F(AlertPanelsTest, WithoutADefaultTextThereStillIsAnOkButton) {
    host.texts.table = {{"OK", "In Ordnung"}};
    deeds = {[this] {
        EXPECT_EQ(button("defBtn").title(), "In Ordnung");
        EXPECT_TRUE(button("defBtn").isEnabled());
        EXPECT_FALSE(button("defBtn").isHidden());
        button("defBtn").press();
    }};
    EXPECT_EQ(ask(std::nullopt), 1);
    EXPECT_THAT(answered.at(0).buttons, ElementsAre("In Ordnung"));
}

TEST_F(AlertPanelsTest, ButtonsWithoutATextAreDisabledAndHiddenAndCanNotBePressed) {
    deeds = {[this] {
                 for (const auto* outlet : {"altBtn", "othBtn"}) {
                     EXPECT_FALSE(button(outlet).isEnabled()) << outlet;
                     EXPECT_TRUE(button(outlet).isHidden()) << outlet;
                     button(outlet).press();
                 }
                 EXPECT_TRUE(sheet().isVisible());
             },
             press("defBtn")};
    EXPECT_EQ(ask("Fine"), 1);
}

TEST_F(AlertPanelsTest, AnEmptyTextIsATextAndNotNone) {
    deeds = {[this] {
        EXPECT_EQ(button("defBtn").title(), "");
        EXPECT_FALSE(button("altBtn").isHidden());
        button("altBtn").press();
    }};
    EXPECT_EQ(ask("", ""), 0);
}

TEST_F(AlertPanelsTest, WithoutItsInterfaceFileAQuestionAnswersOneAndShowsNothing) {
    host.interfaceFiles.missing.insert("ecPanel");
    EXPECT_EQ(ask("No", "Yes"), 1);
    EXPECT_THAT(host.systemLog.lines, ElementsAre("Load of ecPanal.NIB failed"));
    EXPECT_THAT(host.modalLoop.sheets, IsEmpty());
    EXPECT_THAT(answered, IsEmpty()) << "nobody was asked";
}

TEST_F(AlertPanelsTest, EachQuestionLoadsItsOwnPanel) {
    deeds = {press("altBtn"), press("defBtn")};
    ask("a", "b");
    ask("c");
    EXPECT_THAT(host.interfaceFiles.loaded, ElementsAre("ecPanel", "ecPanel"));
}

// --- Escape, closing

TEST_F(AlertPanelsTest, ClosingTheSheetAnswersWithTheButtonThatDeclines) {
    deeds = {closeSheet(), closeSheet(), closeSheet(), closeSheet(), closeSheet()};
    EXPECT_EQ(ask("No", "Yes"), 1);
    EXPECT_EQ(ask("Yes", "No"), 0);
    EXPECT_EQ(ask("Yes", "Later", "Cancel"), -1);
    EXPECT_EQ(ask("No", "Cancel"), 0) << "Cancel declines more surely than No";
    EXPECT_EQ(ask("Go", "Stop", "Wait"), 1) << "no button declines";
    EXPECT_THAT(host.modalLoop.sheets, IsEmpty());
    EXPECT_FALSE(host.modalLoop.isRunning());
}

TEST_F(AlertPanelsTest, WhatDeclinesIsKnownInTheUsersLanguage) {
    host.texts.table = {{"No", "Nein"}, {"Cancel", "Abbrechen"}};
    deeds = {closeSheet(), closeSheet()};
    EXPECT_EQ(ask("Ja", "Nein"), 0);
    EXPECT_EQ(ask("Ja", "Nein", "Abbrechen"), -1);
}

TEST_F(AlertPanelsTest, AHiddenButtonDeclinesNothing) {
    deeds = {closeSheet()};
    EXPECT_EQ(ask("Fine", std::nullopt, std::nullopt), 1);
}

TEST_F(AlertPanelsTest, WhenTheProgramEndsAQuestionIsDeclined) {
    deeds = {[this] { host.modalLoop.terminate(); }, [this] { host.modalLoop.terminate(); }};
    EXPECT_EQ(ask("Yes", "No"), 0);
    EXPECT_THAT(host.modalLoop.sheets, IsEmpty());
    EXPECT_FALSE(host.modalLoop.isRunning());
    EXPECT_EQ(ask("No", "Yes"), 1) << "also one that is asked later";
    EXPECT_EQ(answered.size(), 2u);
}

TEST_F(AlertPanelsTest, APressWhileTheProgramEndsStillCounts) {
    deeds = {[this] {
        button("altBtn").press();
        host.modalLoop.terminate();
    }};
    EXPECT_EQ(ask("No", "Yes"), 0);
}

// --- Several at once

TEST_F(AlertPanelsTest, AQuestionAskedWhileAnotherHangsIsAnsweredFirst) {
    std::int32_t inner = 9;
    controls::Button* outerDefault = nullptr;
    deeds = {[&] {
                 outerDefault = &button("defBtn");
                 inner = ask("inner", "b");
             },
             press("altBtn"), [&] { outerDefault->press(); }};
    EXPECT_EQ(ask("outer"), 1);
    EXPECT_EQ(inner, 0);
    ASSERT_EQ(answered.size(), 2u);
    EXPECT_EQ(answered[0].answer, "b");
    EXPECT_EQ(answered[1].answer, "outer");
}

TEST_F(AlertPanelsTest, AnsweringTheOuterQuestionLeavesTheInnerOneToBeAnswered) {
    std::int32_t inner = 9;
    controls::Button* outerOther = nullptr;
    deeds = {[&] {
                 outerOther = &button("othBtn");
                 inner = ask("inner", "b");
             },
             [&] {
                 outerOther->press();
                 EXPECT_TRUE(sheet().isVisible());
             },
             press("altBtn")};
    EXPECT_EQ(ask("outer", "y", "z"), -1);
    EXPECT_EQ(inner, 0);
    EXPECT_THAT(deeds, IsEmpty());
    EXPECT_FALSE(host.modalLoop.isRunning());
}

TEST_F(AlertPanelsTest, AStopThatIsMeantForAnotherSessionLeavesTheQuestionHanging) {
    deeds = {[this] { host.modalLoop.stopModalWithCode(7); },
             [this] {
                 EXPECT_TRUE(sheet().isVisible());
                 EXPECT_THAT(answered, IsEmpty());
                 button("altBtn").press();
             }};
    EXPECT_EQ(ask("No", "Yes"), 0);
    EXPECT_FALSE(host.modalLoop.isRunning());
}

// --- Events

TEST_F(AlertPanelsTest, WatchersAreToldTheQuestionItsButtonsAndTheAnswer) {
    deeds = {press("othBtn"), press("defBtn")};
    ask("a", std::nullopt, "c");
    ask(std::nullopt, std::nullopt, std::nullopt);
    ASSERT_EQ(answered.size(), 2u);
    EXPECT_EQ(answered[0].title, "A title");
    EXPECT_EQ(answered[0].message, "A message");
    EXPECT_THAT(answered[0].buttons, ElementsAre("a", "c"));
    EXPECT_EQ(answered[0].answer, "c");
    EXPECT_EQ(answered[0].code, -1);
    EXPECT_THAT(answered[1].buttons, ElementsAre("OK"));
    EXPECT_EQ(answered[1].answer, "OK");
    EXPECT_EQ(answered[1].code, 1);
}

TEST_F(AlertPanelsTest, TheSheetIsGoneWhenWatchersAreTold) {
    bool told = false;
    ec::AlertPanels others({.session = session,
                            .window = window,
                            .interfaceFiles = host.interfaceFiles,
                            .modalLoop = host.modalLoop,
                            .fileChoosers = host.fileChoosers,
                            .systemLog = host.systemLog,
                            .texts = host.texts,
                            .answered = [&](const ports::QuestionAnswered&) {
                                told = true;
                                EXPECT_THAT(host.modalLoop.sheets, IsEmpty());
                                EXPECT_FALSE(host.modalLoop.isRunning());
                            }});
    deeds = {press("defBtn")};
    others.askUserTitle("", "", std::nullopt, std::nullopt, std::nullopt);
    EXPECT_TRUE(told);
}

TEST_F(AlertPanelsTest, WithoutWatchersQuestionsAreAskedAllTheSame) {
    ec::AlertPanels others({.session = session,
                            .window = window,
                            .interfaceFiles = host.interfaceFiles,
                            .modalLoop = host.modalLoop,
                            .fileChoosers = host.fileChoosers,
                            .systemLog = host.systemLog,
                            .texts = host.texts,
                            .answered = {}});
    deeds = {press("altBtn")};
    EXPECT_EQ(others.askUserTitle("", "", "a", "b", std::nullopt), 0);
}

// --- The panel alone

struct PanelControllerTest : testing::Test {
    fakes::FakeHost host;
    ec::ecPanelController panel{{.interfaceFiles = host.interfaceFiles,
                                 .modalLoop = host.modalLoop,
                                 .systemLog = host.systemLog,
                                 .texts = host.texts,
                                 .resourceFolder = "/resources"}};
};

TEST_F(PanelControllerTest, AwakeningResetsTheThreeButtons) {
    panel.setDefBtnText("a");
    panel.setAltBtnText("b");
    panel.setOthBtnText("c");
    panel.awakeFromNib();
    EXPECT_EQ(panel.defBtn.title(), "OK");
    EXPECT_TRUE(panel.defBtn.isEnabled());
    EXPECT_FALSE(panel.defBtn.isHidden());
    for (const controls::Button* button : {&panel.altBtn, &panel.othBtn}) {
        EXPECT_FALSE(button->isEnabled());
        EXPECT_TRUE(button->isHidden());
    }
}

TEST_F(PanelControllerTest, AButtonThatGetsATextAgainIsBack) {
    panel.awakeFromNib();
    panel.setAltBtnText("again");
    EXPECT_TRUE(panel.altBtn.isEnabled());
    EXPECT_FALSE(panel.altBtn.isHidden());
    EXPECT_EQ(panel.altBtn.title(), "again");
}

TEST_F(PanelControllerTest, TheResultCodeIsReadAndWrittenAndTheButtonsStoreTheirs) {
    panel.setResultCode(42);
    EXPECT_EQ(panel.resultCode(), 42);
    panel.doAltBtn();
    EXPECT_EQ(panel.resultCode(), 0);
    panel.doOthBtn();
    EXPECT_EQ(panel.resultCode(), -1);
    panel.doDefBtn();
    EXPECT_EQ(panel.resultCode(), 1);
}

TEST_F(PanelControllerTest, DoneEndsTheSheetAndStopsTheInnermostSession) {
    controls::Window parent;
    bool wasShown = false;
    host.modalLoop.idle = [&] {
        wasShown = panel.wasShown();
        panel.setResultCode(5);
        panel.done();
        return true;
    };
    EXPECT_FALSE(panel.wasShown());
    EXPECT_EQ(panel.showSheetOnWindow(parent, "t", "m", std::nullopt, std::nullopt, std::nullopt),
              5);
    EXPECT_TRUE(wasShown);
    EXPECT_THAT(host.modalLoop.sheets, IsEmpty());
}

TEST_F(PanelControllerTest, DoneWithoutASessionIsHarmless) {
    panel.done();
    EXPECT_FALSE(host.modalLoop.isRunning());
}

// --- Choosers

TEST_F(AlertPanelsTest, AnApplicationIsChosenAmongTheTypesAppAndAPPL) {
    host.fileChoosers.answers = {"/Applications/Word.app"};
    EXPECT_EQ(panels.askUserForApp("ignored", "Where is Word?"), "/Applications/Word.app");
    ASSERT_EQ(host.fileChoosers.asked.size(), 1u);
    const ports::Chooser& asked = host.fileChoosers.asked[0];
    EXPECT_EQ(asked.kind, ports::Chooser::Kind::application);
    EXPECT_EQ(asked.title, "Where is Word?");
    EXPECT_EQ(asked.folder, "");
    EXPECT_THAT(asked.types, ElementsAre("app", "APPL"));
}

TEST_F(AlertPanelsTest, AFolderIsChosenStartingInTheOneGiven) {
    host.fileChoosers.answers = {"/Users/someone/Startup"};
    EXPECT_EQ(panels.askUserForDir("/Users/someone", "Where to?"), "/Users/someone/Startup");
    const ports::Chooser& asked = host.fileChoosers.asked.at(0);
    EXPECT_EQ(asked.kind, ports::Chooser::Kind::folder);
    EXPECT_EQ(asked.title, "Where to?");
    EXPECT_EQ(asked.folder, "/Users/someone");
    EXPECT_THAT(asked.types, IsEmpty());
}

TEST_F(AlertPanelsTest, ACancelledChooserAnswersNothing) {
    EXPECT_EQ(panels.askUserForApp(std::nullopt, "?"), std::nullopt);
    EXPECT_EQ(panels.askUserForDir("/", "?"), std::nullopt);
}

} // namespace
