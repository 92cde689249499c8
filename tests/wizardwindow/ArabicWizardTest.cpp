// The wizard in a language that is written from right to left.
#include <gtest/gtest.h>

#include <QTreeView>

#include "tests/wizardwindow/WizardWindow.h"

namespace {

namespace modes = tests::modes;

struct ArabicWizard : tests::WizardWindow {
    ArabicWizard() : WizardWindow("ar") {}
    static int left(const char* name) { return find(name)->mapTo(dialog(), QPoint()).x(); }
};

TEST_F(ArabicWizard, IsMirrored) {
    walk(modes::kCustomize, {[] {
                                 EXPECT_EQ(dialog()->layoutDirection(), Qt::RightToLeft);
                                 EXPECT_GT(left("ecImage"), left("ecTabView"));
                                 EXPECT_GT(left("side"), left("main"));
                                 EXPECT_LT(left("nextBtn"), left("backBtn"));
                                 EXPECT_LT(left("backBtn"), left("cancelBtn"));
                                 EXPECT_LT(left("cancelBtn"), left("helpBtn"));
                                 EXPECT_GT(left("helpBtn"), dialog()->width() / 2);
                                 EXPECT_LT(left("nextBtn"), dialog()->width() / 2);
                             },
                             page(6), key(Qt::Key_Escape)});
}

TEST_F(ArabicWizard, ItsTreeOpensToTheLeftAndClosesToTheRight) {
    walk(modes::kCustomize, {[] {
                                 tabTo("ecOutlineView");
                                 auto* tree = find<QTreeView>("ecOutlineView");
                                 press(Qt::Key_Home);
                                 const QModelIndex group = tree->currentIndex().siblingAtColumn(0);
                                 ASSERT_TRUE(tree->isExpanded(group));
                                 press(Qt::Key_Right);
                                 EXPECT_FALSE(tree->isExpanded(group));
                                 press(Qt::Key_Left);
                                 EXPECT_TRUE(tree->isExpanded(group));
                                 press(Qt::Key_Left);
                                 EXPECT_EQ(tree->currentIndex().parent(), group)
                                     << "to its first member";
                                 press(Qt::Key_Right);
                                 EXPECT_EQ(tree->currentIndex().siblingAtColumn(0), group);
                             },
                             key(Qt::Key_Escape)});
}

TEST_F(ArabicWizard, ArrowsChooseInTheDirectionOfThePage) {
    walk(modes::kPenmark, {page(26),
                           [this] {
                               tabTo("penmarkInstall");
                               press(Qt::Key_Down);
                               EXPECT_EQ(wizard.matSVWInstall.selected(), 1);
                               press(Qt::Key_Up);
                               EXPECT_EQ(wizard.matSVWInstall.selected(), 0);
                           },
                           key(Qt::Key_Escape)});
}

TEST_F(ArabicWizard, AsksWithTheDefaultAnswerAtTheLeft) {
    walk(modes::kCustomize, {clicking("uninstallBtn"),
                             [] {
                                 const QWidget& no = *find("defBtn");
                                 const QWidget& yes = *find("altBtn");
                                 EXPECT_LT(no.mapTo(front(), QPoint()).x(),
                                           yes.mapTo(front(), QPoint()).x());
                                 press(Qt::Key_Escape);
                             },
                             key(Qt::Key_Escape)});
}

TEST_F(ArabicWizard, ShowsTheLocationsWithDoneAtTheLeft) {
    walk(modes::kCustomize, {[] {
                                 tabTo("locationsBtn");
                                 press(Qt::Key_Space);
                             },
                             page(25),
                             [] {
                                 EXPECT_GT(left("acPlus"), left("acMinusBtn"));
                                 EXPECT_GT(left("acResetBtn"), left("acDoneBtn"));
                                 press(Qt::Key_Return);
                             },
                             page(6), key(Qt::Key_Escape)});
}

} // namespace
