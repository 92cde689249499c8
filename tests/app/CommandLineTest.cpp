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

TEST(CommandLine, OptionsThatDoNotFitTheCommandAreWrongUsageWithTheCommandTheyGoWith) {
    struct Misfit {
        std::vector<std::string> words;
        std::string remedy;
    };
    const std::vector<Misfit> misfits{
        {{"--short"}, "first-install"},
        {{"install", "--short"}, "first-install"},
        {{"customize", "--short"}, "first-install"},
        {{"penmark", "--launch-mode", "36"}, "first-install"},
        {{"--json"}, "list"},
        {{"update", "--json"}, "list"},
        {{"--unattended", "--select", "A"}, "customize"},
        {{"penmark", "--unattended", "--deselect", "A"}, "customize"},
        {{"first-install", "--unattended", "--select", "A"}, "customize"},
        {{"list", "--select", "A"}, "customize"},
        {{"customize", "--select", "A"}, "--unattended"},
        {{"customize", "--deselect", "A"}, "--unattended"},
        {{"first-install", "--short", "--launch-mode", "3"}, "leave one of them out"},
    };
    for (const auto& [words, remedy] : misfits) {
        const auto parsed = parseCommandLine(words, "");
        EXPECT_FALSE(parsed.options) << words[0];
        EXPECT_EQ(parsed.exitStatus, 2);
        EXPECT_THAT(parsed.error, HasSubstr(remedy));
    }
}

TEST(CommandLine, ALaunchModeIsAnyUnsigned32BitNumber) {
    const auto modeOf = [](const std::string& number) {
        return parseCommandLine({"first-install", "--launch-mode", number}, "").options;
    };
    EXPECT_EQ(modeOf("0")->launchMode, 0u);
    EXPECT_EQ(modeOf("34")->launchMode, 34u);
    EXPECT_EQ(modeOf("034")->launchMode, 34u) << "not octal";
    EXPECT_EQ(modeOf("4294967295")->launchMode, 4294967295u);
    for (const std::string number : {"4294967296", "-1", "+1", "1.5", "0x22", "", "short", "3 "})
        EXPECT_FALSE(modeOf(number)) << number;
    EXPECT_EQ(parseCommandLine({"first-install"}, "").options->launchMode, std::nullopt);
    EXPECT_TRUE(parseCommandLine({"first-install", "--short"}, "").options->shortSequence);
}

TEST(CommandLine, ComponentsAreChosenInTheOrderGiven) {
    const auto parsed = parseCommandLine({"--deselect", "A/B", "customize", "--select", "[C], D",
                                          "--unattended", "--deselect", "E", "--select=F"},
                                         "");
    ASSERT_TRUE(parsed.options) << parsed.error;
    EXPECT_THAT(parsed.options->choices, testing::ElementsAre(app::ComponentChoice{"A/B", false},
                                                              app::ComponentChoice{"[C], D", true},
                                                              app::ComponentChoice{"E", false},
                                                              app::ComponentChoice{"F", true}));
}

TEST(CommandLine, AComponentTakesOneNameAndTheCommandStaysACommand) {
    const auto parsed = parseCommandLine({"--unattended", "--select", "Services", "customize"}, "");
    ASSERT_TRUE(parsed.options) << parsed.error;
    EXPECT_EQ(parsed.options->command, "customize");
    EXPECT_EQ(parsed.options->choices.size(), 1u);
    EXPECT_EQ(parseCommandLine({"customize", "--unattended", "--select"}, "").exitStatus, 2);
}

TEST(CommandLine, AListNeedsNoWindow) {
    const auto parsed = parseCommandLine({"list", "--json"}, "");
    ASSERT_TRUE(parsed.options) << parsed.error;
    EXPECT_TRUE(parsed.options->unattended);
    EXPECT_TRUE(parsed.options->json);
}

TEST(CommandLine, EveryCommandOfTheTableIsTaken) {
    for (const auto& row : app::kCommands)
        EXPECT_EQ(parseCommandLine({std::string(row.name)}, "").options->command, row.name);
}

} // namespace
