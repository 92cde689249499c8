// The translations beside the catalogue, and what the bundle makes of them.
#include <gmock/gmock.h>

#include <cstdlib>

#include "tests/support/TemporaryFolder.h"
#include "tests/ui/Catalogue.h"
#include "tests/ui/Stage.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::string fileOf(const std::string& language) {
    return SCRIVEL_RESOURCES "/translations/scrivel_" + language + ".ts";
}

/// What tools/texts says to `command` about a resource folder of one's own, and its status.
struct Said {
    int status;
    std::string lines;
};

Said texts(const std::string& command, const tests::TemporaryFolder& folder) {
    const std::string output = folder.path("output");
    const int status = std::system(
        ("'" SCRIVEL_TEXTS_TOOL "' " + command + " '" + folder.path() + "' >'" + output + "' 2>&1")
            .c_str());
    return {WEXITSTATUS(status), tests::contentsOf(output)};
}

std::string file(const std::string& messages) {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\">\n"
           "<context><name>Scrivel</name>\n" +
           messages + "</context>\n</TS>\n";
}

std::string message(const std::string& source, const std::string& translation) {
    return "<message><source>" + source + "</source><translation>" + translation +
           "</translation></message>\n";
}

} // namespace

class Translations : public testing::TestWithParam<const char*> {};

TEST_P(Translations, AreCompleteAndFinishedAndKeepPlacesAndLineFeeds) {
    EXPECT_THAT(
        catalogue::faultsOf(catalogue::read(fileOf(GetParam())), catalogue::read(fileOf("en"))),
        IsEmpty());
}

TEST_P(Translations, StandInTheBundleAsInTheSources) {
    const ui::TranslatedTexts shipped = stage::shippedTexts(GetParam());
    EXPECT_EQ(shipped.languageTag(), GetParam());
    for (const auto& [key, translation] : catalogue::read(fileOf(GetParam())))
        EXPECT_EQ(shipped.translated(key), translation.text);
}

INSTANTIATE_TEST_SUITE_P(All, Translations, testing::ValuesIn(stage::kLanguages),
                         [](const auto& instance) { return std::string(instance.param); });

TEST(Catalogue, HasEnglishTextsThatAreTheirOwnKeysAndTheCompilersKeys) {
    const auto english = catalogue::read(fileOf("en"));
    EXPECT_EQ(english.size(), std::size(ports::kTextKeys));
    for (const auto& [key, translation] : english) {
        EXPECT_EQ(translation.text, key);
        EXPECT_TRUE(ports::TextKey::isInCatalogue(key)) << key;
    }
}

TEST(Catalogue, TellsEveryFaultOfAnIncompleteLanguage) {
    const tests::TemporaryFolder folder;
    const catalogue::Translations english = {
        {"Install %@", {}}, {"%1$@ of %@", {}}, {"\nDone\n", {}}, {"Yes", {}}, {"No", {}}};
    const std::string path = folder.write(
        "scrivel_xx.ts",
        file(message("Install %@", "Einrichten") + message("\nDone\n", "\nFertig") +
             message("%1$@ of %@", "%@ von %2$@") + message("Yes", "") + message("Never", "Nie") +
             "<message><source>No</source><translation type=\"unfinished\">Nein</translation>"
             "</message>\n"));
    EXPECT_THAT(catalogue::faultsOf(catalogue::read(path), english),
                ElementsAre("other line feeds: \nDone\n", "other places: Install %@",
                            "not in the catalogue: Never", "unfinished: No", "empty: Yes"));
    EXPECT_THAT(catalogue::faultsOf({}, {{"Yes", {}}}), ElementsAre("lacks: Yes"));
}

TEST(TextsTool, ListsAndAddsWhatALanguageLacks) {
    const tests::TemporaryFolder folder;
    folder.write("translations/scrivel_en.ts",
                 file(message("Yes", "Yes") + message("Cut &amp; paste", "Cut &amp; paste") +
                      message("Two\nlines", "Two\nlines") + message("No", "No")));
    const std::string german =
        folder.write("translations/scrivel_de.ts",
                     file(message("No", "Nein") + message("Gone", "Weg") + message("Yes", "Ja")));
    const Said missing = texts("missing", folder);
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.lines, "de: \"Cut & paste\"\nde: \"Two\\nlines\"\n");

    const Said added = texts("add", folder);
    EXPECT_EQ(added.status, 0);
    EXPECT_THAT(added.lines, testing::HasSubstr("Weg")) << "what goes is shown";
    const std::string unfinished = "</source><translation type=\"unfinished\"></translation>"
                                   "</message>\n";
    const std::string whole =
        file(message("Yes", "Ja") + "<message><source>Cut &amp; paste" + unfinished +
             "<message><source>Two\nlines" + unfinished + message("No", "Nein"));
    EXPECT_EQ(tests::contentsOf(german), whole);
    EXPECT_EQ(texts("missing", folder).status, 1) << "unfinished is missing";
    EXPECT_EQ(texts("add", folder).lines, "");
    EXPECT_EQ(tests::contentsOf(german), whole) << "once is enough";
}

TEST(TextsTool, NamesFileLineAndTextOfAnInterfaceFilesUnknownText) {
    const tests::TemporaryFolder folder;
    folder.write("translations/scrivel_en.ts", file(message("Cut &amp; paste", "Cut &amp; paste")));
    folder.write("Known.ui", "<ui>\n<string>Cut &amp;amp; paste</string>\n"
                             "<string>Cut &amp; paste</string><string/>\n"
                             "<string notr=\"true\">Scrivel 21</string>\n"
                             "<stringlist notr=\"true\"><string>a</string></stringlist></ui>");
    const Said known = texts("interfaces", folder);
    EXPECT_EQ(known.status, 1);
    EXPECT_EQ(known.lines, folder.path("Known.ui") + ":2: not in " +
                               folder.path("translations/scrivel_en.ts") +
                               ": \"Cut &amp; paste\"\n");
    folder.write("Known.ui", "<ui>\n<string>Cut &amp; paste</string></ui>");
    EXPECT_EQ(texts("interfaces", folder).status, 0);
    folder.write("Other.ui", "<ui>\n<string comment=\"a verb\">Paste</string></ui>");
    EXPECT_THAT(texts("interfaces", folder).lines, testing::HasSubstr("Other.ui:2: "));
}
