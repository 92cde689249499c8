#include "engine/CommandRunner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "wizard/ecController.h"

namespace {

using ec::ExitStatus;
using ec::Params;
using testing::ElementsAre;
using testing::IsEmpty;

struct CommandRunnerTest : testing::Test {
    fakes::FakeHost host;
    tests::Components components;
    ec::ecController controller{host.host(), components.rules, components.root};

    void toolAnswers(int status, std::string output = {}) {
        host.tools.answers.push_back({.status = status, .output = std::move(output)});
    }
    void toolCanNotStart() { host.tools.answers.push_back({.cannotStart = true}); }
    void refuseRights() { host.administrator.rightsError = 1; }
};

TEST_F(CommandRunnerTest, AuthenticatingAsksOnceAndLogsTheOutcome) {
    EXPECT_TRUE(controller.authenticate());
    EXPECT_TRUE(controller.authenticate());
    EXPECT_EQ(host.administrator.prompts, 1);
    EXPECT_THAT(host.logged(), ElementsAre("Authenticate", "Authentication status :Succeeded"));
}

TEST_F(CommandRunnerTest, ARefusalIsRememberedUntilTheSessionIsDropped) {
    refuseRights();
    EXPECT_FALSE(controller.authenticate());
    host.administrator.rightsError = 0;
    EXPECT_FALSE(controller.authenticate());
    EXPECT_EQ(host.administrator.prompts, 1);
    EXPECT_TRUE(host.administrator.sessionIsOpen) << "the session outlives the refusal";
    controller.dethenticate();
    EXPECT_FALSE(host.administrator.sessionIsOpen);
    EXPECT_TRUE(controller.authenticate());
    EXPECT_EQ(host.administrator.prompts, 2);
}

TEST_F(CommandRunnerTest, ASessionThatCanNotBeMadeIsAFailureAndIsTriedAgainNextTime) {
    host.administrator.sessionError = -60008;
    EXPECT_FALSE(controller.authenticate());
    EXPECT_EQ(host.administrator.prompts, 0);
    EXPECT_TRUE(controller.rightsWereRefused());
    host.administrator.sessionError = 0;
    EXPECT_TRUE(controller.authenticate());
    EXPECT_FALSE(controller.rightsWereRefused());
}

TEST_F(CommandRunnerTest, DroppingWithoutASessionDoesNothing) {
    controller.dethenticate();
    EXPECT_THAT(host.logged(), IsEmpty());
}

TEST_F(CommandRunnerTest, AUserRunAnswersAndLogsTheToolsStatus) {
    toolAnswers(3);
    EXPECT_EQ(controller.launchApp("/bin/tool", Params{{std::string("a b"), "c"}}),
              ExitStatus::of(3));
    EXPECT_EQ(controller.launchApp("/bin/tool", std::nullopt), ExitStatus::success());
    EXPECT_THAT(host.logged(), ElementsAre("Running as user: /bin/tool a b c Result: 3",
                                           "Running as user: /bin/tool  Result: 0"));
    EXPECT_EQ(host.tools.calls[0].arguments, (std::vector<std::string>{"a b", "c"}));
}

TEST_F(CommandRunnerTest, AToolThatCanNotStartGivesOneHundredAndTwentySevenAndItsLine) {
    toolCanNotStart();
    EXPECT_EQ(controller.launchApp("/bin/none", std::nullopt), ExitStatus::of(127));
    EXPECT_THAT(host.logged(), ElementsAre("Running as user: /bin/none  Result: 127"));
}

TEST_F(CommandRunnerTest, ARootRunReportsOnlyThatTheToolStarted) {
    EXPECT_EQ(controller.launchRootApp("/bin/rm", Params{{std::string("-f"), "x"}}),
              ExitStatus::success());
    EXPECT_EQ(host.administrator.calls.size(), 1u);
    EXPECT_THAT(host.logged(), ElementsAre("Authenticate", "Authentication status :Succeeded",
                                           "Running as admin: /bin/rm -f x Result: 0"));
}

TEST_F(CommandRunnerTest, ARefusedRootRunIsWantedToCountAsSuccessAndLogsNothingMore) {
    refuseRights();
    EXPECT_TRUE(controller.launchRootApp("/bin/rm", std::nullopt).succeeded());
    EXPECT_TRUE(controller.launchRootApp("/bin/rm", std::nullopt).succeeded());
    EXPECT_THAT(host.administrator.calls, IsEmpty());
    EXPECT_THAT(host.logged(), ElementsAre("Authenticate", "Authentication status :Failed"));
}

TEST_F(CommandRunnerTest, ARootRunThatCanNotStartLogsBothLines) {
    host.administrator.missing.insert("/bin/none");
    const ExitStatus status = controller.launchRootApp("/bin/none", std::nullopt);
    EXPECT_FALSE(status.succeeded());
    const std::string code = std::to_string(status.code());
    EXPECT_THAT(host.logged(), ElementsAre("Authenticate", "Authentication status :Succeeded",
                                           "Failed to authenticate: /bin/none Result: " + code,
                                           "Running as admin: /bin/none  Result: " + code));
}

TEST_F(CommandRunnerTest, TheOutputOfALoggedCallGoesIntoTheLogBeforeItsStatus) {
    toolAnswers(0, "one\ntwo");
    EXPECT_TRUE(
        controller.systemCallWithLog("tool.sh", Params{{std::string("x")}}, false).succeeded());
    EXPECT_EQ(host.tools.calls[0].tool, host.bundles.resourceFolder + "/tool.sh");
    EXPECT_THAT(host.logged(), ElementsAre("one", "two", "Run as user: tool.sh x Result: 0"));
}

TEST_F(CommandRunnerTest, ALoggedCallForTheUserAloneAnswersTheUsersStatus) {
    toolAnswers(9);
    EXPECT_EQ(controller.systemCallWithLog("tool.sh", std::nullopt, true), ExitStatus::of(9));
    EXPECT_EQ(host.administrator.prompts, 0);
}

TEST_F(CommandRunnerTest, ALoggedCallWithRefusedRightsAnswersTheUsersStatus) {
    toolAnswers(9);
    refuseRights();
    EXPECT_EQ(controller.systemCallWithLog("tool.sh", std::nullopt, false), ExitStatus::of(9));
}

TEST_F(CommandRunnerTest, ALoggedCallGoesOnAsAdministratorWithItsOutputInTheLog) {
    toolAnswers(9);
    host.administrator.output = "as root\n";
    EXPECT_TRUE(controller.systemCallWithLog("tool.sh", std::nullopt, false).succeeded());
    EXPECT_THAT(host.logged(), ElementsAre("Run as user: tool.sh  Result: 9", "Authenticate",
                                           "Authentication status :Succeeded", "as root",
                                           "Run as admin: tool.sh  Result: 0"));
}

TEST_F(CommandRunnerTest, ALoggedCallThatCanNotStartAsAdministratorNamesTheWholePath) {
    toolAnswers(9);
    const std::string path = host.bundles.resourceFolder + "/tool.sh";
    host.administrator.missing.insert(path);
    const ExitStatus status = controller.systemCallWithLog("tool.sh", std::nullopt, false);
    EXPECT_FALSE(status.succeeded());
    EXPECT_EQ(host.logged()[3],
              "Failed to authenticate: " + path + " Result: " + std::to_string(status.code()));
}

TEST_F(CommandRunnerTest, AScriptsLineShowsItsParametersAsAList) {
    EXPECT_TRUE(controller.runResourceScript("Kill.sh", Params{{std::string("a b"), "c"}}, false)
                    .succeeded());
    EXPECT_EQ(host.logged()[0], "Run: Kill.sh -> Params: (\n    \"a b\",\n    c\n)");
    EXPECT_EQ(host.tools.calls[0].tool, host.bundles.resourceFolder + "/Kill.sh");
}

TEST_F(CommandRunnerTest, AScriptWithoutANameFailsAfterItsLine) {
    EXPECT_EQ(controller.runResourceScript(std::nullopt, std::nullopt, false),
              ExitStatus::failure());
    EXPECT_THAT(host.logged(), ElementsAre("Run: (null) -> Params: (null)"));
    EXPECT_THAT(host.tools.calls, IsEmpty());
}

TEST_F(CommandRunnerTest, AFailedScriptForTheUserAloneAnswersOne) {
    toolAnswers(9);
    EXPECT_EQ(controller.runResourceScript("a.sh", std::nullopt, true), ExitStatus::failure());
    EXPECT_EQ(host.administrator.prompts, 0);
}

TEST_F(CommandRunnerTest, AFailedScriptRunsOnceMoreAsAdministrator) {
    toolAnswers(9);
    EXPECT_EQ(controller.runResourceScript("a.sh", std::nullopt, false), ExitStatus::success());
    EXPECT_EQ(host.administrator.calls.size(), 1u);
}

TEST_F(CommandRunnerTest, OutputLosesItsLastCharacterWhateverItIs) {
    toolAnswers(0, "text\n");
    toolAnswers(0, "text");
    toolAnswers(0, "");
    EXPECT_EQ(controller.execCmdLineApp("/bin/echo", Params{{std::string("text")}}), "text");
    EXPECT_EQ(controller.execCmdLineApp("/bin/echo", std::nullopt), "tex");
    EXPECT_EQ(controller.execCmdLineApp("/bin/echo", std::nullopt), "");
    EXPECT_EQ(host.logged()[0], "Executing /bin/echo");
    EXPECT_EQ(host.logged()[1], "execCmdLineApp /bin/echo text result: text");
}

TEST_F(CommandRunnerTest, ANonZeroStatusMakesTheOutputERROR) {
    toolAnswers(1, "some text\n");
    EXPECT_EQ(controller.execCmdLineApp("/bin/false", std::nullopt), "ERROR");
    EXPECT_EQ(host.logged()[1], "execCmdLineApp /bin/false  result: ERROR");
}

TEST_F(CommandRunnerTest, AToolThatCanNotStartRaisesAnExceptionLineAndGivesNoText) {
    toolCanNotStart();
    EXPECT_EQ(controller.execCmdLineApp("/bin/none", std::nullopt), "");
    EXPECT_THAT(host.logged(), ElementsAre("Executing /bin/none", "Exception Raised "));
}

TEST_F(CommandRunnerTest, AToolNamedWithoutAPathIsOneOfTheResourcesAndTheLogHasItsName) {
    toolAnswers(0, "text\n");
    EXPECT_EQ(controller.execCmdLineApp("someTool", Params{{std::string("-x")}}), "text");
    EXPECT_EQ(host.tools.calls.at(0).tool, host.bundles.resourceFolder + "/someTool");
    EXPECT_THAT(host.logged(),
                ElementsAre("Executing someTool", "execCmdLineApp someTool -x result: text"));
}

TEST_F(CommandRunnerTest, AskingAToolLeavesNoLineAndAnswersItsStatus) {
    toolAnswers(0, "text");
    toolAnswers(3, "text");
    toolCanNotStart();
    const Params arguments{{std::string("--verify")}};
    EXPECT_EQ(controller.askTool("/bin/tool", arguments), ExitStatus::success());
    EXPECT_EQ(controller.askTool("/bin/tool", arguments), ExitStatus::of(3));
    EXPECT_EQ(controller.askTool("/bin/tool", arguments), ExitStatus::of(127));
    EXPECT_THAT(host.logged(), IsEmpty());
    EXPECT_EQ(host.tools.calls.at(1), (ports::ToolCall{"/bin/tool", {"--verify"}}));
}

TEST_F(CommandRunnerTest, AToolsOutputIsReadBackFromItsCharacters) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    bytes += "日本語";
    EXPECT_EQ(ec::charactersAsBytes(ec::bytesAsCharacters(bytes)), bytes);
    EXPECT_EQ(ec::charactersAsBytes("\xC3"), "\xC3");
}

TEST_F(CommandRunnerTest, OutputBeyondAsciiIsOneCharacterForEachByte) {
    toolAnswers(0, "\xE9!\xE9");
    EXPECT_EQ(controller.execCmdLineApp("/bin/echo", std::nullopt), "\u00E9!");
}

} // namespace
