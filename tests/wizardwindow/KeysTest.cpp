// Each mode of the wizard from its first page to its last by the keyboard alone; every page that
// waits is looked at on the way.
#include <gmock/gmock.h>

#include <QStackedWidget>
#include <QTextBrowser>
#include <QTreeView>

#include "tests/wizardwindow/AccessibleWindow.h"
#include "tests/wizardwindow/WizardWindow.h"

namespace {

using testing::EndsWith;
using tests::WizardMode;
namespace modes = tests::modes;

constexpr std::uint32_t kGroup = 2, kMember = 3, kSpotlight = 14, kServices = 15;

struct WizardKeys : tests::WizardWindow {
    /// Page after page, each looked at, Return on each.
    void expectReturnsToLeadThrough(const WizardMode& mode, const std::vector<int>& pages) {
        std::deque<Deed> deeds;
        for (const int number : pages) {
            deeds.push_back(page(number));
            deeds.push_back(key(Qt::Key_Return));
        }
        walk(mode, deeds);
        EXPECT_EQ(system.rows, tests::rowsUnattended(mode));
    }
    std::int32_t stateOf(std::uint32_t item) const { return system.rules.getItemState(item); }
    static QString currentRow() {
        return find<QTreeView>("ecOutlineView")
            ->currentIndex()
            .siblingAtColumn(0)
            .data()
            .toString();
    }
    void arrowTo(std::uint32_t item) {
        const auto name = QString::fromUtf8(system.rules.getItemName(item).value());
        for (std::uint32_t i = 0; i < system.rules.count() && currentRow() != name; ++i)
            press(Qt::Key_Down);
        EXPECT_EQ(currentRow(), name);
    }
};

TEST_F(WizardKeys, ReturnLeadsThroughTheShortInstall) {
    expectReturnsToLeadThrough(modes::kShort, {1, 4, 7});
}

TEST_F(WizardKeys, ReturnLeadsThroughTheCustomizer) {
    expectReturnsToLeadThrough(modes::kCustomize, {6, 8});
}

TEST_F(WizardKeys, ReturnLeadsThroughPenmark) {
    expectReturnsToLeadThrough(modes::kPenmark, {26, 6, 27});
}

TEST_F(WizardKeys, ReturnLeadsThroughTheUpdate) {
    expectReturnsToLeadThrough(modes::kUpdate, {14, 4, 18});
}

TEST_F(WizardKeys, AnArrowAgreesToTheLicence) {
    const auto result =
        walk(modes::kFull, {page(1), key(Qt::Key_Return), page(4), key(Qt::Key_Return), page(5),
                            [] { tabTo("disagreeBtn"); },
                            [this] {
                                press(Qt::Key_Return);
                                EXPECT_EQ(wizard.ecTabView.selected(), 5) << "Next is disabled";
                                press(Qt::Key_Left);
                                EXPECT_EQ(focusName(), "agreeBtn");
                                EXPECT_TRUE(wizard.agreeBtns.isOn(0));
                                EXPECT_TRUE(wizard.nextBtn.isEnabled());
                                press(Qt::Key_Right);
                                EXPECT_FALSE(wizard.nextBtn.isEnabled());
                                press(Qt::Key_Left);
                            },
                            page(5), key(Qt::Key_Return), page(6), key(Qt::Key_Return), page(7),
                            key(Qt::Key_Return)});
    EXPECT_EQ(result, ec::result::kExited);
    EXPECT_EQ(system.rows, tests::rowsUnattended(modes::kFull));
}

TEST_F(WizardKeys, ArrowsAndTheSpaceBarSetTheComponents) {
    walk(modes::kCustomize,
         {[] { tabTo("ecOutlineView"); },
          [this] {
              arrowTo(kMember);
              EXPECT_EQ(wizard.infoText.text(), "Import filters for chemistry");
              press(Qt::Key_Space);
              EXPECT_EQ(stateOf(kMember), 1);
              EXPECT_EQ(stateOf(kGroup), ec::ItemState::mixed);
              press(Qt::Key_Space);
              EXPECT_EQ(stateOf(kMember), 0);
              press(Qt::Key_Left); // to its group, which the next one closes
              EXPECT_EQ(currentRow(), "Content categories");
              const QModelIndex group = find<QTreeView>("ecOutlineView")->currentIndex();
              press(Qt::Key_Left);
              EXPECT_FALSE(find<QTreeView>("ecOutlineView")->isExpanded(group.siblingAtColumn(0)));
              press(Qt::Key_Right);
              EXPECT_TRUE(find<QTreeView>("ecOutlineView")->isExpanded(group.siblingAtColumn(0)));
              press(Qt::Key_Space);
              EXPECT_EQ(stateOf(kMember), 1) << "with its group";
              press(Qt::Key_Space);
              EXPECT_EQ(stateOf(kMember), 0);
          },
          [this] {
              arrowTo(kSpotlight);
              press(Qt::Key_Space);
              arrowTo(kServices);
              press(Qt::Key_Space);
              press(Qt::Key_Return);
          },
          page(13), [] { tabTo("spotForMe"); },
          [this] {
              press(Qt::Key_Down);
              EXPECT_EQ(wizard.spotBtns.selected(), 1);
              EXPECT_EQ(wizard.servBtns.selected(), 0);
              press(Qt::Key_Tab);
              EXPECT_EQ(focusName(), "servForMe");
              press(Qt::Key_Down);
              EXPECT_EQ(wizard.servBtns.selected(), 1);
          },
          page(13), key(Qt::Key_Return), page(8), key(Qt::Key_Return)});
    EXPECT_EQ(system.rows, tests::rowsUnattended(modes::kCustomize, R"({"steps": [
        {"set": "Spotlight importer", "state": 1}, {"set": "Services", "state": 1},
        {"press": "nextBtn"}, {"select": "spotBtns", "row": 1}, {"select": "servBtns", "row": 1},
        {"press": "nextBtn"}, {"press": "nextBtn"}]})"));
}

TEST_F(WizardKeys, BackIsReachedByTabAndPressedByTheSpaceBar) {
    walk(modes::kShort, {key(Qt::Key_Return), [] { tabTo("backBtn"); }, key(Qt::Key_Space), page(1),
                         key(Qt::Key_Return), key(Qt::Key_Escape)});
    EXPECT_THAT(system.fakes.logged().back(), EndsWith("User Cancelled"));
}

TEST_F(WizardKeys, ReturnIsTheDefaultButtonAlsoWhereAnotherOneHasTheKeyboardAsIsWanted) {
    walk(modes::kShort, {key(Qt::Key_Return), [] { tabTo("backBtn"); }, key(Qt::Key_Return),
                         page(7), key(Qt::Key_Return)});
    EXPECT_TRUE(wizard.isFinished());
}

TEST_F(WizardKeys, EscapeCancels) {
    for (const WizardMode* mode : {&modes::kCustomize, &modes::kPenmark, &modes::kUpdate}) {
        walk(*mode, {key(Qt::Key_Escape)});
        EXPECT_FALSE(wizard.isFinished()) << mode->name;
        EXPECT_THAT(system.fakes.logged().back(), EndsWith("User Cancelled")) << mode->name;
    }
}

TEST_F(WizardKeys, EscapeOnTheLastPageIsDone) {
    walk(modes::kCustomize, {key(Qt::Key_Return), page(8), key(Qt::Key_Escape)});
    EXPECT_TRUE(wizard.isFinished());
}

TEST_F(WizardKeys, TheKeyThatClosesWindowsCancels) {
    walk(modes::kPenmark, {[] { press(QKeySequence(QKeySequence::Close)); }});
    EXPECT_THAT(system.fakes.logged().back(), EndsWith("User Cancelled"));
}

TEST_F(WizardKeys, WhileWordRunsReturnLooksAgain) {
    walk(modes::kCustomize,
         {[this] {
              system.fakes.applications.running.insert("com.microsoft.Word");
              press(Qt::Key_Return);
          },
          page(ec::page::kQuitWord), key(Qt::Key_Return), page(ec::page::kQuitWord),
          [this] {
              system.fakes.applications.running.clear();
              press(Qt::Key_Return);
          },
          page(8), key(Qt::Key_Return)});
}

TEST_F(WizardKeys, EveryPageWithContentsIsInOrderAlsoThoseThatNoModeLeadsTo) {
    std::deque<Deed> deeds;
    for (int number = 0; number < ec::page::kCount; ++number)
        deeds.push_back([this, number] {
            wizard.ecTabView.select(number);
            wizard.enableButtons();
            wizard.nextBtn.setEnabled(true);
            wizard.logBtn.setHidden(false);
            wizard.patchFound.setText("/Applications/Scrivel 21");
            page(number)();
        });
    deeds.push_back(key(Qt::Key_Escape));
    walk(modes::kCustomize, deeds);
}

TEST_F(WizardKeys, TheKeyboardBeginsAtTheComponents) {
    walk(modes::kCustomize, {[] {
             EXPECT_EQ(focusName(), "ecOutlineView");
             press(Qt::Key_Escape);
         }});
}

TEST_F(WizardKeys, TheKeyboardBeginsAtTheChoiceOfPenmark) {
    walk(modes::kPenmark, {[] {
             EXPECT_EQ(focusName(), "penmarkInstall");
             press(Qt::Key_Escape);
         }});
}

TEST_F(WizardKeys, TheKeyboardStaysOnThePageThatIsInSight) {
    walk(modes::kPenmark, {[] { tabTo("penmarkInstall"); }, key(Qt::Key_Return),
                           [] {
                               EXPECT_EQ(focusName(), "ecOutlineView");
                               tabTo("backBtn");
                               press(Qt::Key_Space);
                           },
                           [] {
                               EXPECT_NE(focus(), nullptr);
                               EXPECT_TRUE(focus()->isVisible() && focus()->isEnabled());
                               press(Qt::Key_Escape);
                           }});
}

} // namespace
