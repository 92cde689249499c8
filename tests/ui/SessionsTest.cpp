#include <gmock/gmock.h>

#include <stdexcept>
#include <thread>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include "tests/ui/Stage.h"
#include "ui/SessionLoop.h"
#include "ui/SheetDialog.h"

using stage::dialogOnScreen;
using stage::front;

namespace {

struct ModalSessions : testing::Test {
    void SetUp() override {
        ASSERT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets));
    }
    ports::ModalLoop& loop() { return front().frontEnd.modalLoop(); }

    stage::InstallerModels models;
};

} // namespace

TEST_F(ModalSessions, ShowTheWindowUntilTheCodeComes) {
    bool visible = false;
    front().queue.post([&] {
        visible = dialogOnScreen() != nullptr;
        loop().stopModalWithCode(7);
    });
    EXPECT_EQ(loop().runModalForWindow(models.window), 7);
    EXPECT_TRUE(visible);
    EXPECT_EQ(dialogOnScreen(), nullptr);
    EXPECT_FALSE(models.window.isVisible());
}

TEST_F(ModalSessions, DrainTheMainQueueForAWorker) {
    std::vector<std::string> order;
    std::thread worker([&] {
        front().queue.sync([&] {
            EXPECT_TRUE(front().queue.isMainThread());
            order.emplace_back("first");
        });
        try {
            front().queue.sync([] { throw std::runtime_error("thrown on the main thread"); });
        } catch (const std::runtime_error& error) {
            const std::string what = error.what();
            front().queue.sync([&] { order.push_back(what); });
        }
        front().queue.post([&] { loop().stopModalWithCode(1); });
    });
    EXPECT_EQ(loop().runModalForWindow(models.window), 1);
    worker.join();
    EXPECT_THAT(order, testing::ElementsAre("first", "thrown on the main thread"));
}

TEST_F(ModalSessions, DrainTheMainQueueUnderASheet) {
    bool drained = false;
    front().queue.post([&] {
        front().frontEnd.alertSheets().beginSheet(
            {.message = "Well?", .informative = "", .buttons = {"OK"}}, models.window,
            [&](int code) { loop().stopModalWithCode(code); });
        front().queue.post([&] {
            drained = stage::sheetOnScreen() != nullptr;
            QTest::keyClick(stage::sheetOnScreen(), Qt::Key_Return);
        });
    });
    EXPECT_EQ(loop().runModalForWindow(models.window), ports::AlertSheets::kFirstButton);
    EXPECT_TRUE(drained);
}

TEST_F(ModalSessions, NestAndEndFromTheInside) {
    controls::Window inner;
    int innerCode = 0;
    front().queue.post([&] {
        front().queue.post([&] { loop().stopModalWithCode(2); });
        innerCode = loop().runModalForWindow(inner);
        loop().stopModalWithCode(1);
    });
    EXPECT_EQ(loop().runModalForWindow(models.window), 1);
    EXPECT_EQ(innerCode, 2);
}

TEST_F(ModalSessions, KeepTheFirstCode) {
    front().queue.post([&] {
        loop().stopModalWithCode(0);
        loop().stopModalWithCode(1);
    });
    EXPECT_EQ(loop().runModalForWindow(models.window), 0);
}

TEST_F(ModalSessions, EndWithTheCodeOfTheClosingWindow) {
    models.window.setShouldClose([&](controls::Window&) {
        loop().stopModalWithCode(0);
        return true;
    });
    front().queue.post([] { dialogOnScreen()->windowHandle()->close(); });
    EXPECT_EQ(loop().runModalForWindow(models.window), 0);
}

TEST_F(ModalSessions, EndByThemselvesWhenTheWindowGoesWithoutACode) {
    front().queue.post([] { QTest::keyClick(dialogOnScreen(), Qt::Key_Escape); });
    EXPECT_EQ(loop().runModalForWindow(models.window), ui::SessionLoop::kAborted);
}

TEST_F(ModalSessions, EndWhenTheProgramIsAskedToQuit) {
    int asked = 0;
    models.window.setShouldClose([&](controls::Window&) {
        ++asked;
        loop().stopModalWithCode(0);
        return true;
    });
    front().queue.post([] {
        QEvent quit(QEvent::Quit); // as the session manager or the menu sends it
        QApplication::sendEvent(qApp, &quit);
    });
    EXPECT_EQ(loop().runModalForWindow(models.window), 0);
    EXPECT_EQ(asked, 1);
    // no loop runs again before the application's own one has ended
    QTimer::singleShot(0, qApp, &QApplication::quit);
    QApplication::exec();
}

TEST_F(ModalSessions, TakeNoCodeWhileNoneRuns) {
    loop().stopModalWithCode(5);
    front().queue.post([&] { loop().stopModalWithCode(6); });
    EXPECT_EQ(loop().runModalForWindow(models.window), 6);
}

TEST_F(ModalSessions, RunAgainForTheSameWindow) {
    for (int code = 0; code < 3; ++code) {
        front().queue.post([&] { loop().stopModalWithCode(code); });
        EXPECT_EQ(loop().runModalForWindow(models.window), code);
    }
}

TEST(Appearance, AnswersAsItWasStarted) {
    EXPECT_FALSE(front().frontEnd.appearance().isDark());
    EXPECT_GE(front().frontEnd.appearance().toolkitVersion(), 1671);
}
