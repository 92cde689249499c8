// The add-in with the real adapters and tools: Words, startup folders and breadcrumbs on disk,
// below a root of the test's own.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cp/private/SystemFolders.h"
#include "platform/formats/AppleDouble.h"
#include "platform/formats/ResourceFork.h"
#include "platform/formats/VersionResource.h"
#include "platform/linux/ProcApplications.h"
#include "platform/posix/FilePropertyLists.h"
#include "platform/posix/FileTextStreams.h"
#include "platform/posix/FinderFileStore.h"
#include "platform/posix/PlistBundles.h"
#include "platform/posix/SpawnedTools.h"
#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TreeOf.h"
#include "wizard/ecController.h"

namespace {

namespace fs = std::filesystem;
using ec::OpMode;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

const std::string k2016 = "Scrivel PMRK Word 2016.bundle";
const std::string k16 = "Scrivel PMRK Word 16.bundle";

/// The main bundle is the test's; the others are read from disk.
struct InstallerBundle final : ports::Bundles {
    explicit InstallerBundle(std::string place) : bundle(std::move(place)) {}
    std::string bundle;
    posix::PlistBundles others{"/bin/true"};

    std::string mainBundle() const override { return bundle; }
    std::string mainResourceFolder() const override { return bundle + "/Contents/Resources"; }
    std::string mainExecutable() const override { return bundle + "/Contents/MacOS/Installer"; }
    std::optional<std::string> infoString(const std::string& path, std::string_view key) override {
        return others.infoString(path, key);
    }
    Texts infoStrings(const std::string& path, std::string_view dictionaryKey,
                      std::string_view arrayKey) override {
        return others.infoStrings(path, dictionaryKey, arrayKey);
    }
    Texts infoStringsOfEach(const std::string& path, std::string_view listKey,
                            std::string_view arrayKey) override {
        return others.infoStringsOfEach(path, listKey, arrayKey);
    }
};

struct RealAddIn : testing::Test {
    tests::TemporaryFolder folder;
    fakes::FakeHost host;
    InstallerBundle bundles{folder.path("disk/Installer.app")};
    linuxhost::ProcApplications applications{
        {.bundles = bundles, .root = folder.path("root"), .home = folder.path("home")}};
    posix::SpawnedTools tools{{.ownToolsFolder = SCRIVEL_TOOLS}};
    posix::FileTextStreams streams;
    posix::FinderFileStore finderFiles{{.calls = posix::finderFileCalls()}};
    posix::FilePropertyLists lists;
    tests::Components components;
    std::optional<ec::ecController> controller;
    std::string shared;

    void SetUp() override {
        host.places = {.root = folder.path("root"),
                       .home = folder.path("home"),
                       .temporary = folder.path("temporary")};
        host.administrator.rightsError = 1; // what the user can't do is refused
        for (const auto* made : {"root/Applications", "home/Library/Logs",
                                 "home/Library/Preferences", "disk/Installer.app"})
            fs::create_directories(folder.path(made));
        for (const std::string& name : {k2016, k16}) {
            folder.write("disk/Penmark/" + name + "/Contents/Info.plist", "the plist of " + name);
            folder.writeProgram("disk/Penmark/" + name + "/Contents/MacOS/Penmark", name);
        }
        shared = host.places.system(ec::kSharedStartupFolder);
        fs::create_directories(shared);
        begin();
    }
    /// A wizard that knows nothing yet but what is on disk.
    void begin() {
        controller.emplace(ports::Host{.places = host.places,
                                       .clock = host.clock,
                                       .systemLog = host.systemLog,
                                       .streams = streams,
                                       .tools = tools,
                                       .administrator = host.administrator,
                                       .applications = applications,
                                       .finderFiles = finderFiles,
                                       .bundles = bundles,
                                       .propertyLists = lists,
                                       .texts = host.texts,
                                       .mainQueue = host.mainQueue,
                                       .backgroundQueue = host.backgroundQueue,
                                       .interfaceFiles = host.interfaceFiles,
                                       .alertSheets = host.alertSheets,
                                       .modalLoop = host.modalLoop,
                                       .appearance = host.appearance,
                                       .fileChoosers = host.fileChoosers,
                                       .reader = host.reader,
                                       .beeper = host.beeper},
                           components.rules, components.root);
        controller->readBreadcrumbs();
    }
    int install(OpMode mode) {
        return controller->installWordMode(mode, 0, std::nullopt, std::nullopt).value();
    }

    /// An Info.plist of these bytes in a Word of this name; answers the Word's path.
    std::string wordWithPlist(const std::string& name, const std::string& plist) {
        folder.write("root/Applications/" + name + "/Contents/Info.plist", plist);
        return folder.path("root/Applications/" + name);
    }
    std::string word(const std::string& name, const std::string& version) {
        return wordWithPlist(
            name, "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>"
                  "com.microsoft.Word</string><key>CFBundleShortVersionString</key><string>" +
                      version + "</string></dict></plist>");
    }
    /// One that is a single file with a resource fork.
    std::string oldWord(const std::string& place, std::uint8_t lastByte) {
        formats::VersionResource version;
        version.nonRelease = lastByte;
        formats::AppleDouble apple;
        apple.resourceFork = formats::writeResourceFork(
            {{formats::fourCharacters("vers"), 1, "", formats::writeVersionResource(version)}});
        const formats::Bytes fork = formats::writeAppleDouble(apple);
        folder.write("root/Applications/" + place + "/._Microsoft Word",
                     {reinterpret_cast<const char*>(fork.data()), fork.size()});
        return folder.write("root/Applications/" + place + "/Microsoft Word", "");
    }
    void remember(const Texts& records) {
        const auto crumbs = lists.emptyDictionary();
        crumbs->setStrings("Word", records);
        ASSERT_TRUE(lists.writeFile(*crumbs, host.places.expandTilde(ec::kBreadcrumbsFile)));
        begin();
    }
    Texts namesInShared() const {
        return folder.names(fs::relative(shared, folder.path()).string());
    }
    std::string log() const { return folder.read("home/Library/Logs/Scrivel 21 Stub Install.log"); }
};

TEST_F(RealAddIn, InstallingAndThenRemovingLeavesTheTreeAsItWas) {
    word("Microsoft Word.app", "16.89.1");
    folder.write("root" + std::string(ec::kSharedStartupFolder) + "/Mine.dotm", "mine");
    const auto before = tests::treeOf(folder.path("root"));
    EXPECT_EQ(install(OpMode::check), 0);
    EXPECT_EQ(install(OpMode::copy), 1);
    EXPECT_EQ(tests::treeOf(fs::path(shared) / k16),
              tests::treeOf(folder.path("disk/Penmark/" + k16)));
    EXPECT_EQ(install(OpMode::check), 1);
    EXPECT_EQ(install(OpMode::copy), 1) << "over the one that is there";
    EXPECT_EQ(install(OpMode::remove), 1);
    EXPECT_EQ(install(OpMode::check), 0);
    EXPECT_EQ(tests::treeOf(folder.path("root")), before);
    EXPECT_EQ(host.administrator.prompts, 0);
}

TEST_F(RealAddIn, AStartupFolderThatIsMissingIsMadeForEveryone) {
    word("Microsoft Word.app", "16");
    fs::remove_all(folder.path("root/Library"));
    EXPECT_EQ(install(OpMode::copy), 1);
    EXPECT_EQ(fs::status(shared).permissions(), static_cast<fs::perms>(0777));
    EXPECT_THAT(namesInShared(), ElementsAre(k16));
}

TEST_F(RealAddIn, EachVersionGetsItsOwnAddIn) {
    word("Word 2016.app", "15.41");
    EXPECT_EQ(install(OpMode::copy), 1);
    EXPECT_THAT(namesInShared(), ElementsAre(k2016));
    word("Word.app", "16.0");
    begin();
    EXPECT_EQ(install(OpMode::copy), 1);
    EXPECT_THAT(namesInShared(), ElementsAre(k16, k2016));
    EXPECT_EQ(install(OpMode::remove), 1);
    EXPECT_THAT(namesInShared(), IsEmpty());
}

TEST_F(RealAddIn, TwoWordsOf16AreServedInTheFolderThatTheyShare) {
    word("Word.app", "16.1");
    word("Word copy.app", "16.2");
    EXPECT_EQ(install(OpMode::copy), 1);
    EXPECT_THAT(namesInShared(), ElementsAre(k16));
    EXPECT_THAT(controller->wordPaths(), testing::SizeIs(2));
    EXPECT_EQ(install(OpMode::remove), 1);
    EXPECT_THAT(namesInShared(), IsEmpty());
}

TEST_F(RealAddIn, ABreadcrumbInAnotherLetterCaseNamesTheWordThatIsThenNotFoundOnSuchADisk) {
    const std::string path = word("Word.app", "16");
    const std::string spelled = folder.path("root/Applications/WORD.app");
    if (fs::exists(spelled))
        GTEST_SKIP() << "letter case does not count on this disk";
    fs::create_directories(folder.path("Mine"));
    remember({spelled + "|||" + folder.path("Mine") + "|||16"});
    EXPECT_THAT(controller->wordPaths(), ElementsAre(spelled)) << "the breadcrumb's spelling";
    EXPECT_EQ(install(OpMode::copy), 0);
    EXPECT_THAT(folder.names("Mine"), IsEmpty());
    controller->constructWordAndStartupPaths();
    EXPECT_THAT(controller->wordAndStartupPaths(), IsEmpty());
    // what lies in its folder is found and removed all the same
    fs::create_directories(folder.path("Mine/" + k16));
    EXPECT_EQ(install(OpMode::check), 1);
    EXPECT_EQ(install(OpMode::remove), 1);
    EXPECT_THAT(folder.names("Mine"), IsEmpty());
    EXPECT_TRUE(fs::exists(path));
}

TEST_F(RealAddIn, AWordWhoseInfoCannotBeReadGetsNothing) {
    for (const auto* plist : {"", "<plist><dict>", "\xFF\xFE garbage",
                              "<plist version=\"1.0\"><dict><key>CFBundleShortVersionString</key>"
                              "<integer>16</integer></dict></plist>"}) {
        const std::string path = wordWithPlist("Word.app", plist);
        fs::create_directories(folder.path("Mine"));
        remember({path + "|||" + folder.path("Mine") + "|||16"});
        EXPECT_EQ(controller->getMajorVersion(path), 255);
        EXPECT_EQ(install(OpMode::copy), 0) << plist;
        EXPECT_THAT(folder.names("Mine"), IsEmpty());
        controller->constructWordAndStartupPaths(); // 255 counts as new enough to be listed
        EXPECT_EQ(controller->wordAndStartupPaths().size(), 1u);
    }
}

TEST_F(RealAddIn, OldWordsThatAreSingleFilesAreFoundAndGetNothing) {
    const std::string ten = oldWord("Office X", 0x10);
    const std::string eleven = oldWord("Office 2004", 0x11);
    fs::create_directories(folder.path("Mine"));
    EXPECT_EQ(install(OpMode::copy), 0);
    EXPECT_THAT(controller->wordPaths(), ElementsAre(eleven, ten));
    remember({ten + "|||" + folder.path("Mine") + "|||10"});
    EXPECT_EQ(install(OpMode::copy), 0);
    EXPECT_THAT(folder.names("Mine"), IsEmpty());
    fs::create_directories(folder.path("Mine/" + k2016));
    EXPECT_EQ(install(OpMode::remove), 1) << "whatever the version";
    EXPECT_THAT(folder.names("Mine"), IsEmpty());
}

TEST_F(RealAddIn, AStartupFolderThatIsAFileStaysAsItIs) {
    word("Word.app", "16");
    fs::remove(shared);
    std::ofstream(shared) << "a file";
    EXPECT_EQ(install(OpMode::check), 0);
    EXPECT_EQ(install(OpMode::copy), 1) << "it was acted on, though in vain";
    EXPECT_EQ(install(OpMode::remove), 0);
    EXPECT_EQ(tests::contentsOf(shared), "a file");
    EXPECT_GT(host.administrator.prompts, 0);
    EXPECT_THAT(log(), HasSubstr("Authentication status :Failed"));
}

TEST_F(RealAddIn, AReadOnlyStartupFolderStaysAsItIsWhenTheRightsAreRefused) {
    word("Word.app", "16");
    fs::create_directories(fs::path(shared) / k2016 / "Contents");
    fs::permissions(shared, static_cast<fs::perms>(0555));
    const auto before = tests::treeOf(folder.path("root"));
    {
        const tests::AsOrdinaryUser ordinary(folder.path());
        EXPECT_EQ(install(OpMode::check), 1);
        EXPECT_EQ(install(OpMode::copy), 1);
        EXPECT_THAT(namesInShared(), ElementsAre(k2016));
        EXPECT_EQ(install(OpMode::remove), 1);
        EXPECT_THAT(namesInShared(), ElementsAre(k2016));
    }
    EXPECT_EQ(host.administrator.prompts, 1) << "asked once for the whole run";
    EXPECT_THAT(log(), HasSubstr("Authentication status :Failed"));
}

TEST_F(RealAddIn, BreadcrumbsOfAnotherTypeCountAsNone) {
    word("Word.app", "16");
    for (const auto* value : {"<string>/W.app|||/S|||16</string>", "<integer>1</integer>",
                              "<array><integer>1</integer><dict/></array>", "<dict/>"}) {
        folder.write("home/Library/Preferences/com.BrackleyHarlow.ScrivelCustomizer.plist",
                     "<plist version=\"1.0\"><dict><key>Word</key>" + std::string(value) +
                         "</dict></plist>");
        begin();
        EXPECT_EQ(install(OpMode::copy), 1) << value;
        EXPECT_THAT(namesInShared(), ElementsAre(k16));
        EXPECT_EQ(install(OpMode::remove), 1);
    }
}

TEST_F(RealAddIn, FoldersWithLineFeedsAndBlanksInTheirNamesAreServed) {
    const std::string path = word("Wo\nrd  2016.app", "16");
    const std::string startup = folder.path("My\n\"start\" up $HOME *");
    remember({path + "|||" + startup + "|||16"});
    EXPECT_EQ(install(OpMode::copy), 1);
    EXPECT_TRUE(fs::exists(fs::path(startup) / k16 / "Contents/MacOS/Penmark"));
    EXPECT_EQ(install(OpMode::remove), 1);
    EXPECT_TRUE(fs::is_empty(startup));
}

TEST_F(RealAddIn, AWordWithTheSeparatorInItsNameIsKnownByTheNameBeforeItAsIsWanted) {
    word("Word|||16.app", "16");
    EXPECT_EQ(install(OpMode::check), 0);
    EXPECT_THAT(controller->wordPaths(), ElementsAre(folder.path("root/Applications/Word")));
    EXPECT_EQ(install(OpMode::copy), 0);
    EXPECT_THAT(namesInShared(), IsEmpty());
}

TEST_F(RealAddIn, ALinkToAStartupFolderIsFollowedAndStays) {
    word("Word.app", "16");
    fs::remove(shared);
    fs::create_directories(folder.path("Elsewhere"));
    fs::create_directory_symlink(folder.path("Elsewhere"), shared);
    EXPECT_EQ(install(OpMode::copy), 1);
    EXPECT_THAT(folder.names("Elsewhere"), ElementsAre(k16));
    EXPECT_EQ(install(OpMode::remove), 1);
    EXPECT_THAT(folder.names("Elsewhere"), IsEmpty());
    EXPECT_TRUE(fs::is_symlink(shared));
}

// --- the staged folder

struct RealStagedPenmark : RealAddIn {
    void SetUp() override {
        RealAddIn::SetUp();
        Corvaldine::CP::Private::set_system_folder_bases(
            {.root = folder.path("root"), .home = "", .temporary = folder.path("temporary")});
        for (const auto* made : {"temporary", "disk/Installer.app/Contents/Resources"})
            fs::create_directories(folder.path(made));
        folder.write("disk/Installer.app/Contents/MacOS/Installer", "the installer");
        folder.write("product/Scrivel/Read Me.txt", "read me");
        folder.write("product/Scrivel/Scrivel Penmark/old", "old");
        ASSERT_EQ(tools.run({SCRIVEL_TOOLS "/makeArchive",
                             {folder.path("product/Scrivel"), "-o",
                              bundles.mainResourceFolder() + "/Scrivel.zip"}}),
                  0);
    }
    void TearDown() override { Corvaldine::CP::Private::set_system_folder_bases({}); }

    std::string inTemporary() const {
        return folder.path("temporary/" + folder.names("temporary").front());
    }
};

TEST_F(RealStagedPenmark, HoldsTheProductAndTheInstallerAndNothingThatWasThereBefore) {
    folder.write("root/Applications/Scrivel Penmark/earlier", "earlier");
    controller->preparePmrkFolder();
    EXPECT_THAT(folder.names("root/Applications/Scrivel Penmark"),
                ElementsAre("Installer.app", "Read Me.txt"));
    EXPECT_EQ(folder.read("root/Applications/Scrivel Penmark/Installer.app/Contents/MacOS/"
                          "Installer"),
              "the installer");
}

TEST_F(RealStagedPenmark, ItIsWantedThatCleaningUpTakesTheBareNameAndLeavesTheFolderRoundIt) {
    controller->preparePmrkFolder();
    folder.write("current/Scrivel/mine", "mine");
    folder.write("current/Scrivel 21", "mine too");
    const fs::path before = fs::current_path();
    fs::current_path(folder.path("current"));
    controller->cleanupPmrkFolder();
    fs::current_path(before);
    EXPECT_THAT(folder.names("current"), ElementsAre("Scrivel 21"));
    ASSERT_THAT(folder.names("temporary"), testing::SizeIs(1));
    EXPECT_TRUE(fs::is_empty(inTemporary())) << "the folder round the staged one stays";
}

} // namespace
