// Sheets that the core lays out itself, and windows over windows.
#include <gmock/gmock.h>

#include <ctime>

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "tests/ui/ControlsStage.h"

using ports::ModalLoop;
using stage::front;

namespace {

constexpr char kPanel[] = R"(<ui version="4.0"><class>Panel</class>
 <widget class="QDialog" name="panel">
  <property name="windowTitle"><string>Question</string></property>
  <layout class="QVBoxLayout" name="rows">
   <item><widget class="QLabel" name="msgText"><property name="text"><string>Really?</string></property></widget></item>
   <item><widget class="QPushButton" name="altBtn"><property name="text"><string>No</string></property><property name="autoDefault"><bool>false</bool></property></widget></item>
   <item><widget class="QPushButton" name="defBtn"><property name="text"><string>Yes</string></property><property name="default"><bool>true</bool></property></widget></item>
  </layout>
 </widget></ui>)";

struct PanelModels {
    controls::Window window;
    controls::TextField msgText;
    controls::Button defBtn;
    controls::Button altBtn;
    controls::Interface outlets{window,
                                {{"msgText", &msgText}, {"defBtn", &defBtn}, {"altBtn", &altBtn}}};
};

struct OwnSheets : testing::Test {
    void SetUp() override {
        front().resources.write("Panel.ui", kPanel);
        ASSERT_TRUE(stage::loadControls(wizard));
        ASSERT_TRUE(front().frontEnd.interfaceFiles().load("Panel", panel.outlets));
        wizard.window.orderFront();
        dialog = stage::controlsDialog();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
        panel.defBtn.setAction([this] { answer(1); });
        panel.altBtn.setAction([this] { answer(0); });
    }
    void TearDown() override { loop().endSheet(panel.window); }
    static ModalLoop& loop() { return front().frontEnd.modalLoop(); }
    static QDialog* sheet() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == "panel" && widget->isVisible())
                return qobject_cast<QDialog*>(widget);
        return nullptr;
    }
    void answer(int code) {
        answers.push_back(code);
        loop().endSheet(panel.window);
        panel.window.orderOut();
        loop().stopModal();
    }
    void begin() {
        loop().beginSheet(panel.window, wizard.window);
        ASSERT_NE(sheet(), nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(sheet()));
    }

    stage::ControlModels wizard;
    PanelModels panel;
    QDialog* dialog = nullptr;
    std::vector<int> answers;
};

/// The wizard over the installer, as the product shows them.
struct WindowsOverWindows : OwnSheets {
    void SetUp() override {
        ASSERT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", installer.outlets));
        installer.window.orderFront();
        OwnSheets::SetUp();
    }
    QPushButton* install() { return stage::dialogOnScreen()->findChild<QPushButton*>("m_button"); }

    stage::InstallerModels installer;
};

} // namespace

TEST_F(OwnSheets, HangAtTheTopOfTheirWindowInTheShade) {
    const QImage before = dialog->grab().toImage();
    begin();
    EXPECT_EQ(sheet()->parentWidget(), dialog);
    EXPECT_EQ(sheet()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(sheet()->geometry().top(), dialog->geometry().top());
    EXPECT_LE(std::abs(sheet()->geometry().center().x() - dialog->geometry().center().x()), 1);
    EXPECT_LT(dialog->grab().toImage().pixelColor(5, 200).lightness(),
              before.pixelColor(5, 200).lightness());
    loop().endSheet(panel.window);
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_FALSE(panel.window.isVisible());
    EXPECT_EQ(dialog->grab().toImage().pixelColor(5, 200), before.pixelColor(5, 200));
}

TEST_F(OwnSheets, KeepInputFromTheirWindow) {
    int presses = 0;
    wizard.next.setAction([&] { ++presses; });
    begin();
    stage::clickOn(*dialog->findChild<QPushButton*>("next"));
    EXPECT_EQ(presses, 0);
    loop().endSheet(panel.window);
    stage::clickOn(*dialog->findChild<QPushButton*>("next"));
    EXPECT_EQ(presses, 1);
}

TEST_F(OwnSheets, AreAnsweredWithReturnButNotWithAHeldOne) {
    begin();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(sheet(), &held);
    EXPECT_TRUE(answers.empty());
    QTest::keyClick(sheet(), Qt::Key_Return);
    EXPECT_THAT(answers, testing::ElementsAre(1));
}

TEST_F(OwnSheets, AskTheModelBeforeTheyClose) {
    int asked = 0;
    panel.window.setShouldClose([&](controls::Window&) { return ++asked > 9; });
    begin();
    QTest::keyClick(sheet(), Qt::Key_Escape);
    sheet()->windowHandle()->close();
    EXPECT_EQ(asked, 2);
    EXPECT_NE(sheet(), nullptr);
}

TEST_F(OwnSheets, TellAssistiveToolsTitleAndMessage) {
    panel.msgText.setText("Overwrite it?");
    panel.window.setTitle("Copy");
    begin();
    auto* accessible = QAccessible::queryAccessibleInterface(sheet());
    EXPECT_EQ(accessible->role(), QAccessible::Dialog);
    EXPECT_EQ(accessible->text(QAccessible::Name), "Copy");
    EXPECT_EQ(accessible->text(QAccessible::Description), "Overwrite it?");
}

TEST_F(OwnSheets, AreShownAgainWithAnotherQuestion) {
    for (int round = 0; round < 3; ++round) {
        begin();
        EXPECT_EQ(sheet()->geometry().top(), dialog->geometry().top());
        QTest::keyClick(sheet(), Qt::Key_Return);
        EXPECT_EQ(sheet(), nullptr);
    }
    EXPECT_EQ(answers.size(), 3u);
}

TEST_F(OwnSheets, GoWithTheirWindow) {
    begin();
    wizard.window.orderOut();
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_FALSE(panel.window.isVisible());
}

TEST_F(OwnSheets, OutliveTheFileOfTheirWindow) {
    begin();
    ASSERT_TRUE(stage::loadControls(wizard));
    loop().endSheet(panel.window);
    wizard.window.orderFront();
    begin();
    EXPECT_EQ(sheet()->parentWidget(), stage::controlsDialog());
}

TEST_F(OwnSheets, MayBeWindowsOfTheirOwnToo) {
    loop().endSheet(wizard.window); // no sheet: stays as it is
    EXPECT_TRUE(dialog->isVisible());
    controls::Window unknown;
    loop().beginSheet(unknown, wizard.window);
    EXPECT_TRUE(unknown.isVisible());
    panel.window.orderFront();
    EXPECT_EQ(sheet()->parentWidget(), nullptr);
    begin();
    EXPECT_EQ(sheet()->parentWidget(), dialog);
}

TEST_F(OwnSheets, AnswerInASessionOfTheirOwnInsideTheWizards) {
    int result = 0;
    wizard.next.setAction([&] {
        loop().beginSheet(panel.window, wizard.window);
        const auto session = loop().beginModalSession(panel.window);
        int answer = ModalLoop::kContinues;
        while (answer == ModalLoop::kContinues)
            answer = loop().runModalSession(session);
        loop().endModalSession(session);
        result = answers.back();
        loop().stopModalWithCode(7);
    });
    front().queue.post([&] {
        front().queue.post([&] { QTest::keyClick(sheet(), Qt::Key_Return); });
        stage::clickOn(*dialog->findChild<QPushButton*>("next"));
    });
    const auto outer = loop().beginModalSession(wizard.window);
    int code = ModalLoop::kContinues;
    while (code == ModalLoop::kContinues)
        code = loop().runModalSession(outer);
    loop().endModalSession(outer);
    EXPECT_EQ(code, 7);
    EXPECT_EQ(result, 1);
}

TEST_F(WindowsOverWindows, LeaveAllInputToTheUpperOne) {
    int presses = 0;
    installer.m_button.setAction([&] { ++presses; });
    const auto lower = loop().beginModalSession(installer.window);
    const auto upper = loop().beginModalSession(wizard.window);
    stage::clickOn(*install());
    EXPECT_EQ(presses, 0);
    int next = 0;
    wizard.next.setAction([&] { ++next; });
    stage::clickOn(*dialog->findChild<QPushButton*>("next"));
    EXPECT_EQ(next, 1);
    loop().endModalSession(upper);
    wizard.window.orderOut();
    stage::clickOn(*install());
    EXPECT_EQ(presses, 1);
    loop().endModalSession(lower);
}

TEST_F(WindowsOverWindows, StandAboveTheOneThatWaits) {
    wizard.window.orderOut();
    const auto lower = loop().beginModalSession(installer.window);
    const auto upper = loop().beginModalSession(wizard.window);
    EXPECT_EQ(dialog->windowHandle()->transientParent(), stage::dialogOnScreen()->windowHandle());
    loop().endModalSession(upper);
    loop().endModalSession(lower);
}

TEST_F(WindowsOverWindows, EndTheirSessionWhenHiddenFromInside) {
    const auto lower = loop().beginModalSession(installer.window);
    const auto upper = loop().beginModalSession(wizard.window);
    front().queue.post([&] { wizard.window.orderOut(); });
    int code = ModalLoop::kContinues;
    while (code == ModalLoop::kContinues)
        code = loop().runModalSession(upper);
    EXPECT_EQ(code, ModalLoop::kAborted);
    loop().endModalSession(upper);
    front().queue.post([] {});
    EXPECT_EQ(loop().runModalSession(lower), ModalLoop::kContinues);
    loop().endModalSession(lower);
}

TEST_F(WindowsOverWindows, SpendNoTimeWhileNothingHappens) {
    const auto session = loop().beginModalSession(wizard.window);
    QApplication::processEvents();
    bool woken = false;
    QTimer::singleShot(300, qApp, [&] { woken = true; });
    int steps = 0;
    const std::clock_t before = std::clock();
    while (!woken) {
        EXPECT_EQ(loop().runModalSession(session), ModalLoop::kContinues);
        ++steps;
    }
    EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 10);
    EXPECT_LT(steps, 60);
    loop().endModalSession(session);
}

TEST(BusyPumps, DropWhatTheUserDoesMeanwhile) {
    stage::ControlModels models;
    ASSERT_TRUE(stage::loadControls(models));
    models.window.orderFront();
    QDialog* dialog = stage::controlsDialog();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    int presses = 0;
    int closes = 0;
    models.next.setAction([&] { ++presses; });
    models.command.setAction([&] { ++presses; });
    models.window.setShouldClose([&](controls::Window&) { return ++closes > 9; });
    auto* next = dialog->findChild<QPushButton*>("next");
    const QPointF at = next->mapTo(dialog, next->rect().center());
    const QPointF onScreen = dialog->mapToGlobal(at);
    const auto post = [](QObject* to, QEvent* event) { QApplication::postEvent(to, event); };
    QWindow* window = dialog->windowHandle();
    post(window, new QMouseEvent(QEvent::MouseButtonPress, at, onScreen, Qt::LeftButton,
                                 Qt::LeftButton, Qt::NoModifier));
    post(window, new QMouseEvent(QEvent::MouseButtonRelease, at, onScreen, Qt::LeftButton,
                                 Qt::NoButton, Qt::NoModifier));
    post(window, new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier));
    post(window, new QKeyEvent(QEvent::KeyPress, Qt::Key_L, Qt::ControlModifier));
    post(window, new QCloseEvent);
    int painted = 0;
    QTimer::singleShot(0, dialog, [&] { ++painted; });
    bool ran = false;
    front().queue.post([&] { ran = true; });
    const auto keepAlive = front().frontEnd.keepAlive();
    for (int i = 0; i < 5; ++i)
        keepAlive();
    EXPECT_EQ(painted, 1) << "timers and paints are served";
    EXPECT_FALSE(ran) << "no other work of the core interrupts the one under way";
    QApplication::processEvents();
    EXPECT_TRUE(ran);
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(closes, 0);
    EXPECT_TRUE(dialog->isVisible());
    stage::clickOn(*next);
    EXPECT_EQ(presses, 1);
}

TEST(BusyPumps, DoNothingOnAnotherThread) {
    bool ran = false;
    QTimer::singleShot(0, qApp, [&] { ran = true; });
    const auto keepAlive = front().frontEnd.keepAlive();
    std::thread(keepAlive).join();
    EXPECT_FALSE(ran);
    keepAlive();
    EXPECT_TRUE(ran);
}
