#include <gmock/gmock.h>

#include <memory>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include "tests/ui/Stage.h"
#include "ui/ProgressBar.h"
#include "ui/Theme.h"
#include "ui/bind/ProgressBinding.h"

using controls::StyledText;
using stage::dialogOnScreen;
using stage::front;

namespace {

struct Bindings : testing::Test {
    void SetUp() override {
        models = std::make_unique<stage::InstallerModels>();
        ASSERT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", models->outlets));
        models->window.orderFront();
        dialog = dialogOnScreen();
        ASSERT_NE(dialog, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog));
        button = dialog->findChild<QPushButton*>("m_button");
        status = dialog->findChild<QLabel*>("m_statusTextField");
        bar = dialog->findChild<ui::ProgressBar*>("m_progressIndicator");
        caption = dialog->findChild<QLabel*>("m_progressIndicatorCaption");
    }
    void click() {
        QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {},
                          button->mapTo(dialog, button->rect().center()));
    }
    void begin() {
        models->m_progressIndicator.setHidden(false);
        models->m_progressIndicator.startAnimation();
    }

    std::unique_ptr<stage::InstallerModels> models;
    QDialog* dialog = nullptr;
    QPushButton* button = nullptr;
    QLabel* status = nullptr;
    ui::ProgressBar* bar = nullptr;
    QLabel* caption = nullptr;
};

class PaintCounter final : public QObject {
  public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    int paints = 0;
};

void pressHeld(QWidget& widget, int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(&widget, &press);
}

} // namespace

TEST_F(Bindings, ShowTheButtonsTitleAndState) {
    models->m_button.setTitle("Cut & paste");
    EXPECT_EQ(button->text(), "Cut && paste");
    models->m_button.setEnabled(false);
    EXPECT_FALSE(button->isEnabled());
    models->m_button.setHidden(true);
    EXPECT_FALSE(button->isVisible());
}

TEST_F(Bindings, HonourTheColourOfTheTitle) {
    EXPECT_FALSE(button->property(ui::kTitleColour).isValid());
    models->setBlackTitle("Install");
    EXPECT_EQ(button->property(ui::kTitleColour).value<QColor>(), QColor(Qt::black));
    models->m_button.setTitle("Install");
    EXPECT_FALSE(button->property(ui::kTitleColour).isValid());
}

TEST_F(Bindings, TurnAClickIntoAPress) {
    int presses = 0;
    models->m_button.setAction([&] { ++presses; });
    click();
    EXPECT_EQ(presses, 1);
    models->m_button.setEnabled(false);
    click();
    EXPECT_EQ(presses, 1);
}

TEST_F(Bindings, TurnReturnIntoAPressOfTheButton) {
    int presses = 0;
    models->m_button.setAction([&] { ++presses; });
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_EQ(presses, 1);
    QTest::keyClick(button, Qt::Key_Enter);
    EXPECT_EQ(presses, 2);
}

TEST_F(Bindings, TakeAHeldReturnForOnePress) {
    int presses = 0;
    models->m_button.setAction([&] { ++presses; });
    QTest::keyPress(button, Qt::Key_Return);
    pressHeld(*button, Qt::Key_Return);
    pressHeld(*dialog, Qt::Key_Return);
    pressHeld(*dialog, Qt::Key_Enter);
    EXPECT_EQ(presses, 1);
}

TEST_F(Bindings, KeepReturnFromCancelingWhatItBegan) {
    int presses = 0;
    models->m_button.setAction([&] { ++presses; });
    begin();
    QTest::keyClick(dialog, Qt::Key_Return);
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(presses, 0);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(presses, 1);
    models->m_progressIndicator.stopAnimation();
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_EQ(presses, 2);
}

TEST_F(Bindings, GiveTheKeyboardToTheButton) {
    EXPECT_TRUE(stage::waitUntil([&] { return QApplication::focusWidget() == button; }));
    QTest::keyClick(dialog, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), button);
}

TEST_F(Bindings, ShowPlainTextAsItStands) {
    models->m_statusTextField.setText("<b>Extracting</b> & more");
    EXPECT_EQ(status->text(), "<b>Extracting</b> & more");
    EXPECT_EQ(status->textFormat(), Qt::PlainText);
}

TEST_F(Bindings, ShowTheRunsOfAStyledText) {
    StyledText text;
    text.runs = {{"a < b ", {}, false}, {"red", controls::Colour{1, 0, 0, 1}, true}};
    models->m_statusTextField.setStyledText(text);
    EXPECT_EQ(status->textFormat(), Qt::RichText);
    EXPECT_THAT(status->text().toStdString(), testing::HasSubstr("a &lt; b"));
    EXPECT_THAT(status->text().toStdString(), testing::HasSubstr("color:#ff0000"));
}

TEST_F(Bindings, DrawAtOnceWhenAsked) {
    PaintCounter counter(*status);
    models->m_statusTextField.setText("Now");
    EXPECT_EQ(counter.paints, 0);
    models->m_statusTextField.display();
    EXPECT_EQ(counter.paints, 1);
}

TEST_F(Bindings, GlideWhileTheAmountIsNotKnown) {
    begin();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_TRUE(bar->isGliding());
    EXPECT_EQ(caption->text(), "");
    models->m_progressIndicator.setAmount({100'000'000, 400'000'000, 0});
    EXPECT_FALSE(bar->isGliding());
    EXPECT_EQ(bar->value() * 4, bar->maximum());
    EXPECT_EQ(caption->text(), "100 MB of 400 MB");
    models->m_progressIndicator.setAmount({});
    EXPECT_TRUE(bar->isGliding());
    models->m_progressIndicator.stopAnimation();
    EXPECT_FALSE(bar->isGliding());
}

TEST_F(Bindings, StandStillWhileTheBarIsHidden) {
    begin();
    models->m_progressIndicator.setHidden(true);
    EXPECT_FALSE(bar->isGliding());
    EXPECT_EQ(caption->text(), "");
}

TEST_F(Bindings, CentreTheWindowWhenItFirstComesToTheFront) {
    const QPoint middle = dialog->screen()->availableGeometry().center();
    EXPECT_LE((dialog->geometry().center() - middle).manhattanLength(), 40);
    models->window.orderOut();
    EXPECT_FALSE(dialog->isVisible());
    dialog->move(10, 20);
    models->window.orderFront();
    EXPECT_EQ(dialog->pos(), QPoint(10, 20));
}

TEST_F(Bindings, CloseThroughTheModelOnly) {
    int asked = 0;
    bool allowed = false;
    models->window.setShouldClose([&](controls::Window&) {
        ++asked;
        return allowed;
    });
    dialog->windowHandle()->close();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClick(dialog, Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(asked, 3);
    allowed = true;
    dialog->windowHandle()->close();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(models->window.isVisible());
}

TEST_F(Bindings, IgnoreEscapeWhileInstalling) {
    int asked = 0;
    models->window.setShouldClose([&](controls::Window&) { return ++asked > 0; });
    begin();
    QTest::keyClick(button, Qt::Key_Escape);
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_EQ(asked, 0);
    EXPECT_TRUE(dialog->isVisible());
    dialog->windowHandle()->close();
    EXPECT_EQ(asked, 1);
}

TEST_F(Bindings, OutliveTheirModels) {
    models.reset();
    EXPECT_FALSE(dialog->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(dialog, Qt::Key_Escape);
    stage::InstallerModels others;
    EXPECT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", others.outlets));
}

TEST(ProgressCaptions, CountInTheUnitThatSuitsTheTotal) {
    const ui::TranslatedTexts english = stage::shippedTexts("en");
    const auto caption = [&](std::uint64_t done, std::uint64_t total) {
        return ui::ProgressBinding::captionFor({done, total, 0}, english).toStdString();
    };
    EXPECT_EQ(caption(123'456'789, 400'000'000), "123 MB of 400 MB");
    EXPECT_EQ(caption(0, 5'200'000), "0.0 MB of 5.2 MB");
    EXPECT_EQ(caption(1'500'000'000, 2'000'000'000), "1.50 GB of 2.00 GB");
    EXPECT_EQ(caption(1'000, 512'000), "1 KB of 512 KB");
    EXPECT_EQ(caption(9'000, 8'000), "8 KB of 8 KB");
    EXPECT_EQ(caption(9'000, 0), "");
}

TEST(ProgressCaptions, SpeakTheUsersLanguage) {
    const QLocale before;
    QLocale::setDefault(QLocale("fr_FR"));
    const QString caption = ui::ProgressBinding::captionFor({1'500'000'000, 2'000'000'000, 0},
                                                            stage::shippedTexts("fr"));
    QLocale::setDefault(before);
    EXPECT_EQ(caption, u"1,50\u00A0Go sur 2,00\u00A0Go");
}
