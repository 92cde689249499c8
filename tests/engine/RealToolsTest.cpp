// The runner and the file operations with the real tools on real files.
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include "platform/formats/AliasRecord.h"
#include "platform/formats/ResourceFork.h"
#include "platform/posix/FileTextStreams.h"
#include "platform/posix/FinderFileStore.h"
#include "platform/posix/SpawnedTools.h"
#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "tests/support/TemporaryFolder.h"
#include "wizard/ecController.h"

namespace {

namespace fs = std::filesystem;
using ec::ExitStatus;
using ec::Params;
using testing::ElementsAre;
using testing::HasSubstr;

struct RealTools : testing::Test {
    tests::TemporaryFolder own;
    fs::path folder = own.path();
    fakes::FakeHost host;
    posix::SpawnedTools tools{{.ownToolsFolder = SCRIVEL_TOOLS}};
    posix::FileTextStreams streams;
    posix::FinderFileStore finderFiles{{.calls = posix::finderFileCalls()}};
    tests::Components components;
    std::optional<ec::ecController> controller;

    void SetUp() override {
        host.bundles.resourceFolder = folder.string();
        host.places.home = folder.string();
        fs::create_directories(folder / "Library/Logs");
        host.administrator.rightsError = 1; // what the user can't do is refused
        controller.emplace(ports::Host{.places = host.places,
                                       .clock = host.clock,
                                       .systemLog = host.systemLog,
                                       .streams = streams,
                                       .tools = tools,
                                       .administrator = host.administrator,
                                       .applications = host.applications,
                                       .finderFiles = finderFiles,
                                       .bundles = host.bundles,
                                       .propertyLists = host.propertyLists,
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
    }

    std::string make(const std::string& name, const std::string& text = "text") {
        const fs::path path = folder / name;
        fs::create_directories(path.parent_path());
        std::ofstream(path) << text;
        return path.string();
    }
    std::string at(const std::string& name) const { return (folder / name).string(); }
    std::string script(const std::string& name, const std::string& text) {
        make(name, "#!/bin/sh\n" + text + "\n");
        fs::permissions(folder / name, static_cast<fs::perms>(0755));
        return name;
    }
    std::vector<std::string> logged() const {
        constexpr std::size_t kDate = sizeof "2001-02-03 04:05:06 +0000 " - 1;
        std::vector<std::string> lines;
        std::ifstream log(folder / "Library/Logs/Scrivel 21 Stub Install.log");
        for (std::string line; std::getline(log, line);)
            lines.push_back(line.substr(kDate));
        return lines;
    }
};

TEST_F(RealTools, AFolderWhoseFilesAreImmutableIsUnlockedAndRemovedAsTheUser) {
    const std::string file = make("locked/inner/file");
    if (!controller->launchApp("/usr/bin/chflags", Params{{std::string("uchg"), file}}).succeeded())
        GTEST_SKIP() << "this user or this file system can't lock files";
    EXPECT_TRUE(controller->removeFile(at("locked")).succeeded());
    EXPECT_FALSE(fs::exists(at("locked")));
    EXPECT_EQ(host.administrator.prompts, 0);
}

TEST_F(RealTools, RemovingTakesFilesFoldersAndNamesWithBlanks) {
    make("a folder/with a file");
    EXPECT_TRUE(controller->removeFile(at("a folder")).succeeded());
    EXPECT_TRUE(controller->removeFile(make("-odd *name\n")).succeeded());
    EXPECT_FALSE(fs::exists(at("a folder")));
    EXPECT_FALSE(fs::exists(at("-odd *name\n")));
}

TEST_F(RealTools, ACopyIsWholeAndKeepsModesTimesLinksAndAttributes) {
    const std::string file = make("source/inner/file", "content");
    fs::permissions(file, static_cast<fs::perms>(0640));
    fs::create_symlink("inner/file", at("source/link"));
    const bool attributes = setxattr(file.c_str(), "user.note", "x", 1, 0) == 0;
    EXPECT_TRUE(controller->copyPath(at("source"), at("copy")).succeeded());
    struct stat before{};
    struct stat after{};
    ASSERT_EQ(stat(file.c_str(), &before), 0);
    ASSERT_EQ(stat(at("copy/inner/file").c_str(), &after), 0);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    EXPECT_EQ(fs::read_symlink(at("copy/link")), "inner/file");
    char value = 0;
    if (attributes) {
        EXPECT_EQ(getxattr(at("copy/inner/file").c_str(), "user.note", &value, 1), 1);
    }
}

TEST_F(RealTools, RenamingMovesAndLinkingLinks) {
    const std::string file = make("file");
    EXPECT_TRUE(controller->renameFile(file, at("renamed")).succeeded());
    EXPECT_TRUE(fs::exists(at("renamed")));
    EXPECT_TRUE(controller->symLink(at("renamed"), at("link")).succeeded());
    EXPECT_EQ(fs::read_symlink(at("link")), at("renamed"));
}

TEST_F(RealTools, AMadeFolderIsOpenToEveryoneButItsParentsAreNot) {
    EXPECT_TRUE(controller->makeDir(at("one/two")).succeeded());
    EXPECT_EQ(fs::status(at("one/two")).permissions(), static_cast<fs::perms>(0777));
    EXPECT_NE(fs::status(at("one")).permissions(), static_cast<fs::perms>(0777));
}

TEST_F(RealTools, AFailureWithTheRightsRefusedIsWantedToCountAsSuccess) {
    const std::string file = make("file");
    EXPECT_TRUE(controller->renameFile(file, at("no/such/folder")).succeeded());
    EXPECT_TRUE(fs::exists(file));
    EXPECT_THAT(logged().back(), HasSubstr("Authentication status :Failed"));
}

TEST_F(RealTools, AToolThatDoesNotExistGivesOneHundredAndTwentySeven) {
    EXPECT_EQ(controller->launchApp("/no/such/tool", std::nullopt), ExitStatus::of(127));
    EXPECT_EQ(controller->execCmdLineApp("/no/such/tool", std::nullopt), "");
    EXPECT_THAT(logged(), ElementsAre("Running as user: /no/such/tool  Result: 127",
                                      "Executing /no/such/tool", "Exception Raised "));
}

TEST_F(RealTools, ADeathBySignalIsANonZeroStatus) {
    EXPECT_EQ(controller->launchApp("/bin/sh", Params{{std::string("-c"), "kill -9 $$"}}),
              ExitStatus::of(137));
    EXPECT_EQ(controller->execCmdLineApp("/bin/sh", Params{{std::string("-c"), "kill -9 $$"}}),
              "ERROR");
}

TEST_F(RealTools, OutputLargerThanAPipeIsReadWhileTheToolRuns) {
    const std::string output = controller->execCmdLineApp(
        "/bin/sh", Params{{std::string("-c"), "head -c 3000000 /dev/zero | tr '\\0' x"}});
    EXPECT_EQ(output.size(), 2'999'999u) << "all of it less its last character";
}

TEST_F(RealTools, ALoggedScriptsBothStreamsGoIntoTheLog) {
    script("tool.sh", "echo out; echo err >&2; printf last; exit 3");
    EXPECT_EQ(controller->systemCallWithLog("tool.sh", Params{{std::string("a b")}}, true),
              ExitStatus::of(3));
    EXPECT_THAT(logged(), ElementsAre("out", "err", "last", "Run as user: tool.sh a b Result: 3"));
}

TEST_F(RealTools, AScriptGetsItsParametersElementByElement) {
    script("args.sh", "for a; do printf '%s\\n' \"$a\" >>" + at("arguments") + "; done");
    EXPECT_TRUE(controller
                    ->runResourceScript("args.sh",
                                        Params{{std::string("a b"), "$HOME", "*", "\"q\""}}, true)
                    .succeeded());
    std::vector<std::string> arguments;
    std::ifstream file(at("arguments"));
    for (std::string line; std::getline(file, line);)
        arguments.push_back(line);
    EXPECT_THAT(arguments, ElementsAre("a b", "$HOME", "*", "\"q\""));
}

TEST_F(RealTools, AnAliasFileHoldsARecordThatLeadsToItsTarget) {
    const std::string target = make("Target file");
    EXPECT_TRUE(controller->makeAliasTarget(target, at("Alias")));
    EXPECT_EQ(fs::file_size(at("Alias")), 0u);
    std::ifstream sidecar(at("._Alias"), std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(sidecar)), {});
    const auto file = formats::readAppleDouble(std::as_bytes(std::span(bytes)));
    ASSERT_TRUE(file);
    const auto record =
        formats::findResource(file->resourceFork, formats::fourCharacters("alis"), 0);
    ASSERT_TRUE(record);
    const auto alias = formats::readAliasRecord(*record);
    ASSERT_TRUE(alias);
    EXPECT_EQ(alias->name, "Target file");
    EXPECT_EQ(finderFiles.finderInformation(at("Alias")).information.flags, 0x8000);
    EXPECT_FALSE(controller->makeAliasTarget(target, at("Alias"))) << "there is one already";
    EXPECT_THAT(logged().back(), HasSubstr("Error code: -48"));
}

} // namespace
