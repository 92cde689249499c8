// Each mode worked with the mouse: it shows the pages that the run without a window goes through.
#include <gtest/gtest.h>

#include "tests/wizardwindow/WizardWindow.h"

namespace {

using tests::WizardMode;
namespace modes = tests::modes;

struct WizardButtons : tests::WizardWindow {
    void expectClicksToLeadThrough(const WizardMode& mode, const std::vector<const char*>& clicks,
                                   const std::string& answers = "{}") {
        std::deque<Deed> deeds;
        for (const char* name : clicks)
            deeds.push_back(clicking(name));
        walk(mode, deeds);
        EXPECT_GT(system.rows.size(), 2u);
        EXPECT_EQ(system.rows, tests::rowsUnattended(mode, answers));
    }
};

TEST_F(WizardButtons, LeadThroughTheFullInstall) {
    expectClicksToLeadThrough(modes::kFull,
                              {"nextBtn", "nextBtn", "agreeBtn", "nextBtn", "nextBtn", "nextBtn"});
}

TEST_F(WizardButtons, LeadThroughTheShortInstall) {
    expectClicksToLeadThrough(modes::kShort, {"nextBtn", "nextBtn", "nextBtn"});
}

TEST_F(WizardButtons, LeadThroughTheCustomizer) {
    expectClicksToLeadThrough(modes::kCustomize, {"nextBtn", "nextBtn"});
}

TEST_F(WizardButtons, LeadThroughPenmark) {
    expectClicksToLeadThrough(modes::kPenmark, {"nextBtn", "nextBtn", "nextBtn"});
}

TEST_F(WizardButtons, LeadThroughTheUpdate) {
    expectClicksToLeadThrough(modes::kUpdate, {"nextBtn", "nextBtn", "nextBtn"});
}

TEST_F(WizardButtons, LeadBackAndOnAgain) {
    expectClicksToLeadThrough(modes::kShort,
                              {"nextBtn", "backBtn", "nextBtn", "nextBtn", "nextBtn"},
                              R"({"steps": [{"press": "nextBtn"}, {"press": "backBtn"},
            {"press": "nextBtn"}, {"press": "nextBtn"}, {"press": "nextBtn"}]})");
}

TEST_F(WizardButtons, UninstallEverythingAfterAYes) {
    expectClicksToLeadThrough(modes::kCustomize, {"uninstallBtn", "altBtn", "nextBtn"},
                              R"({"answers": ["Yes"], "steps": [{"press": "uninstallBtn"},
            {"press": "nextBtn"}]})");
}

TEST_F(WizardButtons, UninstallPenmarkAfterANoAndAYes) {
    expectClicksToLeadThrough(
        modes::kPenmark, {"penmarkUninstall", "nextBtn", "defBtn", "nextBtn", "altBtn", "nextBtn"},
        R"({"answers": ["No", "Yes"], "steps": [{"select": "matSVWInstall", "row": 1},
            {"press": "nextBtn"}, {"press": "nextBtn"}, {"press": "nextBtn"}]})");
}

TEST_F(WizardButtons, OfTheWindowAreOutOfReachBelowAQuestion) {
    walk(modes::kCustomize, {clicking("uninstallBtn"),
                             [] {
                                 QWidget* next = dialog()->findChild<QWidget*>("nextBtn");
                                 ASSERT_NE(next, nullptr);
                                 clickAt(*next);
                             },
                             [this] {
                                 EXPECT_EQ(wizard.ecTabView.selected(), 6);
                                 EXPECT_TRUE(front() != dialog()) << "the question is still there";
                                 click("defBtn");
                             },
                             clicking("cancelBtn")});
}

} // namespace
