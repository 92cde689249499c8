// The fakes that have no real twin beside them here: they must at least keep the ports' words.
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/fakes/FakeAlertSheets.h"
#include "tests/fakes/FakeAppearance.h"
#include "tests/fakes/FakeFinderFiles.h"
#include "tests/fakes/FakeInterfaceFiles.h"
#include "tests/fakes/FakeModalLoop.h"
#include "tests/fakes/FakeSystemLog.h"

namespace {

TEST(FakeAlertSheets, TheCompletionRunsLaterAndMayShowTheNextSheet) {
    fakes::FakeAlertSheets sheets;
    controls::Window window;
    std::vector<int> codes;
    const ports::Alert alert{.message = "Again?", .informative = "", .buttons = {"OK", "Quit"}};
    std::function<void(int)> ask = [&](int code) {
        codes.push_back(code);
        if (code == ports::AlertSheets::kFirstButton)
            sheets.beginSheet(alert, window, ask);
    };
    sheets.beginSheet(alert, window, ask);
    EXPECT_TRUE(codes.empty());
    sheets.answers = {1000, 1001, 1000};
    while (sheets.deliver()) {
    }
    EXPECT_EQ(codes, std::vector({1000, 1001}));
    EXPECT_EQ(sheets.alerts.size(), 2u);
    EXPECT_THROW(sheets.answer(1000), std::logic_error);
}

TEST(FakeModalLoop, NestedSessionsEndInnermostFirstWithTheirOwnCodes) {
    fakes::FakeModalLoop loop;
    controls::Window outer;
    controls::Window inner;
    int turn = 0;
    loop.idle = [&] {
        EXPECT_TRUE(outer.isVisible());
        if (++turn == 1)
            EXPECT_EQ(loop.runModalForWindow(inner), 7);
        else
            loop.stopModalWithCode(turn == 2 ? 7 : 1);
        return true;
    };
    EXPECT_EQ(loop.runModalForWindow(outer), 1);
    EXPECT_EQ(loop.codes, std::vector({7, 1}));
    EXPECT_FALSE(outer.isVisible());
    loop.stopModalWithCode(3);
    EXPECT_FALSE(loop.isRunning());
}

TEST(FakeModalLoop, ASessionThatWaitsForNothingFailsInsteadOfHanging) {
    fakes::FakeModalLoop loop;
    controls::Window window;
    EXPECT_THROW(loop.runModalForWindow(window), std::logic_error);
    EXPECT_FALSE(loop.isRunning());
}

TEST(FakeInterfaceFiles, AMissingFileBindsNothing) {
    fakes::FakeInterfaceFiles files;
    controls::Window window;
    controls::Interface outlets{window, {}};
    files.missing = {"Customizer"};
    EXPECT_FALSE(files.load("Customizer", outlets));
    EXPECT_TRUE(files.load("ScrivelInstaller", outlets));
    EXPECT_EQ(files.loaded, std::vector<std::string>({"ScrivelInstaller"}));
}

TEST(FakeFinderFiles, ErrorsFollowTheFileManager) {
    fakes::FakeFinderFiles files;
    files.items["/a"] = {.type = 1, .creator = 2};
    EXPECT_EQ(files.resolve("/a"), 0);
    EXPECT_EQ(files.resolve("/b"), -43);
    EXPECT_EQ(files.finderInformation("/a").information.creator, 2u);
    EXPECT_EQ(files.finderInformation("/b").error, -43);
    EXPECT_EQ(files.createAliasFile("/a", {}), -48);
    EXPECT_EQ(files.createAliasFile("/b", files.aliasRecord("/a")), 0);
    EXPECT_EQ(files.setFinderInformation("/b", {.flags = 0x8000}), 0);
    EXPECT_EQ(files.items["/b"].flags, ports::FinderInformation::kIsAlias);
    EXPECT_TRUE(files.resourceFork("/a").empty());
    files.errors["resolve"] = -36;
    EXPECT_EQ(files.resolve("/a"), -36);
}

TEST(FakeAppearance, ItIsAsSet) {
    fakes::FakeAppearance appearance;
    EXPECT_FALSE(appearance.isDark());
    appearance.dark = true;
    appearance.version = 1670.5;
    EXPECT_TRUE(appearance.isDark());
    EXPECT_EQ(appearance.toolkitVersion(), 1670.5);
}

TEST(FakeSystemLog, LinesAreKeptInTheirOrder) {
    fakes::FakeSystemLog log;
    log.write("one");
    log.write("two");
    EXPECT_EQ(log.lines, std::vector<std::string>({"one", "two"}));
}

} // namespace
