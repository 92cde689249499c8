// On a real display server: the mouse and the keyboard are moved by a program of their own.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include "tests/ui/Stage.h"
#include "ui/SheetDialog.h"

using stage::dialogOnScreen;
using stage::front;
using stage::sheetOnScreen;

namespace {

void xdotool(const QStringList& arguments) {
    QProcess tool;
    tool.start(SCRIVEL_XDOTOOL, arguments);
    ASSERT_TRUE(tool.waitForFinished(10'000));
    ASSERT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
}

void click(QWidget& window, const QString& title) {
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->text() != title)
            continue;
        const QPoint at =
            button->mapTo(&window, button->rect().center()) * window.devicePixelRatio();
        xdotool({"mousemove", "--window", QString::number(window.winId()), QString::number(at.x()),
                 QString::number(at.y()), "click", "1"});
    }
}

struct OnADisplay : testing::Test {
    void SetUp() override {
        ASSERT_EQ(QApplication::platformName(), "xcb");
        ASSERT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets));
        models.window.orderFront();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialogOnScreen()));
    }
    stage::InstallerModels models;
};

} // namespace

TEST_F(OnADisplay, AClickPressesTheButton) {
    int presses = 0;
    models.m_button.setAction([&] { ++presses; });
    click(*dialogOnScreen(), "Install");
    EXPECT_TRUE(stage::waitUntil([&] { return presses == 1; }));
}

TEST_F(OnADisplay, ReturnPressesTheButton) {
    int presses = 0;
    models.m_button.setAction([&] { ++presses; });
    const QString id = QString::number(dialogOnScreen()->winId());
    xdotool({"windowfocus", id, "key", "--window", id, "Return"});
    EXPECT_TRUE(stage::waitUntil([&] { return presses == 1; }));
}

TEST_F(OnADisplay, AClickOnTheSheetAnswersAndOneBesideItDoesNothing) {
    int presses = 0;
    int code = 0;
    models.m_button.setAction([&] { ++presses; });
    front().frontEnd.alertSheets().beginSheet(
        {.message = "Really?", .informative = "", .buttons = {"No", "Yes"}}, models.window,
        [&](int answer) { code = answer; });
    ASSERT_TRUE(QTest::qWaitForWindowExposed(sheetOnScreen()));
    click(*dialogOnScreen(), "Install");
    click(*sheetOnScreen(), "Yes");
    EXPECT_TRUE(stage::waitUntil([&] { return code == ports::AlertSheets::kSecondButton; }));
    EXPECT_EQ(presses, 0);
}
