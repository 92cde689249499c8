#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "tests/ui/Stage.h"
#include "ui/PictureView.h"
#include "ui/ProgressBar.h"
#include "ui/SheetDialog.h"
#include "ui/Texts.h"

using stage::dialogOnScreen;
using stage::front;

namespace {

QByteArray installerFile() {
    QFile file(SCRIVEL_RESOURCES "/ScrivelInstaller.ui");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

bool loadBroken(const QByteArray& content, stage::InstallerModels& models) {
    front().resources.write("Broken.ui", content);
    return front().frontEnd.interfaceFiles().load("Broken", models.outlets);
}

bool canLoad(const QByteArray& content) {
    stage::InstallerModels models;
    return loadBroken(content, models);
}

struct InstallerWindow : testing::Test {
    void SetUp() override {
        ASSERT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets));
        models.window.orderFront();
        ASSERT_NE(dialogOnScreen(), nullptr);
    }
    stage::InstallerModels models;
};

} // namespace

TEST_F(InstallerWindow, HasEveryOutletWithItsClass) {
    EXPECT_NE(dialogOnScreen()->findChild<QPushButton*>("m_button"), nullptr);
    EXPECT_NE(dialogOnScreen()->findChild<QLabel*>("m_statusTextField"), nullptr);
    EXPECT_NE(dialogOnScreen()->findChild<ui::ProgressBar*>("m_progressIndicator"), nullptr);
    EXPECT_NE(dialogOnScreen()->findChild<QLabel*>("m_progressIndicatorCaption"), nullptr);
    EXPECT_NE(dialogOnScreen()->findChild<ui::PictureView*>("productPicture"), nullptr);
}

TEST_F(InstallerWindow, GivesTheModelsTheirFirstState) {
    EXPECT_EQ(models.window.title(), "Install Scrivel 21");
    EXPECT_EQ(models.m_button.title(), "Install");
    EXPECT_TRUE(models.m_button.isEnabled());
    EXPECT_FALSE(models.m_button.isHidden());
    EXPECT_EQ(models.m_statusTextField.text(), "Ready to install.");
    EXPECT_TRUE(models.m_progressIndicator.isHidden());
    EXPECT_FALSE(dialogOnScreen()->findChild<QWidget*>("m_progressIndicator")->isVisible());
}

TEST_F(InstallerWindow, ShowsTheProductPictureAtItsFullSize) {
    auto* view = dialogOnScreen()->findChild<ui::PictureView*>();
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(view->size(), QSize(128, 128));
    const QImage shown = view->grab().toImage();
    EXPECT_GT(shown.pixelColor(64 * shown.width() / 128, 20 * shown.height() / 128).blue(), 150);
}

TEST_F(InstallerWindow, KeepsSizeAndPlaceOfItsButtonWhenInstallingBegins) {
    const auto* button = dialogOnScreen()->findChild<QPushButton*>("m_button");
    const QRect window = dialogOnScreen()->geometry();
    const QRect idle = button->geometry();
    models.beginInstalling(front().texts);
    models.m_progressIndicator.setAmount({1, 2, 0});
    QApplication::processEvents();
    EXPECT_EQ(button->geometry(), idle);
    EXPECT_EQ(dialogOnScreen()->geometry(), window);
}

TEST_F(InstallerWindow, WithoutItsPictureShowsTheWordsAlone) {
    QByteArray file = installerFile();
    file.replace("Scrivel.icns", "Missing.icns");
    stage::InstallerModels others;
    ASSERT_TRUE(loadBroken(file, others));
    models.window.orderOut();
    others.window.orderFront();
    EXPECT_FALSE(dialogOnScreen()->findChild<ui::PictureView*>()->isVisible());
    EXPECT_TRUE(dialogOnScreen()->findChild<QLabel*>("productName")->isVisible());
}

TEST_F(InstallerWindow, HasAnAccessibleNameForEveryWidgetThatSaysSomething) {
    models.m_progressIndicator.setHidden(false);
    for (QWidget* widget : dialogOnScreen()->findChildren<QWidget*>()) {
        const bool says =
            qobject_cast<QPushButton*>(widget) || qobject_cast<ui::ProgressBar*>(widget) ||
            qobject_cast<ui::PictureView*>(widget) ||
            (qobject_cast<QLabel*>(widget) && widget->objectName() != "m_progressIndicatorCaption");
        if (!says)
            continue;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(accessible, nullptr) << widget->objectName().toStdString();
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
            << widget->objectName().toStdString();
    }
}

TEST_F(InstallerWindow, LoadedAgainShowsTheNewWidgets) {
    const QDialog* before = dialogOnScreen();
    models.m_button.setTitle("Changed");
    ASSERT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets));
    EXPECT_EQ(models.m_button.title(), "Install");
    EXPECT_NE(dialogOnScreen(), nullptr);
    EXPECT_NE(dialogOnScreen(), before);
}

TEST(InterfaceFiles, AreFalseAndBindNothingWhenTheFileIsMissing) {
    stage::InstallerModels models;
    models.m_button.setTitle("As it was");
    EXPECT_FALSE(front().frontEnd.interfaceFiles().load("NoSuchFile", models.outlets));
    EXPECT_EQ(models.m_button.title(), "As it was");
}

TEST(InterfaceFiles, AreFalseWhenTheFileIsBroken) {
    const QByteArray whole = installerFile();
    EXPECT_FALSE(canLoad(""));
    EXPECT_FALSE(canLoad("not an interface file"));
    EXPECT_FALSE(canLoad(whole.left(whole.size() / 2)));
    QByteArray unknown = whole;
    unknown.replace("<widget class=\"QDialog\"", "<widget class=\"NoSuchClass\"");
    EXPECT_FALSE(canLoad(unknown));
    EXPECT_TRUE(canLoad(whole));
}

TEST(InterfaceFiles, AreFalseWhenTheTopWidgetIsNoDialog) {
    QByteArray file = installerFile();
    file.replace("<widget class=\"QDialog\"", "<widget class=\"QFrame\"");
    EXPECT_FALSE(canLoad(file));
}

TEST(InterfaceFiles, AreFalseAndBindNothingWhenAnOutletIsMissing) {
    QByteArray file = installerFile();
    file.replace("m_statusTextField", "m_otherTextField");
    stage::InstallerModels models;
    models.m_button.setTitle("As it was");
    EXPECT_FALSE(loadBroken(file, models));
    EXPECT_EQ(models.m_button.title(), "As it was");
    models.window.orderFront();
    EXPECT_EQ(dialogOnScreen(), nullptr);
}

TEST(InterfaceFiles, AreFalseWhenAnOutletIsOfAnotherClass) {
    QByteArray file = installerFile();
    file.replace("class=\"QPushButton\" name=\"m_button\"", "class=\"QLabel\" name=\"m_button\"");
    EXPECT_FALSE(canLoad(file));
}

TEST(InterfaceFiles, TakeTheirTextsFromTheTranslation) {
    const ui::TranslatedTexts german = stage::shippedTexts("de");
    ui::TextsTranslator translator(german);
    QApplication::installTranslator(&translator);
    stage::InstallerModels models;
    EXPECT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets));
    QApplication::removeTranslator(&translator);
    EXPECT_EQ(models.m_button.title(), "Installieren");
    EXPECT_EQ(models.m_statusTextField.text(), "Bereit zur Installation.");
}

class EveryLanguage : public testing::TestWithParam<const char*> {};

TEST_P(EveryLanguage, FitsIntoTheWindow) {
    const ui::TranslatedTexts texts = stage::shippedTexts(GetParam());
    ui::TextsTranslator translator(texts);
    QApplication::installTranslator(&translator);
    stage::InstallerModels models;
    const bool loaded = front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets);
    QApplication::removeTranslator(&translator);
    ASSERT_TRUE(loaded);
    models.window.orderFront();
    models.m_progressIndicator.setHidden(false);
    models.m_progressIndicator.startAnimation();
    models.m_progressIndicator.setAmount({999'000'000, 999'000'000, 1});
    for (const ports::TextKey key : std::initializer_list<ports::TextKey>{
             "Extracting %@…", "Installing %@ to the Applications folder…",
             "Launching %@ for the first time…", "Canceling…"}) {
        models.m_statusTextField.setText(stage::formatted(texts, key, {"Scrivel 21"}));
        QApplication::processEvents();
        for (const QLabel* label : dialogOnScreen()->findChildren<QLabel*>()) {
            if (label->wordWrap())
                EXPECT_LE(label->heightForWidth(label->width()), label->height())
                    << label->text().toStdString();
            else
                EXPECT_LE(label->sizeHint().width(), label->width()) << label->text().toStdString();
        }
    }
    for (const ports::TextKey key : std::initializer_list<ports::TextKey>{"Install", "Cancel"}) {
        models.m_button.setTitle(texts.lookUp(key));
        QApplication::processEvents();
        const auto* button = dialogOnScreen()->findChild<QPushButton*>("m_button");
        EXPECT_LE(button->sizeHint().width(), button->width());
    }
}

TEST_P(EveryLanguage, HasSheetsNoWiderThanTheWindow) {
    const ui::TranslatedTexts texts = stage::shippedTexts(GetParam());
    stage::InstallerModels models;
    ASSERT_TRUE(front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets));
    models.window.orderFront();
    for (const auto& alert :
         {stage::runningAlert(texts), stage::overwriteAlert(texts), stage::unableAlert(texts)}) {
        bool answered = false;
        front().frontEnd.alertSheets().beginSheet(alert, models.window,
                                                  [&](int) { answered = true; });
        const auto* sheet = stage::sheetOnScreen();
        ASSERT_NE(sheet, nullptr);
        EXPECT_LE(sheet->width(), dialogOnScreen()->width());
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        EXPECT_TRUE(stage::waitUntil([&] { return answered; }));
    }
}

INSTANTIATE_TEST_SUITE_P(Translations, EveryLanguage, testing::ValuesIn(stage::kLanguages),
                         [](const auto& instance) { return std::string(instance.param); });
