// The end of the program, with a session loop of its own, for it does not begin again.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include "tests/ui/ControlsStage.h"
#include "ui/Pictures.h"
#include "ui/SessionLoop.h"
#include "ui/UiFiles.h"

using ports::ModalLoop;

TEST(Termination, EndsEverySessionFromTheInnermostOne) {
    const ui::TranslatedTexts texts = stage::shippedTexts("en");
    ui::Pictures pictures({});
    const ui::UiFiles files({.resourceFolder = "", .texts = texts, .pictures = pictures});
    ui::SessionLoop loop(files);
    controls::Window outer;
    controls::Window middle;
    controls::Window inner;
    std::vector<int> codes;
    QTimer::singleShot(0, qApp, [&] {
        const auto session = loop.beginModalSession(middle);
        QTimer::singleShot(0, qApp, [&] {
            QTimer::singleShot(0, qApp, [&] {
                loop.stopModalWithCode(3); // a code that came before stays
                loop.terminate();
            });
            codes.push_back(loop.runModalForWindow(inner));
        });
        int code = ModalLoop::kContinues;
        while (code == ModalLoop::kContinues)
            code = loop.runModalSession(session);
        codes.push_back(code);
        loop.endModalSession(session);
    });
    codes.push_back(loop.runModalForWindow(outer));
    EXPECT_THAT(codes, testing::ElementsAre(3, ModalLoop::kAborted, ModalLoop::kAborted));
    EXPECT_EQ(loop.runModalForWindow(outer), ModalLoop::kAborted) << "also one that begins later";
    QDialog dialog;
    loop.runDialog(dialog);
    EXPECT_FALSE(dialog.isVisible());
}

TEST(Termination, RejectsAnOpenDialogOfTheFrontEnd) {
    const ui::TranslatedTexts texts = stage::shippedTexts("en");
    ui::Pictures pictures({});
    const ui::UiFiles files({.resourceFolder = "", .texts = texts, .pictures = pictures});
    ui::SessionLoop loop(files);
    QDialog dialog;
    QTimer::singleShot(0, qApp, [&] { loop.terminate(); });
    loop.runDialog(dialog);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(dialog.isVisible());
}
