// The page of the alternate locations in the wizard: the way there and back. What its buttons do is
// AlternateLocationsTest's.
#include <gmock/gmock.h>

#include "tests/wizard/WizardStage.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

const std::string kComponents = "6 Select Components: (Back) Next Cancel";

struct LocationsPageTest : tests::WizardStage, testing::Test {
    Deed locations() {
        return [this] { controller.locationsBtn.press(); };
    }
    Deed done() {
        return [this] { controller.acDoneBtn.press(); };
    }
    Deed call(const char* action) {
        return [this, action] { (void)controller.runSelector(action); };
    }
    /// Which of the buttons of the window and of the two pages are hidden.
    std::string hidden() const {
        std::string all;
        for (const auto& [name, button] : {std::pair("back ", &controller.backBtn),
                                           {"next ", &controller.nextBtn},
                                           {"cancel ", &controller.cancelBtn},
                                           {"uninstall ", &controller.uninstallBtn}})
            all += button->isHidden() ? name : "";
        return all;
    }
    Deed expectHidden(std::string expected) {
        return [this, expected = std::move(expected)] { EXPECT_EQ(hidden(), expected); };
    }
};

TEST_F(LocationsPageTest, TheButtonLeadsThereAndDoneLeadsBackWithTheButtonsAsTheyWere) {
    show(35, {locations(), expectHidden("back next uninstall "), done(), expectHidden(""), next(),
              next()});
    EXPECT_EQ(looks[0], kComponents);
    EXPECT_EQ(looks[1], "25 Scrivel Penmark Configuration: (Back) Next Cancel");
    EXPECT_EQ(looks[3], kComponents);
    EXPECT_EQ(looks.back(), "8 Finish: (Back) Done (Cancel)") << "it goes on from there";
}

TEST_F(LocationsPageTest, BackIsAsItWasWhereThereIsAWayBack) {
    show(0, {next(), next(), [this] { controller.agreeBtns.press(0); }, next(), locations(), done(),
             cancel()});
    EXPECT_EQ(looks[4], "6 Select Components: Back Next Cancel");
    EXPECT_EQ(looks[6], looks[4]);
    EXPECT_EQ(hidden(), "uninstall ") << "in this mode it is never in sight";
}

TEST_F(LocationsPageTest, ComingAndGoingIsToldWithThePagesTitle) {
    show(35, {locations(), done(), cancel()});
    ASSERT_GE(rows.size(), 2u);
    const ports::RowShown& there = rows[rows.size() - 2];
    const ports::RowShown& back = rows.back();
    EXPECT_EQ(there.page, 25);
    EXPECT_EQ(there.title, "Scrivel Penmark Configuration");
    EXPECT_EQ(back.page, 6);
    EXPECT_EQ(back.title, "Select Components");
    EXPECT_EQ(there.state, back.state);
    EXPECT_EQ(there.current, back.current);
    EXPECT_EQ(currentName(), "Customization");
}

TEST_F(LocationsPageTest, TheTableShowsItsRowsOnEntering) {
    struct Watcher final : controls::Control::Observer {
        void controlChanged(controls::Control&) override { ++reloads; }
        int reloads = 0;
    } watcher;
    controller.acTbl.addObserver(watcher);
    show(35, {locations(), done(), locations(), cancel()});
    controller.acTbl.removeObserver(watcher);
    EXPECT_EQ(watcher.reloads, 2);
}

TEST_F(LocationsPageTest, CancelAndClosingTheWindowCancelTheWizardFromThere) {
    for (const Deed& leaving : {cancel(), closeWindow()}) {
        show(35, {locations(), leaving});
        EXPECT_FALSE(controller.window.isVisible());
        EXPECT_EQ(host.logged().back(), "Scrivel 21 Installer: User Cancelled");
        EXPECT_EQ(hidden(), "");
        EXPECT_EQ(controller.ecTabView.selected(), 6);
    }
    EXPECT_EQ(timesLogged("Scrivel 21 Installer: User Cancelled"), 2);
}

TEST_F(LocationsPageTest, AWizardThatWasLeftThereBeginsAnew) {
    show(36, {next(), locations(), [this] { controller.window.orderOut(); }});
    EXPECT_EQ(controller.ecTabView.selected(), 25);
    looks.clear();
    show(35, {expectHidden(""), cancel()});
    EXPECT_EQ(looks.front(), kComponents);
}

TEST_F(LocationsPageTest, ElsewhereTheButtonsDoNothing) {
    show(0, {locations(), done(), call("showWordLocations"), call("hideWordLocations"), cancel()});
    EXPECT_THAT(pages(), Not(Contains(25)));
    EXPECT_EQ(looks.back(), looks.front());
}

TEST_F(LocationsPageTest, TheButtonIsDisabledOnceTheUninstallationWasConfirmed) {
    show(35,
         {uninstall(), answer("Yes"), [this] { EXPECT_FALSE(controller.locationsBtn.isEnabled()); },
          [this] { controller.window.orderOut(); }});
    show(35, {[this] { EXPECT_TRUE(controller.locationsBtn.isEnabled()); }, cancel()});
}

TEST_F(LocationsPageTest, StepsByNameLeaveThePageWithTheButtonsInSight) {
    for (const char* action : {"nextState", "next", "back", "skipToNextState"}) {
        show(35, {locations(), call(action), [this] {
                      EXPECT_FALSE(controller.nextBtn.isHidden());
                      EXPECT_FALSE(controller.backBtn.isHidden());
                      controller.window.orderOut();
                  }});
    }
}

TEST_F(LocationsPageTest, WhileWordRunsNextByNameAsksToQuitItWithRetryInSight) {
    show(35, {locations(),
              [this] {
                  host.applications.running.insert("com.microsoft.Word");
                  controller.next();
                  EXPECT_EQ(controller.ecTabView.selected(), 12);
                  EXPECT_EQ(hidden(), "");
                  EXPECT_EQ(controller.nextBtn.title(), "Retry");
              },
              cancel()});
}

TEST_F(LocationsPageTest, NoRowOfTheStepsLeadsThereAsIsWanted) {
    show(36, {call("doGoCustom"), call("skipToAltPMRK"), cancel()});
    EXPECT_THAT(pages(), Not(Contains(25)));
}

} // namespace
