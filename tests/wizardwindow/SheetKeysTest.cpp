// The sheets over the wizard by the keyboard: questions, help, the log; and the find bar.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>

#include "tests/wizardwindow/AccessibleWindow.h"
#include "tests/wizardwindow/WizardWindow.h"

namespace {

namespace modes = tests::modes;

constexpr const char* kQuestion =
    "Uninstall will remove all external Scrivel components from your computer.  Are you sure you "
    "want to do this?";

struct WizardSheets : tests::WizardWindow {
    static Deed asking() {
        return [] {
            tabTo("uninstallBtn");
            press(Qt::Key_Space);
        };
    }
    static bool isAsked() { return front() != dialog(); }
    static Deed atPage(int number, WizardSheets& test) {
        return [number, &test] {
            EXPECT_EQ(test.wizard.ecTabView.selected(), number);
            EXPECT_TRUE(front() == dialog());
        };
    }
    std::string answer() const {
        return system.questions.size() == 1 ? system.questions[0].answer : "not asked once";
    }
};

TEST_F(WizardSheets, AQuestionIsAnnouncedWithItsTitleAndItsWords) {
    walk(modes::kCustomize, {asking(),
                             [] {
                                 ASSERT_TRUE(isAsked());
                                 auto* spoken = QAccessible::queryAccessibleInterface(front());
                                 EXPECT_EQ(spoken->role(), QAccessible::Dialog);
                                 EXPECT_EQ(spoken->text(QAccessible::Name), "Scrivel 21 Installer");
                                 EXPECT_EQ(spoken->text(QAccessible::Description), kQuestion);
                                 tests::expectAccessible(*front());
                                 tests::expectTabGoesRound(*front());
                             },
                             key(Qt::Key_Return), key(Qt::Key_Escape)});
}

TEST_F(WizardSheets, ReturnAtAQuestionIsItsDefaultAnswer) {
    walk(modes::kCustomize, {asking(), key(Qt::Key_Return), page(6), key(Qt::Key_Escape)});
    EXPECT_EQ(answer(), "No");
    EXPECT_FALSE(wizard.m_bUninstall);
}

TEST_F(WizardSheets, EscapeAtAQuestionDeclinesAndLeavesTheWizardOpen) {
    walk(modes::kCustomize, {asking(), key(Qt::Key_Escape), [this] {
                                 atPage(6, *this)();
                                 EXPECT_EQ(focusName(), "uninstallBtn")
                                     << "the keyboard is where it was";
                                 press(Qt::Key_Escape);
                             }});
    EXPECT_EQ(answer(), "No");
    EXPECT_FALSE(wizard.m_bUninstall);
}

TEST_F(WizardSheets, TabAndTheSpaceBarAgreeToAQuestion) {
    walk(modes::kCustomize, {asking(),
                             [] {
                                 EXPECT_EQ(focusName(), "defBtn");
                                 press(Qt::Key_Tab);
                                 EXPECT_EQ(focusName(), "altBtn");
                                 press(Qt::Key_Space);
                             },
                             page(11), key(Qt::Key_Return)});
    EXPECT_EQ(answer(), "Yes");
    EXPECT_EQ(system.rows, tests::rowsUnattended(modes::kCustomize, R"({"answers": ["Yes"],
        "steps": [{"press": "uninstallBtn"}, {"press": "nextBtn"}]})"));
}

TEST_F(WizardSheets, PenmarkIsUninstalledByArrowsAndAYes) {
    walk(modes::kPenmark, {[] {
                               tabTo("penmarkInstall");
                               press(Qt::Key_Down);
                               press(Qt::Key_Return);
                           },
                           key(Qt::Key_Escape), page(26), key(Qt::Key_Return),
                           [] {
                               press(Qt::Key_Tab);
                               press(Qt::Key_Space);
                           },
                           page(28), key(Qt::Key_Return)});
    ASSERT_EQ(system.questions.size(), 2u);
    EXPECT_EQ(system.questions[0].answer, "No");
    EXPECT_EQ(system.questions[1].answer, "Yes");
    EXPECT_EQ(system.rows, tests::rowsUnattended(modes::kPenmark, R"({"answers": ["No", "Yes"],
        "steps": [{"select": "matSVWInstall", "row": 1}, {"press": "nextBtn"},
                  {"press": "nextBtn"}, {"press": "nextBtn"}]})"));
}

TEST_F(WizardSheets, HelpOpensAndClosesByKeysAndGivesTheKeyboardBack) {
    walk(modes::kCustomize, {[] {
                                 tabTo("helpBtn");
                                 press(Qt::Key_Space);
                             },
                             [] {
                                 ASSERT_EQ(front()->objectName(), "reader");
                                 tests::expectAccessible(*front());
                                 tests::expectTabGoesRound(*front());
                                 press(Qt::Key_Escape);
                             },
                             [this] {
                                 atPage(6, *this)();
                                 EXPECT_EQ(focusName(), "helpBtn");
                                 press(Qt::Key_Space);
                             },
                             [] {
                                 ASSERT_EQ(front()->objectName(), "reader");
                                 press(Qt::Key_Return); // Close is its default button
                             },
                             atPage(6, *this), key(Qt::Key_Escape)});
}

TEST_F(WizardSheets, TheLogOpensAndClosesByKeys) {
    walk(modes::kCustomize, {key(Qt::Key_Return),
                             [] {
                                 tabTo("logBtn");
                                 press(Qt::Key_Space);
                             },
                             [] {
                                 ASSERT_EQ(front()->objectName(), "reader");
                                 tests::expectAccessible(*front());
                                 tests::expectTabGoesRound(*front());
                                 press(Qt::Key_Escape);
                             },
                             [this] {
                                 atPage(8, *this)();
                                 EXPECT_EQ(focusName(), "logBtn");
                                 press(Qt::Key_Escape);
                             }});
}

struct FindByKeys : WizardSheets {
    static QString found() { return find<QTextBrowser>("readMeText")->textCursor().selectedText(); }
    static int place() { return find<QTextBrowser>("readMeText")->textCursor().position(); }
};

TEST_F(FindByKeys, TheFindKeyOpensTheBarAndEscapeClosesItAlone) {
    walk(modes::kShort,
         {key(Qt::Key_Return),
          [] {
              press(QKeySequence(QKeySequence::Find));
              ASSERT_EQ(focusName(), "findWords");
              type("scrivel");
              EXPECT_EQ(found().toLower(), "scrivel");
          },
          [] {
              tests::expectAccessible(*dialog());
              tests::expectTabGoesRound(*dialog());
              press(QKeySequence(QKeySequence::Find));
              press(Qt::Key_Home);
              press(Qt::Key_Return);
              const int one = place();
              press(Qt::Key_Return);
              const int other = place();
              EXPECT_NE(other, one);
              press(Qt::Key_Return, Qt::ShiftModifier);
              EXPECT_EQ(place(), one);
              press(QKeySequence(QKeySequence::FindNext));
              EXPECT_EQ(place(), other);
              press(Qt::Key_Escape);
          },
          [this] {
              atPage(4, *this)();
              EXPECT_EQ(focusName(), "readMeText");
              EXPECT_FALSE(find("readMeText")->findChild<QWidget*>("findBar")->isVisible());
          },
          page(4), key(Qt::Key_Return), page(7), key(Qt::Key_Return)});
}

TEST_F(FindByKeys, WordsThatAreMissingAreSaid) {
    walk(modes::kShort, {key(Qt::Key_Return),
                         [] {
                             press(QKeySequence(QKeySequence::Find));
                             type("zzz");
                             auto* said = find<QLabel>("notFound");
                             EXPECT_TRUE(said->isVisible());
                             EXPECT_EQ(find("findWords")->accessibleDescription(), said->text());
                             press(Qt::Key_Escape);
                         },
                         key(Qt::Key_Escape)});
}

} // namespace
