#include "word/WordStartupFolders.h"

#include <algorithm>
#include <filesystem>

#include <gmock/gmock.h>

#include "platform/formats/ResourceFork.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/word/WordStage.h"

namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

struct WordStartupFoldersTest : tests::WordStage {
    /// An old Word that is one file, found by its name.
    std::string oldWord(std::uint8_t version) {
        std::string path = folder.write("Applications/Microsoft Word", "");
        host.finderFiles.forks[path] = formats::writeResourceFork(
            {{formats::fourCharacters("vers"), 1, "",
              formats::Bytes{{}, {}, {}, static_cast<std::byte>(version)}}});
        return path;
    }
    Texts pairs() {
        controller->constructWordAndStartupPaths();
        return controller->wordAndStartupPaths();
    }
};

// --- the folders of one Word

TEST_F(WordStartupFoldersTest, ACurrentWordWithoutBreadcrumbsHasTheSharedFolderAlone) {
    for (const auto* version : {"15.40", "16.89.1"}) {
        const std::string path = word("Word " + std::string(version) + ".app", version);
        EXPECT_THAT(controller->getWordStartupFolders(path), ElementsAre(shared));
    }
    EXPECT_EQ(shared, folder.path("Library/Application Support/Microsoft/Office365/"
                                  "User Content.localized/Startup.localized/Word"));
}

TEST_F(WordStartupFoldersTest, TheWordItsVersionAndItsFoldersAreLogged) {
    const std::string path = word("Word.app", "16.1");
    remember({path + "|||/A|||16"});
    EXPECT_THAT(controller->getWordStartupFolders(path), ElementsAre("/A", shared));
    EXPECT_THAT(logged(), ElementsAre("Word Startup Folder(s) for: \"" + path + "\", Version: 16.",
                                      "    --> \"/A\"", "    --> \"" + shared + "\""));
}

TEST_F(WordStartupFoldersTest, BreadcrumbsInAnyLetterCaseComeFirstAndTheSharedFolderLast) {
    const std::string path = word("Word.app", "16");
    std::string upper = path;
    std::ranges::transform(upper, upper.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    remember({path + "|||/A|||16", "/Other.app|||/C|||16", upper + "|||/B|||16"});
    EXPECT_THAT(controller->getWordStartupFolders(path), ElementsAre("/A", "/B", shared));
    EXPECT_THAT(pairs(), ElementsAre(path + "|||/A|||16")) << "only the first folder is listed";
}

TEST_F(WordStartupFoldersTest, AFolderThatStandsTwiceIsWantedTwice) {
    const std::string path = word("Word.app", "16");
    remember({path + "|||" + shared + "|||16", path + "|||" + shared + "|||16"});
    EXPECT_THAT(controller->getWordStartupFolders(path), ElementsAre(shared, shared, shared));
}

TEST_F(WordStartupFoldersTest, ARecordWithoutAFolderAddsNone) {
    const std::string path = word("Word.app", "14");
    remember({path, "", path + "|||", path + "||||||14"});
    EXPECT_THAT(controller->getWordStartupFolders(path), IsEmpty());
    EXPECT_THAT(logged(),
                ElementsAre("Word Startup Folder(s) for: \"" + path + "\", Version: 14."));
}

TEST_F(WordStartupFoldersTest, AnOlderOrNewerWordHasFoldersThroughBreadcrumbsOnly) {
    for (const auto* version : {"12", "14", "17", "99"}) {
        const std::string path = word("Word " + std::string(version) + ".app", version);
        EXPECT_THAT(controller->getWordStartupFolders(path), IsEmpty()) << version;
        remember({path + "|||/S|||14"});
        EXPECT_THAT(controller->getWordStartupFolders(path), ElementsAre("/S")) << version;
    }
}

TEST_F(WordStartupFoldersTest, BreadcrumbsOfAnotherTypeCountAsNone) {
    const std::string path = word("Word.app", "16");
    crumbsFile()["Word"] = fakes::stringProperty(path + "|||/A|||16");
    controller->readBreadcrumbs();
    EXPECT_THAT(controller->getWordStartupFolders(path), ElementsAre(shared));
    EXPECT_THAT(pairs(), ElementsAre(path + "|||" + shared + "|||16"));
}

// --- the pairs

TEST_F(WordStartupFoldersTest, AWordThatIsOneFileHasNoPairWithoutABreadcrumbNorWithOne) {
    const std::string path = oldWord(0x11);
    EXPECT_EQ(controller->getMajorVersion(path), 11);
    EXPECT_THAT(controller->getWordStartupFolders(path), IsEmpty());
    EXPECT_THAT(pairs(), IsEmpty());
    remember({path + "|||/S|||11"});
    EXPECT_THAT(controller->getWordStartupFolders(path), ElementsAre("/S"));
    EXPECT_THAT(pairs(), IsEmpty());
}

TEST_F(WordStartupFoldersTest, EachWordThatHasAFolderIsListedInTheOrderOfThePaths) {
    const std::string current = word("Word.app", "16");
    const std::string without = word("Word 2011.app", "14");
    const std::string before = word("Word 2016.app", "15");
    const std::string mine = wordUnknown("Mine/Word.app", "14");
    remember({mine + "|||/S|||14"});
    EXPECT_THAT(pairs(), ElementsAre(mine + "|||/S|||14", current + "|||" + shared + "|||16",
                                     before + "|||" + shared + "|||15"));
    EXPECT_THAT(controller->wordPaths(), Contains(without));
}

TEST_F(WordStartupFoldersTest, AWordThatIsGoneIsPassedOverWithoutAWord) {
    const std::string path = word("Word.app", "16");
    remember({"/no/such/Word.app|||/S|||16"});
    EXPECT_THAT(pairs(), ElementsAre(path + "|||" + shared + "|||16"));
    fs::remove(path);
    logged();
    EXPECT_THAT(pairs(), IsEmpty()) << "the list is made anew";
    EXPECT_THAT(logged(), IsEmpty());
}

TEST_F(WordStartupFoldersTest, WithoutAnyWordTheListIsEmptied) {
    EXPECT_THAT(pairs(), IsEmpty());
    EXPECT_THAT(logged(), ElementsAre("findApplicationsWithBundleIdentifier: com.microsoft.Word",
                                      "findApplication: Microsoft Word"));
}

TEST_F(WordStartupFoldersTest, ANameWithALineFeedIsOneRecord) {
    const std::string path = word("Word\n16.app", "16");
    const std::string startup = made("Start\nup");
    remember({path + "|||" + startup + "|||16"});
    EXPECT_THAT(pairs(), ElementsAre(path + "|||" + startup + "|||16"));
}

TEST_F(WordStartupFoldersTest, ANameWithTheSeparatorIsCutThereAsIsWanted) {
    const std::string path = word("Word|||16.app", "16");
    EXPECT_THAT(controller->wordPaths(), ElementsAre(folder.path("Applications/Word")));
    EXPECT_THAT(pairs(), IsEmpty());
    const std::string other = wordUnknown("Mine/Word.app", "14");
    remember({other + "|||/Start|||up|||14"});
    EXPECT_THAT(controller->getWordStartupFolders(other), ElementsAre("/Start"));
}

TEST_F(WordStartupFoldersTest, ThousandsOfBreadcrumbsAreRead) {
    Texts records;
    for (int i = 0; i < 3000; ++i)
        records.push_back("/W" + std::to_string(i) + ".app|||/S" + std::to_string(i) + "|||16");
    remember(records);
    EXPECT_THAT(controller->getWordStartupFolders("/w2999.APP"), ElementsAre("/S2999"));
}

// --- templates and old files

TEST_F(WordStartupFoldersTest, TheFirstFolderForTemplatesThatIsThereHoldsTheProducts) {
    host.bundles.arrays[{host.bundles.bundle, "SVCustomizerData", "Templates"}] = {
        "My Templates", "Templates", "Modèles"};
    controller->readCustomizerData();
    const std::string office = made("Office");
    EXPECT_EQ(controller->getWordTemplatesFolder(office), std::nullopt);
    made("Office/Modèles");
    folder.write("Office/My Templates", "a file");
    EXPECT_THAT(controller->getWordTemplatesFolder(office), Optional(office + "/Modèles/Scrivel"));
    made("Office/Templates");
    EXPECT_THAT(controller->getWordTemplatesFolder(office),
                Optional(office + "/Templates/Scrivel"));
}

TEST_F(WordStartupFoldersTest, WithoutNamesOfTemplateFoldersThereIsNone) {
    EXPECT_EQ(controller->getWordTemplatesFolder(folder.path()), std::nullopt);
}

TEST_F(WordStartupFoldersTest, OldFilesAreThoseWhoseNamesBeginWithScrivelInThatLetterCase) {
    const std::string startup = made("Startup");
    made("Startup/Scrivel PMRK Word 16.bundle");
    folder.write("Startup/scrivel.dot", "");
    folder.write("Startup/My Scrivel.dot", "");
    folder.write("Startup/Scrivel", "");
    folder.write("Startup/Scrivel PMRK Word 16.bundle/Scrivel inside", "");
    EXPECT_THAT(controller->getOldPMRKFiles(startup),
                ElementsAre(startup + "/Scrivel", startup + "/Scrivel PMRK Word 16.bundle"));
}

TEST_F(WordStartupFoldersTest, AFolderThatCannotBeReadHasNoOldFiles) {
    EXPECT_THAT(controller->getOldPMRKFiles("/no/such/folder"), IsEmpty());
    EXPECT_THAT(controller->getOldPMRKFiles(""), IsEmpty());
    EXPECT_THAT(controller->getOldPMRKFiles(folder.write("Scrivel file", "")), IsEmpty());
    folder.write("Closed/Scrivel", "");
    fs::permissions(folder.path("Closed"), fs::perms::none);
    const tests::AsOrdinaryUser ordinary(folder.path());
    EXPECT_THAT(controller->getOldPMRKFiles(folder.path("Closed")), IsEmpty());
}

} // namespace
