#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>

#include "tests/ui/Stage.h"
#include "ui/SheetDialog.h"

using ports::AlertSheets;
using stage::dialogOnScreen;
using stage::front;
using stage::sheetOnScreen;
using testing::ElementsAre;

namespace {

struct SheetsOnAWindow : testing::Test {
    void SetUp() override {
        ASSERT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets));
        models.window.orderFront();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialogOnScreen()));
    }
    void ask(const ports::Alert& alert) {
        front().frontEnd.alertSheets().beginSheet(alert, models.window,
                                                  [this](int code) { codes.push_back(code); });
        ASSERT_NE(sheetOnScreen(), nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(sheetOnScreen()));
    }
    /// As the user's mouse does it, so that what is modal counts.
    static void click(QWidget& window, const QString& title) {
        for (QPushButton* button : window.findChildren<QPushButton*>())
            if (button->text() == title)
                return QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                                         button->mapTo(&window, button->rect().center()));
        FAIL() << "no button " << title.toStdString();
    }
    [[nodiscard]] bool waitForAnswer() {
        return stage::waitUntil([this] { return !codes.empty(); });
    }

    stage::InstallerModels models;
    std::vector<int> codes;
    const ports::Alert question{
        .message = "Really?", .informative = "Think of it.", .buttons = {"No", "Yes", "Later"}};
};

} // namespace

TEST_F(SheetsOnAWindow, AnswerWithTheCodeOfTheButton) {
    ask(question);
    click(*sheetOnScreen(), "No");
    ASSERT_TRUE(waitForAnswer());
    ask(question);
    click(*sheetOnScreen(), "Later");
    ASSERT_TRUE(stage::waitUntil([this] { return codes.size() == 2; }));
    EXPECT_THAT(codes, ElementsAre(AlertSheets::kFirstButton, AlertSheets::kFirstButton + 2));
}

TEST_F(SheetsOnAWindow, AnswerReturnWithTheFirstButton) {
    ask(question);
    QTest::keyClick(sheetOnScreen(), Qt::Key_Return);
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(codes, ElementsAre(AlertSheets::kFirstButton));
}

TEST_F(SheetsOnAWindow, AnswerEscapeWithTheLastButton) {
    ask(question);
    QTest::keyClick(sheetOnScreen(), Qt::Key_Escape);
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(codes, ElementsAre(AlertSheets::kFirstButton + 2));
}

TEST_F(SheetsOnAWindow, AnswerEscapeWithTheButtonThatTheAlertNamesForIt) {
    ports::Alert careful = question;
    careful.escapeButton = 0;
    ask(careful);
    QTest::keyClick(sheetOnScreen(), Qt::Key_Escape);
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(codes, ElementsAre(AlertSheets::kFirstButton));
}

TEST_F(SheetsOnAWindow, AnswerBeingClosedAsEscape) {
    ask(question);
    sheetOnScreen()->windowHandle()->close();
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(codes, ElementsAre(AlertSheets::kFirstButton + 2));
}

TEST_F(SheetsOnAWindow, AnswerOnlyOnceAndNotFromInsideTheClick) {
    ask(question);
    ui::SheetDialog* sheet = sheetOnScreen();
    sheet->answer(1);
    sheet->answer(0);
    EXPECT_THAT(codes, ElementsAre());
    EXPECT_EQ(sheetOnScreen(), nullptr);
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(codes, ElementsAre(AlertSheets::kSecondButton));
}

TEST_F(SheetsOnAWindow, IgnoreTheReturnThatIsStillHeldDown) {
    ask(question);
    QPushButton* focused = sheetOnScreen()->findChild<QPushButton*>();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(focused, &held);
    EXPECT_NE(sheetOnScreen(), nullptr);
    QTest::keyClick(focused, Qt::Key_Return);
    ASSERT_TRUE(waitForAnswer());
}

TEST_F(SheetsOnAWindow, ReachEveryButtonWithTheTabKey) {
    ask(question);
    QStringList order;
    for (int i = 0; i < 3; ++i) {
        order << qobject_cast<QPushButton*>(sheetOnScreen()->focusWidget())->text();
        QTest::keyClick(sheetOnScreen(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, QStringList({"No", "Yes", "Later"}));
    QTest::keyClick(sheetOnScreen(), Qt::Key_Escape);
    ASSERT_TRUE(waitForAnswer());
}

TEST_F(SheetsOnAWindow, HangAtTheTopOfTheWindow) {
    ask(question);
    const QRect window = dialogOnScreen()->geometry();
    const QRect sheet = sheetOnScreen()->geometry();
    EXPECT_EQ(sheet.top(), window.top());
    EXPECT_LE(std::abs(sheet.center().x() - window.center().x()), 1);
    QTest::keyClick(sheetOnScreen(), Qt::Key_Escape);
    ASSERT_TRUE(waitForAnswer());
}

TEST_F(SheetsOnAWindow, KeepInputFromTheWindow) {
    int presses = 0;
    int closes = 0;
    models.m_button.setAction([&] { ++presses; });
    models.window.setShouldClose([&](controls::Window&) { return ++closes > 0; });
    ask(question);
    click(*dialogOnScreen(), "Install");
    QApplication::processEvents();
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(closes, 0);
    QTest::keyClick(sheetOnScreen(), Qt::Key_Escape);
    ASSERT_TRUE(waitForAnswer());
    click(*dialogOnScreen(), "Install");
    EXPECT_EQ(presses, 1);
}

TEST_F(SheetsOnAWindow, MayAskAgainFromTheirAnswer) {
    int rounds = 0;
    std::function<void()> askAgain = [&] {
        front().frontEnd.alertSheets().beginSheet(question, models.window, [&](int code) {
            EXPECT_EQ(code, AlertSheets::kFirstButton);
            EXPECT_EQ(sheetOnScreen(), nullptr);
            if (++rounds < 3)
                front().queue.post(askAgain);
        });
    };
    askAgain();
    for (int round = 1; round <= 3; ++round) {
        ASSERT_TRUE(stage::waitUntil([] { return sheetOnScreen() != nullptr; }));
        QTest::keyClick(sheetOnScreen(), Qt::Key_Return);
        ASSERT_TRUE(stage::waitUntil([&] { return rounds == round; }));
    }
}

TEST_F(SheetsOnAWindow, GoWithTheirWindowUnanswered) {
    ask(question);
    models.window.orderOut();
    EXPECT_EQ(sheetOnScreen(), nullptr);
    QTest::qWait(20);
    EXPECT_THAT(codes, ElementsAre());
    models.window.orderFront();
    EXPECT_EQ(dialogOnScreen()->findChildren<QDialog*>().size(), 0);
}

TEST_F(SheetsOnAWindow, NameThemselvesForAssistiveTools) {
    ask(question);
    EXPECT_EQ(sheetOnScreen()->accessibleName(), "Really?");
    EXPECT_EQ(sheetOnScreen()->accessibleDescription(), "Think of it.");
    QTest::keyClick(sheetOnScreen(), Qt::Key_Escape);
    ASSERT_TRUE(waitForAnswer());
}

TEST(SheetsWithoutAWindow, AreAskedInTheMiddleOfTheScreen) {
    controls::Window unknown;
    int code = 0;
    front().frontEnd.alertSheets().beginSheet(
        {.message = "Well?", .informative = "", .buttons = {"OK"}}, unknown,
        [&](int answer) { code = answer; });
    ASSERT_NE(sheetOnScreen(), nullptr);
    QTest::keyClick(sheetOnScreen(), Qt::Key_Return);
    EXPECT_TRUE(stage::waitUntil([&] { return code == AlertSheets::kFirstButton; }));
}
