#include "app/CommandLine.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/OptionTable.h"

namespace {

using app::parseCommandLine;
using testing::HasSubstr;

TEST(CommandLine, WithoutArgumentsTheWindowInstallsOnThisMachine) {
    const auto parsed = parseCommandLine({}, "/home/someone");
    ASSERT_TRUE(parsed.options);
    EXPECT_EQ(parsed.options->command, "install");
    EXPECT_EQ(parsed.options->root, "");
    EXPECT_EQ(parsed.options->home, "/home/someone");
    EXPECT_FALSE(parsed.options->unattended);
}

TEST(CommandLine, OptionsMayStandBeforeAndBehindTheCommand) {
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"--yes", "install", "--root", "/r"},
          std::vector<std::string>{"install", "--root", "/r", "--yes"}}) {
        const auto parsed = parseCommandLine(words, "/h");
        ASSERT_TRUE(parsed.options) << parsed.error;
        EXPECT_TRUE(parsed.options->yes);
        EXPECT_EQ(parsed.options->root, "/r");
    }
}

TEST(CommandLine, FoldersBecomeAbsoluteWithoutATrailingSlash) {
    const auto parsed = parseCommandLine({"--root", "some/../where/", "--home", "/h/"}, "");
    EXPECT_EQ(parsed.options->root, (std::filesystem::current_path() / "where").string());
    EXPECT_EQ(parsed.options->home, "/h");
    EXPECT_EQ(parseCommandLine({"--root", "/"}, "").options->root, "");
}

TEST(CommandLine, AnAnswersFileImpliesAnUnattendedRun) {
    EXPECT_TRUE(parseCommandLine({"--answers", "a.json"}, "").options->unattended);
}

TEST(CommandLine, WrongWordsAreWrongUsageWithAHintToHelp) {
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"--nothing"}, std::vector<std::string>{"uninstall"},
          std::vector<std::string>{"--root"}, std::vector<std::string>{"--wait-for-apps", "-1"},
          std::vector<std::string>{"install", "install"}}) {
        const auto parsed = parseCommandLine(words, "");
        EXPECT_FALSE(parsed.options);
        EXPECT_EQ(parsed.exitStatus, 2);
        EXPECT_THAT(parsed.error, HasSubstr("--help"));
    }
}

TEST(CommandLine, HelpNamesEveryOptionAndCommandOfTheTable) {
    const auto parsed = parseCommandLine({"--help"}, "");
    EXPECT_EQ(parsed.exitStatus, 0);
    for (const auto& row : app::kOptions)
        EXPECT_THAT(parsed.output, HasSubstr(std::string(row.name)));
    for (const auto& row : app::kCommands)
        EXPECT_THAT(parsed.output, HasSubstr(std::string(row.name)));
}

} // namespace
