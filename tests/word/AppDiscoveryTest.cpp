#include "word/AppDiscovery.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/formats/ResourceFork.h"
#include "platform/formats/VersionResource.h"
#include "platform/posix/PlistBundles.h"
#include "tests/fakes/FakeHost.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using ec::AppDiscovery;
using testing::ElementsAre;
using testing::IsEmpty;
using Paths = std::vector<std::string>;

/// Discovery under a root of the test's own, with real bundles and a pretended registry.
struct AppDiscoveryTest : testing::Test {
    tests::TemporaryFolder folder;
    fakes::FakeHost host;
    posix::PlistBundles bundles{"/bin/true"};
    controls::TextField text;
    std::optional<ec::WizardSession> session;
    std::optional<ec::InstallLog> log;
    std::optional<ec::Breadcrumbs> crumbs;
    std::optional<AppDiscovery> discovery;

    void SetUp() override {
        host.places.root = folder.path();
        fs::create_directories(folder.path("Applications"));
        session.emplace(host.bundles, host.places);
        log.emplace(ec::InstallLog::Needs{.places = host.places,
                                          .clock = host.clock,
                                          .streams = host.streams,
                                          .texts = host.texts,
                                          .processingText = text,
                                          .written = {}});
        crumbs.emplace(
            ec::Breadcrumbs::Needs{.log = *log, .session = *session, .lists = host.propertyLists});
        discovery.emplace(AppDiscovery::Needs{.log = *log,
                                              .session = *session,
                                              .breadcrumbs = *crumbs,
                                              .applications = host.applications,
                                              .bundles = bundles,
                                              .finderFiles = host.finderFiles});
    }

    /// Makes a bundle of this version; answers its path.
    std::string bundle(const std::string& name, const std::string& version) {
        folder.write(name + "/Contents/Info.plist",
                     "<plist version=\"1.0\"><dict><key>CFBundleShortVersionString</key><string>" +
                         version + "</string></dict></plist>");
        return folder.path(name);
    }
    std::string bundleWithoutVersion(const std::string& name) {
        folder.write(name + "/Contents/Info.plist", "<plist version=\"1.0\"><dict/></plist>");
        return folder.path(name);
    }
    /// Makes a file with these four bytes at the beginning of its 'vers' resource.
    std::string file(const std::string& name, const std::vector<int>& bytes, int number = 1) {
        std::string path = folder.write(name, "");
        formats::Bytes version;
        for (const int byte : bytes)
            version.push_back(static_cast<std::byte>(byte));
        host.finderFiles.forks[path] = formats::writeResourceFork(
            {{formats::fourCharacters("vers"), static_cast<std::int16_t>(number), "", version}});
        return path;
    }
    void remember(const Paths& records) {
        host.propertyLists.files["/Users/someone/Library/Preferences/"
                                 "com.BrackleyHarlow.ScrivelCustomizer.plist"]["Word"] =
            fakes::arrayProperty(records);
        crumbs->readBreadcrumbs();
    }
    void install(const Paths& paths) { host.applications.installed["com.microsoft.Word"] = paths; }
    std::string at(const std::string& name) { return folder.path("Applications/" + name); }

    struct Version {
        std::uint32_t major = 1001, minor = 1002, patch = 1003, build = 1004;
        bool operator==(const Version&) const = default;
    };
    Version versionOf(ec::OptionalText path) {
        Version version;
        EXPECT_EQ(discovery->getFileVersion(path, version.major, version.minor, version.patch,
                                            version.build),
                  0);
        return version;
    }
};

// --- Versions

TEST_F(AppDiscoveryTest, TheFourthByteOfAVersionResourceIsTheMajorVersion) {
    EXPECT_EQ(discovery->getMajorVersion(file("W", {0x10, 0x12, 0x80, 0x11})), 11);
    EXPECT_EQ(discovery->getMajorVersion(file("W", {0, 0, 0, 0x16})), 16);
    EXPECT_EQ(discovery->getMajorVersion(file("W", {0x16, 0x16, 0x16, 0})), 0);
    EXPECT_EQ(discovery->getMajorVersion(file("W", {0, 0, 0, 0x99})), 99);
}

TEST_F(AppDiscoveryTest, AByteThatIsNoDecimalCountsUpToItsFirstLetter) {
    EXPECT_EQ(discovery->getMajorVersion(file("W", {0, 0, 0, 0x1A})), 1);
    EXPECT_EQ(discovery->getMajorVersion(file("W", {0, 0, 0, 0xA1})), 0);
    EXPECT_EQ(discovery->getMajorVersion(file("W", {0, 0, 0, 0x0A})), 0);
    EXPECT_EQ(discovery->getMajorVersion(file("W", {0, 0, 0, 0x07})), 7);
}

TEST_F(AppDiscoveryTest, AFileWithoutAWholeVersionResourceOfNumberOneIsUnknown) {
    EXPECT_EQ(discovery->getMajorVersion(folder.write("plain", "text")), 255);
    EXPECT_EQ(discovery->getMajorVersion(file("short", {0, 0, 0x11})), 255);
    EXPECT_EQ(discovery->getMajorVersion(file("other", {0, 0, 0, 0x11}, 2)), 255);
    const std::string broken = folder.write("broken", "");
    host.finderFiles.forks[broken] = formats::Bytes(100, std::byte{7});
    EXPECT_EQ(discovery->getMajorVersion(broken), 255);
}

TEST_F(AppDiscoveryTest, ABundlesMajorVersionIsTheNumberThatItsVersionBeginsWith) {
    EXPECT_EQ(discovery->getMajorVersion(bundle("W.app", "16.78")), 16);
    EXPECT_EQ(discovery->getMajorVersion(bundle("W.app", " 15 beta")), 15);
    EXPECT_EQ(discovery->getMajorVersion(bundle("W.app", "beta")), 0);
    EXPECT_EQ(discovery->getMajorVersion(bundle("W.app", "")), 0);
}

TEST_F(AppDiscoveryTest, OfALargeMajorVersionTheLowEightBitsCount) {
    EXPECT_EQ(discovery->getMajorVersion(bundle("W.app", "256")), 0);
    EXPECT_EQ(discovery->getMajorVersion(bundle("W.app", "2016.1")), 224);
    EXPECT_EQ(discovery->getMajorVersion(bundle("W.app", "-1")), 255);
    EXPECT_EQ(discovery->getMajorVersion(bundle("W.app", "99999999999999999999999")), 255);
}

TEST_F(AppDiscoveryTest, WhatHasNoVersionIsUnknown) {
    EXPECT_EQ(discovery->getMajorVersion(std::nullopt), 255);
    EXPECT_EQ(discovery->getMajorVersion(""), 255);
    EXPECT_EQ(discovery->getMajorVersion(folder.path("absent")), 255);
    EXPECT_EQ(discovery->getMajorVersion(bundleWithoutVersion("W.app")), 255);
    EXPECT_EQ(discovery->getMajorVersion(folder.path("Applications")), 255);
}

TEST_F(AppDiscoveryTest, APathWithoutItsExtensionLeadsToTheBundle) {
    bundle("Applications/Microsoft Word.app", "16.1");
    EXPECT_EQ(discovery->getMajorVersion(at("Microsoft Word")), 16);
    EXPECT_EQ(discovery->getMajorVersion(at("Microsoft Word/")), 16);
    EXPECT_EQ(versionOf(at("Microsoft Word")).minor, 1u);
    fs::create_directory(at("Microsoft Word"));
    EXPECT_EQ(discovery->getMajorVersion(at("Microsoft Word")), 255);
}

TEST_F(AppDiscoveryTest, AVersionOfThreePartsLeavesTheBuildUntouched) {
    EXPECT_EQ(versionOf(bundle("W.app", "16.89.1")),
              (Version{.major = 16, .minor = 89, .patch = 1}));
}

TEST_F(AppDiscoveryTest, EmptyPartsAreUntouchedAndFurtherOnesIgnored) {
    EXPECT_EQ(versionOf(bundle("W.app", "16..1")), (Version{.major = 16, .patch = 1}));
    EXPECT_EQ(versionOf(bundle("W.app", "1.2.3.4.5")), (Version{1, 2, 3, 4}));
    EXPECT_EQ(versionOf(bundle("W.app", "...9")), (Version{.build = 9}));
    EXPECT_EQ(versionOf(bundle("W.app", "")), Version());
    EXPECT_EQ(versionOf(bundle("W.app", "21.0.0.19023")), (Version{21, 0, 0, 19023}));
}

TEST_F(AppDiscoveryTest, PartsAreNumbersAsFarAsTheyAreAndStopAtTheEndsOfTheirRange) {
    EXPECT_EQ(versionOf(bundle("W.app", "16b.x.-1.99999999999")),
              (Version{16, 0, 0xFFFFFFFF, 0x7FFFFFFF}));
}

TEST_F(AppDiscoveryTest, AFilesVersionHasNoPatch) {
    EXPECT_EQ(versionOf(file("W", {0x04, 0x80, 0x25, 0x11})),
              (Version{.major = 11, .minor = 25, .build = 4}));
}

TEST_F(AppDiscoveryTest, AVersionThatCannotBeReadLeavesAllUntouched) {
    EXPECT_EQ(versionOf(std::nullopt), Version());
    EXPECT_EQ(versionOf(folder.path("absent")), Version());
    EXPECT_EQ(versionOf(folder.write("plain", "")), Version());
    EXPECT_EQ(versionOf(bundleWithoutVersion("W.app")), Version());
}

// --- By identifier

TEST_F(AppDiscoveryTest, ApplicationsAreKeptInTheHostsOrderWhenTheirVersionIsInTheRange) {
    const Paths all{bundle("D.app", "99"),     bundle("C.app", "12"),
                    bundle("B.app", "100"),    bundle("A.app", "11"),
                    folder.path("absent.app"), bundleWithoutVersion("E.app")};
    install(all);
    EXPECT_EQ(discovery->findApplicationsWithBundleIdentifier("com.microsoft.Word", 12, 99),
              Paths({all[0], all[1]}));
    EXPECT_THAT(host.logged(),
                ElementsAre("findApplicationsWithBundleIdentifier: com.microsoft.Word"));
}

TEST_F(AppDiscoveryTest, NoApplicationInTheRangeIsNone) {
    EXPECT_EQ(discovery->findApplicationsWithBundleIdentifier("com.microsoft.Word", 12, 99),
              std::nullopt);
    install({bundle("W.app", "11")});
    EXPECT_EQ(discovery->findApplicationsWithBundleIdentifier("com.microsoft.Word", 12, 99),
              std::nullopt);
    EXPECT_EQ(discovery->findApplicationsWithBundleIdentifier("com.microsoft.Word", 99, 1),
              std::nullopt);
}

TEST_F(AppDiscoveryTest, AFailureOfTheRegistryIsLoggedAndIsNone) {
    host.applications.throwsForPaths = true;
    EXPECT_EQ(discovery->findApplicationsWithBundleIdentifier("x", 12, 99), std::nullopt);
    EXPECT_THAT(host.logged(),
                ElementsAre("findApplicationsWithBundleIdentifier: x", "Exception Raised "));
}

// --- By name

TEST_F(AppDiscoveryTest, AnItemInASubfolderIsFoundAndNoneInABundle) {
    const std::string deep = file("Applications/Office/2004/Microsoft Word", {0, 0, 0, 0x11});
    file("Applications/X.app/Microsoft Word", {0, 0, 0, 0x11});
    file("Applications/Office/Y.bundle/Microsoft Word", {0, 0, 0, 0x11});
    file("Applications/Office/Z.app/Contents/Microsoft Word", {0, 0, 0, 0x11});
    EXPECT_THAT(discovery->findApplication("Microsoft Word", 10, 11), ElementsAre(deep));
    EXPECT_THAT(host.logged(), ElementsAre("findApplication: Microsoft Word"));
}

TEST_F(AppDiscoveryTest, FilesMustBeInTheRangeAndFoldersNeedNot) {
    file("Applications/A/Microsoft Word", {0, 0, 0, 0x09});
    file("Applications/B/Microsoft Word", {0, 0, 0, 0x12});
    file("Applications/C/Microsoft Word", {0, 0, 0, 0x10});
    folder.write("Applications/D/Microsoft Word", "no version");
    bundle("Applications/E/Microsoft Word", "16");
    fs::create_directories(at("F/Microsoft Word"));
    EXPECT_THAT(
        discovery->findApplication("Microsoft Word", 10, 11),
        ElementsAre(at("C/Microsoft Word"), at("E/Microsoft Word"), at("F/Microsoft Word")));
}

TEST_F(AppDiscoveryTest, AFolderOfTheNameIsLookedIntoAfterIt) {
    fs::create_directories(at("Word/Word"));
    fs::create_directories(at("Another/Word"));
    EXPECT_THAT(discovery->findApplication("Word", 1, 2),
                ElementsAre(at("Another/Word"), at("Word"), at("Word/Word")));
}

TEST_F(AppDiscoveryTest, NamesAreComparedExactly) {
    file("Applications/microsoft word", {0, 0, 0, 0x11});
    file("Applications/Microsoft Word 2", {0, 0, 0, 0x11});
    fs::create_directories(at("Microsoft Word.app"));
    EXPECT_THAT(discovery->findApplication("Microsoft Word", 10, 11), IsEmpty());
    EXPECT_THAT(discovery->findApplication("Microsoft Word.app", 10, 11),
                ElementsAre(at("Microsoft Word.app")));
}

TEST_F(AppDiscoveryTest, LinksAreFoundByTheirNamesAndNotFollowed) {
    fs::create_directories(folder.path("elsewhere/Word"));
    fs::create_directory_symlink(folder.path("elsewhere"), at("Link"));
    EXPECT_THAT(discovery->findApplication("Word", 1, 2), IsEmpty());
    fs::create_directory_symlink(folder.path("elsewhere"), at("Word"));
    EXPECT_THAT(discovery->findApplication("Word", 1, 2), ElementsAre(at("Word")));
    fs::create_directory_symlink(at("."), at("Circle"));
    EXPECT_THAT(discovery->findApplication("Word", 1, 2), ElementsAre(at("Word")));
}

TEST_F(AppDiscoveryTest, AFolderThatCannotBeReadIsPassedOver) {
    fs::create_directories(at("A/Word"));
    fs::create_directories(at("B/Word"));
    fs::permissions(at("A"), fs::perms::none);
    const tests::AsOrdinaryUser ordinary(folder.path());
    EXPECT_THAT(discovery->findApplication("Word", 1, 2), ElementsAre(at("B/Word")));
}

TEST_F(AppDiscoveryTest, WithoutApplicationsNothingIsFound) {
    fs::remove(folder.path("Applications"));
    EXPECT_THAT(discovery->findApplication("Word", 1, 2), IsEmpty());
}

TEST_F(AppDiscoveryTest, AThousandFoldersDeepIsWalked) {
    // Deeper than a walk that keeps every folder open could go.
    std::string path = folder.path("Applications");
    for (int i = 0; i < 1100; ++i)
        fs::create_directory(path += "/d");
    fs::create_directory(path + "/Word");
    EXPECT_THAT(discovery->findApplication("Word", 1, 2), ElementsAre(path + "/Word"));
}

// --- Word's copies

TEST_F(AppDiscoveryTest, BreadcrumbsComeFirstThenTheHostsThenOldCopiesByName) {
    remember({"/C.app|||/S|||16", "/D.app"});
    install({bundle("B.app", "16"), bundle("A.app", "12"), bundle("old.app", "11")});
    const std::string old = file("Applications/Microsoft Word", {0, 0, 0, 0x10});
    const Paths all{"/C.app", "/D.app", folder.path("B.app"), folder.path("A.app"), old};
    EXPECT_EQ(discovery->wordPaths(), all);
    EXPECT_THAT(host.logged(),
                ElementsAre("findApplicationsWithBundleIdentifier: com.microsoft.Word",
                            "findApplication: Microsoft Word",
                            "Determine Word Paths: " + ec::listDescription(all)));
}

TEST_F(AppDiscoveryTest, ACopyThatIsKnownTwiceInAnotherLetterCaseOccursOnceAsTheBreadcrumbHasIt) {
    const std::string word = bundle("Word.app", "16");
    const std::string spelled = folder.path() + "/WORD.APP";
    remember({spelled + "|||/S|||16"});
    install({word, word});
    EXPECT_THAT(discovery->wordPaths(), ElementsAre(spelled));
}

TEST_F(AppDiscoveryTest, TheSearchIsRepeatedOnlyWhileItFindsNothing) {
    EXPECT_FALSE(discovery->checkWordExists());
    EXPECT_THAT(discovery->wordPaths(), IsEmpty());
    EXPECT_EQ(host.logged().size(), 4u);
    install({bundle("W.app", "16")});
    EXPECT_TRUE(discovery->checkWordExists());
    EXPECT_EQ(host.logged().size(), 7u);
    install({});
    EXPECT_TRUE(discovery->checkWordExists());
    EXPECT_THAT(discovery->wordPaths(), ElementsAre(folder.path("W.app")));
    EXPECT_EQ(host.logged().size(), 7u);
}

TEST_F(AppDiscoveryTest, AnUnloggedLookAnswersWhatASearchWouldAndKeepsNothing) {
    remember({"/C.app|||/S|||16", folder.path("b.APP") + "|||/S|||16"});
    install({bundle("B.app", "16"), bundle("A.app", "12"), bundle("old.app", "11")});
    file("Applications/Microsoft Word", {0, 0, 0, 0x10});
    const Paths looked = discovery->wordPathsUnlogged();
    EXPECT_THAT(host.logged(), IsEmpty());
    EXPECT_EQ(looked, discovery->wordPaths());
    EXPECT_EQ(host.logged().size(), 3u) << "this was the first search";
    install({bundle("New.app", "16")});
    EXPECT_EQ(discovery->wordPathsUnlogged(), looked) << "what was found before counts";
}

TEST_F(AppDiscoveryTest, RecordsWithoutAPathAreAPathOfTheirOwn) {
    remember({"", "|||/S|||16"});
    EXPECT_THAT(discovery->wordPaths(), ElementsAre(""));
}

TEST_F(AppDiscoveryTest, AddedRecordsAndPathsStandOnceInTheOrderOfTheirFirstAppearance) {
    discovery->addToWordPaths({"/B.app|||/S|||16", "/A.app", "/b.APP", "/A.app|||/T|||15"});
    discovery->addToWordPaths({"/C.app", "/a.app"});
    EXPECT_THAT(discovery->wordPaths(), ElementsAre("/B.app", "/A.app", "/C.app"));
    EXPECT_THAT(host.logged(), IsEmpty());
}

TEST_F(AppDiscoveryTest, ThousandsOfRememberedCopiesAreTakenOver) {
    Paths records;
    for (int i = 0; i < 5000; ++i)
        records.push_back("/W" + std::to_string(i % 2500) + ".app|||/S|||16");
    remember(records);
    EXPECT_EQ(discovery->wordPaths().size(), 2500u);
}

TEST_F(AppDiscoveryTest, NoCompanyIsAskedFor) {
    EXPECT_EQ(discovery->getUserCompany(), "");
}

} // namespace
