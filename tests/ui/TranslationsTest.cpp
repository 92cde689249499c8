// The translations against each other and against the texts that the program asks for.
#include <gmock/gmock.h>

#include <set>

#include <QFile>
#include <QXmlStreamReader>

#include "tests/ui/Stage.h"

namespace {

std::size_t placesIn(const std::string& text) {
    std::size_t places = 0;
    for (std::size_t at = text.find("%@"); at != std::string::npos; at = text.find("%@", at + 2))
        ++places;
    return places;
}

std::set<std::string> translatableTextsOf(const QString& interfaceFile) {
    QFile file(interfaceFile);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    std::set<std::string> texts;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"string" &&
            !xml.attributes().hasAttribute("notr"))
            texts.insert(xml.readElementText().toStdString());
    return texts;
}

} // namespace

class Translations : public testing::TestWithParam<const char*> {};

TEST_P(Translations, HaveTheKeysOfTheEnglishTable) {
    const stage::TableTexts english("en");
    const stage::TableTexts texts(GetParam());
    EXPECT_EQ(texts.table().size(), english.table().size());
    for (const auto& [key, text] : texts.table()) {
        EXPECT_TRUE(english.table().contains(key)) << key;
        EXPECT_EQ(placesIn(text), placesIn(key)) << text;
        EXPECT_FALSE(text.empty()) << key;
    }
}

INSTANTIATE_TEST_SUITE_P(All, Translations, testing::Values("en", "de", "fr", "es", "ja"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST(EnglishTexts, AreTheirOwnKeys) {
    const stage::TableTexts english("en");
    for (const auto& [key, text] : english.table())
        EXPECT_EQ(text, key);
}

TEST(EnglishTexts, HoldEveryTextOfTheInstallersFlow) {
    const stage::TableTexts english("en");
    for (const char* key :
         {"Install %@", "Extracting %@\u2026", "Installing %@ to the Applications folder\u2026",
          "Launching %@ for the first time\u2026", "Canceling\u2026", "Cancel", "OK", "No", "Yes",
          "Quit Installer", "Unable to retreived required files for %@ installation.",
          "Please try again later.",
          "Scrivel and Microsoft Word cannot be open during %@ installation.",
          "Please quit Scrivel and Microsoft Word and click the OK button to continue, or click "
          "the Quit Installer button to quit this installer.",
          "Would you like to overwrite the %@ at /Applications/%@?",
          "You are about to install %@ version %@, but version %@ is already installed.  This "
          "cannot be undone."})
        EXPECT_TRUE(english.table().contains(key)) << key;
}

TEST(EnglishTexts, HoldEveryTextOfTheInterfaceFile) {
    const stage::TableTexts english("en");
    const auto texts = translatableTextsOf(SCRIVEL_RESOURCES "/ScrivelInstaller.ui");
    EXPECT_GE(texts.size(), 4u);
    for (const std::string& text : texts)
        EXPECT_TRUE(english.table().contains(text) || text == "Install Scrivel 21") << text;
}
