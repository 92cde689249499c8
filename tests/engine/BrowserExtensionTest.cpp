#include "engine/BrowserExtension.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/ports/PlatformError.h"
#include "tests/engine/LogLines.h"
#include "tests/engine/MethodsStage.h"
#include "tests/engine/ToolsInProcess.h"
#include "tests/support/OrdinaryUser.h"

namespace {

namespace fs = std::filesystem;
using ec::OpMode;
using lines::Lines;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr ec::OptionalText kNone = std::nullopt;
constexpr const char* kManifest = "https://updates.scrivel.example/extensions/chrome/"
                                  "update-manifest.xml";
const std::string kFolder = "Library/Application Support/Google/Chrome/External Extensions";
const std::string kName = "kmhdpbnaogjcfelipamcbkdgonhejlfa.json";
const std::string kContent = std::string("{\"external_update_url\":\"") + kManifest + "\"}";

struct BrowserExtensionTest : testing::Test {
    tests::MethodsStage stage;
    ec::ecController& controller = stage.controller;
    const std::string folder = stage.system(kFolder);
    const std::string file = folder + "/" + kName;
    const std::string staging = stage.temporary(kName);

    void SetUp() override { tests::serveInProcess(stage.host); }
    int perform(OpMode mode) {
        return controller.installTessaronMode(mode, 0, kNone, kNone).value();
    }
    void writeFile(const std::string& text = "{}") {
        stage.folder.write("disk/" + kFolder + "/" + kName, text);
    }
    static Lines state(const std::string& mode) {
        return {"State: Tessaron Extension Mode: mode_" + mode};
    }
    Lines written() const {
        return {lines::administrator("/bin/mkdir -p " + folder),
                lines::administrator("/bin/chown -R root:wheel " + folder),
                lines::administrator("/bin/cp " + staging + " " + file),
                lines::administrator("/bin/chown root:wheel " + file)};
    }
};

TEST_F(BrowserExtensionTest, TheFileIsOneLineWithPlainSlashesAndNothingElse) {
    EXPECT_EQ(perform(OpMode::copy), 1);
    EXPECT_EQ(tests::contentsOf(file), kContent);
}

TEST_F(BrowserExtensionTest, OnAMachineWithoutChromeTheFolderIsMadeAllTheSame) {
    std::string staged;
    stage.host.administrator.effect = [&](const ports::ToolCall& call) {
        if (call.tool == "/bin/cp")
            staged = tests::contentsOf(call.arguments.at(0));
        (void)tests::runInProcess(call);
    };
    EXPECT_EQ(perform(OpMode::copy), 1);
    EXPECT_EQ(staged, kContent);
    EXPECT_FALSE(fs::exists(staging));
    EXPECT_TRUE(fs::is_regular_file(file));
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all({state("copy"), lines::authenticated(), written()})));
    EXPECT_THAT(stage.run(), IsEmpty()) << "nothing is tried as the user";
}

TEST_F(BrowserExtensionTest, AFileThatIsThereIsReplaced) {
    writeFile("old");
    EXPECT_EQ(perform(OpMode::copy), 1);
    EXPECT_EQ(tests::contentsOf(file), kContent);
}

TEST_F(BrowserExtensionTest, RemovingRemovesTheFileAsAdministratorAndLeavesTheFolder) {
    writeFile();
    EXPECT_EQ(perform(OpMode::remove), 1);
    EXPECT_FALSE(fs::exists(file));
    EXPECT_TRUE(fs::exists(folder));
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all({state("remove"),
                                             lines::authenticated(),
                                             {lines::administrator("/bin/rm -f " + file)}})));
}

TEST_F(BrowserExtensionTest, RemovingWhatIsNotThereRunsNothingAndSucceeds) {
    EXPECT_EQ(perform(OpMode::remove), 1);
    EXPECT_THAT(stage.logged(), ElementsAreArray(state("remove")));
    EXPECT_EQ(stage.host.administrator.prompts, 0);
}

TEST_F(BrowserExtensionTest, ACheckLooksInTheCustomizerAloneAndElseAnswersByTheLaunchMode) {
    for (const bool installed : {false, true}) {
        if (installed)
            writeFile();
        const int seen = installed ? 1 : 0;
        for (const auto& [launchMode, answer] :
             {std::pair(0u, 0), {32u, 1}, {34u, 0}, {35u, seen}, {36u, 1}, {7u, 0}, {3500u, 0}}) {
            controller.m_mode = launchMode;
            EXPECT_EQ(perform(OpMode::check), answer) << launchMode;
            EXPECT_THAT(stage.logged(), ElementsAreArray(state("check")));
        }
    }
    EXPECT_TRUE(stage.host.administrator.calls.empty());
}

TEST_F(BrowserExtensionTest, TheLaunchModeDoesNotMatterToChanges) {
    for (const std::uint32_t launchMode : {0u, 32u, 34u, 35u, 36u}) {
        controller.m_mode = launchMode;
        EXPECT_EQ(perform(OpMode::copy), 1);
        EXPECT_TRUE(fs::exists(file));
        EXPECT_EQ(perform(OpMode::remove), 1);
        EXPECT_FALSE(fs::exists(file));
    }
}

TEST_F(BrowserExtensionTest, AnyOtherModeIsNo) {
    writeFile();
    for (const int mode : {0, 4, -1}) {
        EXPECT_EQ(perform(OpMode{mode}), 0) << mode;
        EXPECT_THAT(stage.logged(), ElementsAreArray(state("invalid")));
    }
    EXPECT_TRUE(fs::exists(file));
}

TEST_F(BrowserExtensionTest, AFolderInTheFilesPlaceIsNoFile) {
    fs::create_directories(file);
    EXPECT_EQ(perform(OpMode::check), 0);
    EXPECT_EQ(perform(OpMode::remove), 0);
    EXPECT_TRUE(stage.host.administrator.calls.empty());
    EXPECT_EQ(perform(OpMode::copy), 0);
    EXPECT_EQ(tests::contentsOf(file + "/" + kName), kContent) << "it is copied into the folder";
    EXPECT_FALSE(fs::exists(staging));
}

TEST_F(BrowserExtensionTest, WithRightsRefusedOnlyTheStagingFileIsMadeAndRemoved) {
    stage.refuseRights();
    EXPECT_EQ(perform(OpMode::copy), 0);
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all({state("copy"), lines::authenticated(false)})));
    EXPECT_FALSE(fs::exists(staging));
    EXPECT_FALSE(fs::exists(folder));
    writeFile("old");
    EXPECT_EQ(perform(OpMode::copy), 1) << "it was there before";
    EXPECT_EQ(tests::contentsOf(file), "old");
    EXPECT_EQ(perform(OpMode::remove), 0);
    EXPECT_EQ(stage.host.administrator.prompts, 1);
}

TEST_F(BrowserExtensionTest, WhatTheToolsSayDoesNotCountButWhatIsThere) {
    stage.host.administrator.missing = {"/bin/mkdir", "/bin/chown"};
    fs::create_directories(folder);
    EXPECT_EQ(perform(OpMode::copy), 1);
    stage.host.administrator.effect = {};
    EXPECT_EQ(perform(OpMode::remove), 0);
    fs::remove(file);
    EXPECT_EQ(perform(OpMode::copy), 0);
}

TEST_F(BrowserExtensionTest, WhenTheStagingFileCanNotBeWrittenNothingElseHappens) {
    fs::remove(stage.temporary(""));
    EXPECT_EQ(perform(OpMode::copy), 0);
    EXPECT_THAT(stage.logged(), ElementsAreArray(state("copy")));
    EXPECT_EQ(stage.host.administrator.prompts, 0);
}

TEST_F(BrowserExtensionTest, ALinkInTheStagingPlaceIsReplacedAndNotFollowed) {
    stage.folder.write("home/precious", "precious");
    fs::create_symlink(stage.home("precious"), staging);
    EXPECT_EQ(perform(OpMode::copy), 1);
    EXPECT_EQ(stage.folder.read("home/precious"), "precious");
}

TEST_F(BrowserExtensionTest, WhatThePlatformRaisesIsLoggedAndDisables) {
    writeFile();
    stage.host.administrator.effect = [](const auto&) { throw ports::PlatformError("raised"); };
    for (const OpMode mode : {OpMode::copy, OpMode::remove}) {
        EXPECT_EQ(perform(mode), -1);
        EXPECT_EQ(stage.logged().back(), "Exception Raised ");
    }
}

/// `useChromeStore` over files of all kinds.
struct ChromeStore : BrowserExtensionTest {
    bool with(const std::string& text) {
        writeFile(text);
        return controller.useChromeStore();
    }
    static std::string address(const std::string& value) {
        return "{\"external_update_url\":" + value + "}";
    }
};

TEST_F(ChromeStore, IsUsedWithoutAFileAndWithAFolderInItsPlace) {
    EXPECT_TRUE(controller.useChromeStore());
    fs::create_directories(file);
    EXPECT_TRUE(controller.useChromeStore());
}

TEST_F(ChromeStore, IsNotUsedByTheFileThatIsInstalled) {
    EXPECT_EQ(perform(OpMode::copy), 1);
    EXPECT_FALSE(controller.useChromeStore());
}

TEST_F(ChromeStore, IsUsedWhenTheAddressNamesItsHost) {
    EXPECT_TRUE(with(address("\"https://store.chrome.example/update\"")));
    EXPECT_TRUE(with(address("\"https:\\/\\/clients.store.chrome.example\\/update\"")));
    EXPECT_FALSE(with(address("\"https://STORE.CHROME.EXAMPLE/update\"")))
        << "the host is looked for as it stands";
    EXPECT_FALSE(with(address("\"\"")));
    EXPECT_FALSE(with(address("\"https://elsewhere.example/\"")));
}

TEST_F(ChromeStore, IsUsedWhenTheAddressIsMissingOrNoText) {
    for (const char* text : {"{}", "{\"external_update_URL\":\"x\"}"})
        EXPECT_TRUE(with(text)) << text;
    for (const char* value : {"null", "1", "true", "[]", "[\"https://elsewhere.example/\"]",
                              "{\"external_update_url\":\"x\"}"})
        EXPECT_TRUE(with(address(value))) << value;
}

TEST_F(ChromeStore, IsUsedWhenTheFileIsNoJson) {
    const std::string good = address("\"x\"");
    ASSERT_FALSE(with(good));
    for (const std::string& text :
         {std::string(), std::string(" "), std::string("\0", 1), std::string("{"),
          good.substr(0, good.size() - 1), good + "}", good + " x", "'" + good + "'",
          std::string("{external_update_url:\"x\"}"), address("\"x\","), address("x"),
          address("\"\xFF\""), address("\"\xC3\""), address("\"\\x\""), address("\"a\nb\""),
          std::string("// note\n") + good, std::string("null"),
          std::string("\"external_update_url\""), std::string("[") + good + "]"})
        EXPECT_TRUE(with(text)) << testing::PrintToString(text);
}

TEST_F(ChromeStore, OddButValidJsonIsRead) {
    const std::string good = address("\"x\"");
    EXPECT_FALSE(with("\n\t " + good + " \r\n"));
    EXPECT_FALSE(with("\xEF\xBB\xBF" + good)) << "a byte order mark is passed over";
    EXPECT_FALSE(with("{\"\\u0065xternal_update_url\":\"\\ud83d\\ude00\"}"));
    EXPECT_FALSE(with("{\"\":{},\"n\":-1e-40000,\"external_update_url\":\"x\"}"));
    EXPECT_FALSE(with(address("\"a\\u0000b\"")));
}

TEST_F(ChromeStore, OfTwoAddressesTheLastCounts) {
    EXPECT_FALSE(with("{\"external_update_url\":\"https://store.chrome.example\","
                      "\"external_update_url\":\"x\"}"));
}

TEST_F(ChromeStore, AHugeOrVeryDeepFileIsReadToItsEnd) {
    EXPECT_FALSE(with(address("\"" + std::string(2'000'000, 'x') + "\"")));
    const std::size_t depth = 100'000;
    const std::string deep = std::string(depth, '[') + std::string(depth, ']');
    EXPECT_FALSE(with("{\"other\":" + deep + ",\"external_update_url\":\"x\"}"));
    EXPECT_TRUE(with(std::string(depth, '[')));
    EXPECT_TRUE(with(std::string(depth, '{')));
}

TEST_F(ChromeStore, IsUsedWhenTheFileCanNotBeReadOrIsAPipe) {
    const std::string good = address("\"x\"");
    writeFile(good);
    fs::permissions(file, fs::perms::none);
    {
        const tests::AsOrdinaryUser user(stage.folder.path());
        EXPECT_TRUE(controller.useChromeStore());
    }
    fs::remove(file);
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_TRUE(controller.useChromeStore()) << "and nobody waits for a writer";
}

} // namespace
