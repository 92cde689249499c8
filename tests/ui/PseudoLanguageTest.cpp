// The window in a language made for tests, whose texts are all in brackets: what shows without them
// goes round the translations, what does not fit has no room for longer languages.
#include <gtest/gtest.h>

#include <set>

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QXmlStreamReader>

#include "tests/ui/Catalogue.h"
#include "tests/ui/Stage.h"
#include "ui/Texts.h"

namespace {

const QString kOpening = "⟦", kClosing = "⟧";

ui::TranslatedTexts pseudoTexts() {
    return ui::TranslatedTexts(
        {.resourceFolder = SCRIVEL_PSEUDO_RESOURCES, .languages = {"en_XA.UTF-8"}});
}

/// Is all of the text in brackets?
bool isTranslated(const QString& text) {
    return text.startsWith(kOpening) && text.endsWith(kClosing);
}

/// The texts that an interface file says not to translate.
std::set<QString> namesIn(const QString& interfaceFile) {
    QFile file(interfaceFile);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    std::set<QString> names{QString()};
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"string" &&
            xml.attributes().value("notr") == u"true")
            names.insert(xml.readElementText());
    return names;
}

/// What the widget shows or tells a screen reader.
std::set<QString> textsOf(QWidget* widget) {
    std::set<QString> texts{widget->accessibleName(), widget->accessibleDescription(),
                            widget->toolTip()};
    if (const auto* label = qobject_cast<QLabel*>(widget))
        texts.insert(label->text());
    if (const auto* button = qobject_cast<QAbstractButton*>(widget))
        texts.insert(button->text());
    if (QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget))
        texts.insert(accessible->text(QAccessible::Name));
    return texts;
}

struct PseudoLanguage : testing::Test {
    void SetUp() override {
        ui::TextsTranslator translator(texts);
        QApplication::installTranslator(&translator);
        const bool loaded =
            stage::front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets);
        QApplication::removeTranslator(&translator);
        ASSERT_TRUE(loaded);
        models.window.setTitle(stage::formatted(texts, "Install %@", {"Scrivel 21"}));
        models.window.orderFront();
        ASSERT_NE(stage::dialogOnScreen(), nullptr);
    }
    const ui::TranslatedTexts texts = pseudoTexts();
    stage::InstallerModels models;
};

} // namespace

TEST_F(PseudoLanguage, BracketsEveryTextAndKeepsItsPlacesAndLineFeeds) {
    EXPECT_EQ(texts.languageTag(), "en_XA");
    catalogue::Translations english, pseudo;
    for (const std::string_view key : ports::kTextKeys) {
        const QString text = QString::fromStdString(texts.translated(key)).trimmed();
        EXPECT_TRUE(isTranslated(text)) << key;
        EXPECT_GE(text.size(),
                  static_cast<qsizetype>(QString::fromUtf8(key).trimmed().size() * 1.4));
        english[std::string(key)] = {};
        pseudo[std::string(key)] = {.text = texts.translated(key)};
    }
    EXPECT_EQ(catalogue::faultsOf(pseudo, english), std::vector<std::string>());
}

TEST_F(PseudoLanguage, TheWindowShowsNoTextThatIsNotTranslated) {
    const auto names = namesIn(SCRIVEL_RESOURCES "/ScrivelInstaller.ui");
    EXPECT_TRUE(names.contains("Scrivel 21"));
    models.m_progressIndicator.setHidden(false);
    EXPECT_TRUE(isTranslated(stage::dialogOnScreen()->windowTitle()));
    int translated = 0;
    for (QWidget* widget : stage::dialogOnScreen()->findChildren<QWidget*>())
        for (const QString& text : textsOf(widget)) {
            EXPECT_TRUE(isTranslated(text) || names.contains(text))
                << widget->objectName().toStdString() << ": " << text.toStdString();
            translated += isTranslated(text);
        }
    EXPECT_GE(translated, 4) << "the introduction, the state, the bar's name and the button";
}

TEST_F(PseudoLanguage, ASheetShowsNoTextThatIsNotTranslated) {
    for (const auto& alert :
         {stage::runningAlert(texts), stage::overwriteAlert(texts), stage::unableAlert(texts)}) {
        EXPECT_TRUE(isTranslated(QString::fromStdString(alert.message)));
        EXPECT_TRUE(isTranslated(QString::fromStdString(alert.informative)));
        for (const std::string& button : alert.buttons)
            EXPECT_TRUE(isTranslated(QString::fromStdString(button)));
    }
}
