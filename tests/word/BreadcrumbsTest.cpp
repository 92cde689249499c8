#include "word/Breadcrumbs.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/FilePropertyLists.h"
#include "tests/fakes/FakeHost.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using ec::Breadcrumbs;
using fakes::arrayProperty;
using fakes::otherProperty;
using fakes::stringProperty;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Records = std::vector<std::string>;

const std::string kFile =
    "/Users/someone/Library/Preferences/com.BrackleyHarlow.ScrivelCustomizer.plist";

/// The facet with what it stands on, over one implementation of the property lists.
struct Facet {
    Facet(fakes::FakeHost& host, ports::PropertyLists& lists)
        : session(host.bundles, host.places), log({.places = host.places,
                                                   .clock = host.clock,
                                                   .streams = host.streams,
                                                   .texts = host.texts,
                                                   .processingText = text,
                                                   .written = {}}),
          crumbs({.log = log, .session = session, .lists = lists}) {}
    controls::TextField text;
    ec::WizardSession session;
    ec::InstallLog log;
    Breadcrumbs crumbs;
};

struct BreadcrumbsTest : testing::Test {
    fakes::FakeHost host;
    Facet facet{host, host.propertyLists};
    Breadcrumbs& crumbs = facet.crumbs;

    Records stored() {
        const auto& file = host.propertyLists.files[kFile];
        const auto entry = file.find("Word");
        return entry == file.end() ? Records{"no array"} : entry->second.texts;
    }
    void keep(const Records& records) {
        host.propertyLists.files[kFile]["Word"] = arrayProperty(records);
        crumbs.readBreadcrumbs();
    }
};

TEST_F(BreadcrumbsTest, AddingTheSameRecordTwiceLeavesOneEntry) {
    crumbs.addWordCrumb("/W.app|||/S|||16");
    crumbs.addWordCrumb("/W.app|||/S|||16");
    EXPECT_THAT(stored(), ElementsAre("/W.app|||/S|||16"));
    EXPECT_EQ(crumbs.wordCrumbs(), stored());
}

TEST_F(BreadcrumbsTest, ARecordWhoseWordDiffersOnlyInLetterCaseReplacesTheStoredOne) {
    crumbs.addWordCrumb("/A/\u00C9W.app|||/S|||16");
    crumbs.addWordCrumb("/a/\u00E9w.APP|||/T|||15");
    EXPECT_THAT(stored(), ElementsAre("/a/\u00E9w.APP|||/T|||15"));
}

TEST_F(BreadcrumbsTest, EveryRecordOfTheSameWordIsReplacedInItsPlace) {
    keep({"/W.app|||/1|||16", "/X.app|||/2|||15", "/w.app|||/3|||16"});
    crumbs.addWordCrumb("/W.app|||/new|||16");
    EXPECT_THAT(stored(),
                ElementsAre("/W.app|||/new|||16", "/X.app|||/2|||15", "/W.app|||/new|||16"));
}

TEST_F(BreadcrumbsTest, ARecordOfAnotherWordIsAppendedAfterTheOthersAreLogged) {
    keep({"/W.app|||/1|||16", "", "plain"});
    crumbs.addWordCrumb("/X.app|||/2|||15");
    EXPECT_THAT(stored(), ElementsAre("/W.app|||/1|||16", "", "plain", "/X.app|||/2|||15"));
    EXPECT_THAT(host.logged(), ElementsAre("/W.app|||/1|||16", "", "plain"));
}

TEST_F(BreadcrumbsTest, ReplacedRecordsAreLoggedAsTheyWere) {
    keep({"/W.app|||/1|||16"});
    crumbs.addWordCrumb("/W.app|||/2|||16");
    EXPECT_THAT(host.logged(), ElementsAre("/W.app|||/1|||16"));
}

TEST_F(BreadcrumbsTest, RecordsWithFewerFieldsAreComparedByTheWholeOfThem) {
    keep({"/W.app", ""});
    crumbs.addWordCrumb("/w.app|||/S|||16");
    EXPECT_THAT(stored(), ElementsAre("/w.app|||/S|||16", ""));
    crumbs.addWordCrumb("");
    EXPECT_THAT(stored(), ElementsAre("/w.app|||/S|||16", ""));
    crumbs.addWordCrumb("|||/S|||16");
    EXPECT_THAT(stored(), ElementsAre("/w.app|||/S|||16", "|||/S|||16"));
}

TEST_F(BreadcrumbsTest, AnEmptyArrayAndAMissingOneBecomeTheRecordAlone) {
    crumbs.addWordCrumb("/W.app|||/S|||16");
    EXPECT_THAT(stored(), ElementsAre("/W.app|||/S|||16"));
    crumbs.deleteWordCrumb(0);
    EXPECT_THAT(stored(), IsEmpty());
    crumbs.addWordCrumb("/X.app|||/S|||16");
    EXPECT_THAT(stored(), ElementsAre("/X.app|||/S|||16"));
    EXPECT_THAT(host.logged(), IsEmpty());
}

TEST_F(BreadcrumbsTest, DeletingIndexFiveOfThreeSavesTheSameThree) {
    keep({"a", "b", "c"});
    crumbs.deleteWordCrumb(5);
    EXPECT_THAT(stored(), ElementsAre("a", "b", "c"));
    crumbs.deleteWordCrumb(-1);
    crumbs.deleteWordCrumb(3);
    EXPECT_THAT(stored(), ElementsAre("a", "b", "c"));
    EXPECT_EQ(host.propertyLists.written.size(), 3u);
}

TEST_F(BreadcrumbsTest, DeletingDropsThatEntryAlone) {
    keep({"a", "b", "a"});
    crumbs.deleteWordCrumb(2);
    EXPECT_THAT(stored(), ElementsAre("a", "b"));
    crumbs.deleteWordCrumb(0);
    EXPECT_THAT(stored(), ElementsAre("b"));
    EXPECT_THAT(host.logged(), IsEmpty());
}

TEST_F(BreadcrumbsTest, DeletingWithoutAnArraySavesAnEmptyOne) {
    crumbs.deleteWordCrumb(0);
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_EQ(crumbs.wordCrumbs(), Records());
}

TEST_F(BreadcrumbsTest, AfterAnyChangeTheFileHoldsTheExecutableEvenWithoutARecord) {
    crumbs.deleteWordCrumb(0);
    EXPECT_EQ(host.propertyLists.files[kFile]["Scrivel"], stringProperty(host.bundles.executable));
    host.propertyLists.files[kFile]["Scrivel"] = stringProperty("/older");
    crumbs.readBreadcrumbs();
    crumbs.addWordCrumb("/W.app|||/S|||16");
    EXPECT_EQ(host.propertyLists.files[kFile]["Scrivel"], stringProperty(host.bundles.executable));
}

TEST_F(BreadcrumbsTest, OtherKeysAreKeptAsTheyAre) {
    host.propertyLists.files[kFile] = {{"Other", otherProperty("a date")},
                                       {"Text", stringProperty("t")},
                                       {"List", arrayProperty({"l"})}};
    crumbs.readBreadcrumbs();
    crumbs.addWordCrumb("/W.app|||/S|||16");
    const auto& file = host.propertyLists.files[kFile];
    EXPECT_EQ(file.size(), 5u);
    EXPECT_EQ(file.at("Other"), otherProperty("a date"));
    EXPECT_EQ(file.at("Text"), stringProperty("t"));
    EXPECT_EQ(file.at("List"), arrayProperty({"l"}));
}

TEST_F(BreadcrumbsTest, AValueUnderWordThatIsNoArrayCountsAsNone) {
    host.propertyLists.files[kFile]["Word"] = stringProperty("/W.app|||/S|||16");
    crumbs.readBreadcrumbs();
    EXPECT_EQ(crumbs.wordCrumbs(), std::nullopt);
    crumbs.addWordCrumb("/X.app|||/S|||16");
    EXPECT_THAT(stored(), ElementsAre("/X.app|||/S|||16"));
}

TEST_F(BreadcrumbsTest, BeforeTheFileIsReadAndWithoutOneThereIsNothing) {
    EXPECT_EQ(crumbs.wordCrumbs(), std::nullopt);
    crumbs.readBreadcrumbs();
    EXPECT_EQ(crumbs.wordCrumbs(), std::nullopt);
    EXPECT_THAT(host.propertyLists.written, IsEmpty());
}

TEST_F(BreadcrumbsTest, ReadingAgainLeavesWhatTheFileDoesNotHave) {
    host.propertyLists.files[kFile]["One"] = stringProperty("1");
    crumbs.readBreadcrumbs();
    host.propertyLists.files[kFile] = {{"Two", stringProperty("2")}};
    crumbs.readBreadcrumbs();
    crumbs.saveBreadcrumbs();
    EXPECT_EQ(host.propertyLists.files[kFile].size(), 3u);
}

TEST_F(BreadcrumbsTest, ABrokenFileIsReadAsNothingWithoutAMessage) {
    host.propertyLists.broken.insert(kFile);
    crumbs.readBreadcrumbs();
    EXPECT_EQ(crumbs.wordCrumbs(), std::nullopt);
    EXPECT_THAT(host.logged(), IsEmpty());
    EXPECT_TRUE(host.propertyLists.broken.contains(kFile));
}

TEST_F(BreadcrumbsTest, ABrokenFileIsKeptAsideBeforeTheFirstSaveAndTheLogSaysSoOnce) {
    host.propertyLists.broken.insert(kFile);
    crumbs.readBreadcrumbs();
    crumbs.addWordCrumb("/W.app|||/S|||16");
    crumbs.deleteWordCrumb(0);
    EXPECT_TRUE(host.propertyLists.broken.contains(kFile + ".damaged"));
    EXPECT_EQ(host.propertyLists.written.size(), 2u);
    EXPECT_THAT(host.logged(),
                ElementsAre("Breadcrumbs: \"" + kFile + "\" is damaged and is kept as \"" + kFile +
                            ".damaged\""));
}

TEST_F(BreadcrumbsTest, ABrokenFileThatCannotBeKeptAsideIsNotOverwritten) {
    host.propertyLists.broken.insert(kFile);
    host.propertyLists.refusesChanges = true;
    crumbs.addWordCrumb("/W.app|||/S|||16");
    EXPECT_TRUE(host.propertyLists.broken.contains(kFile));
    EXPECT_THAT(host.logged(), IsEmpty());
    EXPECT_EQ(crumbs.wordCrumbs(), Records{"/W.app|||/S|||16"});
}

TEST_F(BreadcrumbsTest, AFailedWriteLeavesTheDictionaryCurrentAndSaysNothing) {
    host.propertyLists.refusesChanges = true;
    crumbs.addWordCrumb("/W.app|||/S|||16");
    crumbs.addWordCrumb("/X.app|||/S|||16");
    EXPECT_EQ(crumbs.wordCrumbs(), Records({"/W.app|||/S|||16", "/X.app|||/S|||16"}));
    EXPECT_THAT(host.logged(), ElementsAre("/W.app|||/S|||16"));
    EXPECT_THAT(host.propertyLists.files, IsEmpty());
}

TEST_F(BreadcrumbsTest, TheWorkingFieldsStartEmpty) {
    EXPECT_EQ(crumbs.m_crumb_word, "");
    EXPECT_EQ(crumbs.m_crumb_startup, "");
    EXPECT_EQ(crumbs.m_crumb_version, 0);
    EXPECT_FALSE(crumbs.m_breadCrumbsUpdated);
}

// --- With real files

struct BreadcrumbFiles : testing::Test {
    tests::TemporaryFolder folder;
    fakes::FakeHost host;
    posix::FilePropertyLists lists;
    const std::string name = "Library/Preferences/com.BrackleyHarlow.ScrivelCustomizer.plist";

    void SetUp() override {
        host.places.home = folder.path();
        fs::create_directories(folder.path("Library/Preferences"));
    }
    Records recordsOfANewRun() {
        Facet facet(host, lists);
        facet.crumbs.readBreadcrumbs();
        return facet.crumbs.wordCrumbs().value_or(Records{"no array"});
    }
    void addInANewRun(const std::string& record) {
        Facet facet(host, lists);
        facet.crumbs.readBreadcrumbs();
        facet.crumbs.addWordCrumb(record);
    }
};

TEST_F(BreadcrumbFiles, ALaterRunFindsWhatAnEarlierOneRemembered) {
    addInANewRun("/W.app|||/S & <T>|||16");
    addInANewRun("/X.app|||/S|||15");
    EXPECT_THAT(recordsOfANewRun(), ElementsAre("/W.app|||/S & <T>|||16", "/X.app|||/S|||15"));
    EXPECT_THAT(folder.read(name), HasSubstr("<key>Scrivel</key>\n\t<string>" +
                                             host.bundles.executable + "</string>"));
}

TEST_F(BreadcrumbFiles, TheFileIsAnXmlPropertyListForItsOwnerAlone) {
    addInANewRun("/W.app|||/S|||16");
    EXPECT_THAT(folder.read(name), HasSubstr("<key>Word</key>\n\t<array>\n\t\t<string>/W.app|||/S"
                                             "|||16</string>\n\t</array>"));
    EXPECT_TRUE(folder.read(name).starts_with("<?xml"));
    EXPECT_EQ(fs::status(folder.path(name)).permissions(), fs::perms(0600));
}

TEST_F(BreadcrumbFiles, UnknownKeysAndTypesAreKeptExactly) {
    const std::string others = "\t<key>When</key>\n\t<date>2024-01-02T03:04:05Z</date>\n"
                               "\t<key>Bytes</key>\n\t<data>\n\tAAEC/w==\n\t</data>\n"
                               "\t<key>Size</key>\n\t<real>0.5</real>\n"
                               "\t<key>Deep</key>\n\t<dict>\n\t\t<key>a</key>\n\t\t<array>\n"
                               "\t\t\t<true/>\n\t\t</array>\n\t</dict>\n";
    folder.write(name, "<plist version=\"1.0\"><dict>" + others + "</dict></plist>");
    addInANewRun("/W.app|||/S|||16");
    EXPECT_THAT(folder.read(name), HasSubstr("<dict>\n" + others + "\t<key>Word</key>"));
}

TEST_F(BreadcrumbFiles, EntriesOfTheArrayThatAreNoStringsArePassedOver) {
    folder.write(name, "<plist version=\"1.0\"><dict><key>Word</key><array><integer>7</integer>"
                       "<string>/W.app|||/S|||16</string></array></dict></plist>");
    EXPECT_THAT(recordsOfANewRun(), ElementsAre("/W.app|||/S|||16"));
    EXPECT_THAT(folder.read(name), HasSubstr("<integer>"));
    addInANewRun("/X.app|||/S|||16");
    EXPECT_THAT(recordsOfANewRun(), ElementsAre("/W.app|||/S|||16", "/X.app|||/S|||16"));
    EXPECT_THAT(folder.read(name), Not(HasSubstr("<integer>")));
}

TEST_F(BreadcrumbFiles, ABinaryFileIsReadAndBecomesXml) {
    const std::string binary("bplist00\xD1\x01\x02\x54Word\xA1\x03\x56/W|||S"
                             "\x08\x0B\x10\x12\0\0\0\0\0\0\x01\x01\0\0\0\0\0\0\0\x04"
                             "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x19",
                             8 + 3 + 5 + 2 + 7 + 4 + 8 + 24);
    folder.write(name, binary);
    EXPECT_THAT(recordsOfANewRun(), ElementsAre("/W|||S"));
    addInANewRun("/w|||T|||16");
    EXPECT_TRUE(folder.read(name).starts_with("<?xml"));
    EXPECT_THAT(recordsOfANewRun(), ElementsAre("/w|||T|||16"));
}

TEST_F(BreadcrumbFiles, EachBrokenFileIsKeptUnderANameOfItsOwn) {
    for (const char* bytes : {"first", "second"}) {
        folder.write(name, bytes);
        addInANewRun("/W.app|||/S|||16");
    }
    EXPECT_EQ(folder.read(name + ".damaged"), "first");
    EXPECT_EQ(folder.read(name + ".damaged-2"), "second");
    EXPECT_EQ(folder.names("Library/Preferences").size(), 3u);
    EXPECT_THAT(recordsOfANewRun(), ElementsAre("/W.app|||/S|||16"));
    EXPECT_EQ(host.logged().size(), 2u);
}

TEST_F(BreadcrumbFiles, AMissingPreferencesFolderIsNotMade) {
    fs::remove(folder.path("Library/Preferences"));
    Facet facet(host, lists);
    facet.crumbs.addWordCrumb("/W.app|||/S|||16");
    EXPECT_EQ(facet.crumbs.wordCrumbs(), Records{"/W.app|||/S|||16"});
    EXPECT_THAT(folder.names("Library"), IsEmpty());
    EXPECT_THAT(host.logged(), IsEmpty());
}

TEST_F(BreadcrumbFiles, AReadOnlyPreferencesFolderKeepsTheOldFile) {
    addInANewRun("/W.app|||/S|||16");
    const std::string before = folder.read(name);
    fs::permissions(folder.path("Library/Preferences"), fs::perms(0500));
    const tests::AsOrdinaryUser ordinary(folder.path());
    addInANewRun("/X.app|||/S|||16");
    EXPECT_EQ(folder.read(name), before);
    EXPECT_EQ(folder.names("Library/Preferences").size(), 1u);
}

TEST_F(BreadcrumbFiles, ThousandsOfRecordsAreKeptInTheirOrder) {
    constexpr int kMany = 5000;
    Records records;
    for (int i = 0; i < kMany; ++i)
        records.push_back("/Applications/W" + std::to_string(i) + ".app|||/S|||16");
    const auto dictionary = lists.emptyDictionary();
    dictionary->setStrings("Word", records);
    ASSERT_TRUE(lists.writeFile(*dictionary, folder.path(name)));
    addInANewRun("/applications/w4999.APP|||/T|||16");
    records.back() = "/applications/w4999.APP|||/T|||16";
    EXPECT_EQ(recordsOfANewRun(), records);
    EXPECT_EQ(host.streams.appended.size(), static_cast<std::size_t>(kMany));
}

} // namespace
