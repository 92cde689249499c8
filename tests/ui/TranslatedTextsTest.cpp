#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QImage>
#include <QLabel>
#include <QLibraryInfo>
#include <QLocale>
#include <QPushButton>

#include "tests/fakes/FakeLocalizedTexts.h"
#include "tests/support/LocalizedTextsContract.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/Stage.h"
#include "ui/SpokenLanguage.h"
#include "ui/Texts.h"
#include "ui/TranslatedTexts.h"

namespace fs = std::filesystem;

namespace tests {

namespace {

struct German {
    const ports::LocalizedTexts& texts(const TemporaryFolder& folder) {
        const fs::path translations = fs::path(folder.path()) / "translations";
        fs::create_directories(translations);
        fs::copy(SCRIVEL_BUNDLE_RESOURCES "/translations/scrivel_de.qm", translations,
                 fs::copy_options::skip_existing);
        return m_texts.emplace(ui::TranslatedTexts::Needs{.resourceFolder = folder.path(),
                                                          .languages = {"de_AT.UTF-8"}});
    }
    std::optional<ui::TranslatedTexts> m_texts;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Translated, LocalizedTextsContract, German);

} // namespace tests

namespace {

struct UsersLanguages : testing::Test {
    /// Ships the translation of `shipped` under another name.
    void ship(const std::string& shipped, const std::string& name) const {
        fs::create_directories(fs::path(folder.path()) / "resources/translations");
        fs::copy(SCRIVEL_BUNDLE_RESOURCES "/translations/scrivel_" + shipped + ".qm",
                 folder.path("resources/translations/scrivel_" + name + ".qm"));
    }
    ui::TranslatedTexts texts(std::vector<std::string> languages) const {
        return ui::TranslatedTexts(
            {.resourceFolder = folder.path("resources"), .languages = std::move(languages)});
    }
    std::string yes(std::vector<std::string> languages) const {
        return texts(std::move(languages)).lookUp("Yes");
    }
    static std::string shippedFor(std::vector<std::string> languages) {
        return ui::TranslatedTexts(
                   {.resourceFolder = SCRIVEL_BUNDLE_RESOURCES, .languages = std::move(languages)})
            .languageTag();
    }
    tests::TemporaryFolder folder;
};

} // namespace

TEST_F(UsersLanguages, TheNearestTranslationOfTheDearestLanguageIsTaken) {
    ship("de", "de");
    ship("es", "de_AT");
    ship("fr", "fr");
    EXPECT_EQ(yes({"de_AT.UTF-8", "fr"}), "Sí");
    EXPECT_EQ(yes({"de_CH@euro", "fr"}), "Ja");
    EXPECT_EQ(yes({"de-AT"}), "Sí");
    EXPECT_EQ(yes({"it", "fr_FR.UTF-8"}), "Oui");
    EXPECT_EQ(yes({"it"}), "Yes");
    EXPECT_EQ(yes({}), "Yes");
    EXPECT_EQ(texts({"de_CH"}).languageTag(), "de");
    EXPECT_EQ(texts({"it"}).languageTag(), "en");
}

TEST_F(UsersLanguages, EnglishIsReadyWithoutATranslation) {
    EXPECT_EQ(shippedFor({"en_GB.UTF-8", "de"}), "en");
    EXPECT_EQ(shippedFor({"en", "de"}), "en");
    EXPECT_EQ(shippedFor({"it", "en_US", "de"}), "en");
}

TEST_F(UsersLanguages, EveryCountryOfALanguageSpeaksIt) {
    EXPECT_EQ(shippedFor({"ar_EG"}), "ar");
    EXPECT_EQ(shippedFor({"fr_CA.UTF-8"}), "fr");
    EXPECT_EQ(shippedFor({"ja_JP.eucJP"}), "ja");
}

TEST_F(UsersLanguages, SimplifiedChineseIsShippedAndTraditionalIsPassedOver) {
    for (const char* simplified : {"zh_CN.UTF-8", "zh_SG", "zh-Hans", "zh-Hans-HK", "zh", "zh_CN"})
        EXPECT_EQ(shippedFor({simplified, "de"}), "zh_CN") << simplified;
    for (const char* traditional : {"zh_TW.UTF-8", "zh_HK", "zh_MO", "zh-Hant", "zh_Hant_CN"})
        EXPECT_EQ(shippedFor({traditional, "de"}), "de") << traditional;
    EXPECT_EQ(shippedFor({"zh_TW"}), "en");
    EXPECT_EQ(shippedFor({"zh_TW", "zh_CN"}), "zh_CN");
}

TEST_F(UsersLanguages, ANameFromTheEnvironmentCannotLeadElsewhere) {
    ship("de", "de");
    folder.write("resources/translations/scrivel_x/y", "");
    fs::copy(folder.path("resources/translations/scrivel_de.qm"),
             folder.path("resources/elsewhere.qm"));
    EXPECT_EQ(yes({"x/../../elsewhere"}), "Yes");
    EXPECT_EQ(yes({"", ".UTF-8", "_", "-"}), "Yes");
}

TEST_F(UsersLanguages, ATranslationThatCannotBeReadIsPassedOver) {
    folder.write("resources/translations/scrivel_de_AT.qm", "no translation");
    folder.write("resources/translations/scrivel_it.qm", "");
    ship("de", "de");
    ship("fr", "fr");
    EXPECT_EQ(yes({"de_AT", "fr"}), "Ja");
    EXPECT_EQ(yes({"it", "fr"}), "Oui");
}

TEST(LocalizedFormats, TakeTheirValuesInOrderOrByNumber) {
    fakes::FakeLocalizedTexts texts;
    const auto formatted = [&](const char* format) {
        texts.table["%@ MB of %@ MB"] = format;
        return ui::localized(texts, "%@ MB of %@ MB", {"1", "%@"}).toStdString();
    };
    EXPECT_EQ(formatted("%@ of %@."), "1 of %@.");
    EXPECT_EQ(formatted("all %2$@, of it %1$@"), "all %@, of it 1");
    EXPECT_EQ(formatted("%@ %@ %@ %3$@ %0$@ 100%"), "1 %@ %@ %3$@ %0$@ 100%");
}

// --- the language of the toolkit

TEST(SpokenLanguage, ReadsArabicFromTheRightAndLeavesNothingBehind) {
    const auto direction = QApplication::layoutDirection();
    const QLocale locale;
    {
        const ui::SpokenLanguage arabic("ar");
        EXPECT_EQ(QApplication::layoutDirection(), Qt::RightToLeft);
        EXPECT_EQ(QLocale().language(), QLocale::Arabic);
    }
    EXPECT_EQ(QApplication::layoutDirection(), direction);
    EXPECT_EQ(QLocale(), locale);
    const ui::SpokenLanguage japanese("ja");
    EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
}

TEST(SpokenLanguage, MirrorsAWindowWithItsLatinNamesForReadersFromTheRight) {
    const ui::SpokenLanguage arabic("ar");
    stage::InstallerModels models;
    ASSERT_TRUE(stage::front().frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets));
    models.window.orderFront();
    const auto* window = stage::dialogOnScreen();
    const auto* name = window->findChild<QLabel*>("productName");
    const auto* picture = window->findChild<QWidget*>("productPicture");
    EXPECT_GT(picture->x(), name->geometry().right());
    QImage shown = const_cast<QLabel*>(name)->grab().toImage();
    const auto isEmptyIn = [&](int column) {
        for (int row = 0; row < shown.height(); ++row)
            if (shown.pixel(column, row) != shown.pixel(0, 0))
                return false;
        return true;
    };
    int right = shown.width() - 1, left = 0;
    while (right > 0 && isEmptyIn(right))
        --right;
    while (left < right && isEmptyIn(left))
        ++left;
    EXPECT_GT(left, shown.width() - right) << "the name stands on the right";
}

TEST(SpokenLanguage, GivesTheToolkitItsOwnTexts) {
    if (!fs::exists(
            (QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm").toStdString()))
        GTEST_SKIP() << "the toolkit's translations are not installed";
    const ui::SpokenLanguage german("de");
    const ui::TranslatedTexts texts = stage::shippedTexts("de");
    ui::TextsTranslator translator(texts);
    QApplication::installTranslator(&translator);
    const QDialogButtonBox box(QDialogButtonBox::Discard);
    const QString title = box.button(QDialogButtonBox::Discard)->text();
    QApplication::removeTranslator(&translator);
    EXPECT_EQ(title, "Verwerfen");
}

TEST(SpokenLanguage, CountsAsTheUsersCountryDoes) {
    const auto name = [](const char* tag, const char* system) {
        return ui::SpokenLanguage::localeFor(tag, QLocale(system)).name().toStdString();
    };
    EXPECT_EQ(name("de", "de_CH"), "de_CH");
    EXPECT_EQ(name("de", "it_IT"), "de_DE");
    EXPECT_EQ(name("zh_CN", "zh_SG"), "zh_SG");
    EXPECT_EQ(name("zh_CN", "zh_TW"), "zh_CN");
    EXPECT_EQ(name("en", "C"), "en_US");
}
