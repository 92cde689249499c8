#include <cerrno>
#include <filesystem>
#include <grp.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "platform/posix/DecidedAdministrator.h"
#include "platform/posix/FileTextStreams.h"
#include "platform/posix/SudoAdministrator.h"
#include "tests/fakes/FakeAdministrator.h"
#include "tests/support/AdministratorContract.h"
#include "tests/support/TemporaryFolder.h"

namespace tests {

namespace {

using ports::Administrator;
using ports::ToolCall;
using posix::DecidedAdministrator;
using posix::SudoAdministrator;

/// A stand-in for sudo that writes down how it was called, one line a call, and runs the command.
/// A file "refuse" beside it makes it refuse; a file "expired" makes it refuse "-n -v".
constexpr std::string_view kSudo = R"(#!/bin/sh
here=$(dirname "$0")
printf '%s|' "$@" "askpass=$SUDO_ASKPASS" >> "$here/calls"
echo >> "$here/calls"
[ -e "$here/refuse" ] && exit 1
[ -e "$here/expired" ] && [ "$1 $2" = "-n -v" ] && exit 1
case "$1 $2" in
"-n --") shift 2; exec "$@";;
esac
exit 0
)";

struct SudoHost {
    SudoHost() { folder.writeProgram("sudo", kSudo); }
    ToolCall toolThatPrints(const std::string& text, int exits = 0) {
        return {folder.writeProgram("tool", "#!/bin/sh\nprintf '%s' \"$1\"\nexit " +
                                                std::to_string(exits) + "\n"),
                {text}};
    }
    ToolCall missingTool() { return {folder.path("no tool"), {}}; }
    void refuse() { folder.write("refuse", ""); }
    std::string calls() { return folder.read("calls"); }

    tests::TemporaryFolder folder;
    posix::FileTextStreams streams;
    SudoAdministrator administrator{{.sudo = folder.path("sudo"), .isRoot = false}};
};

/// The same for a process that is root already.
struct RootHost : SudoHost {
    SudoAdministrator administrator{{.sudo = folder.path("sudo"), .isRoot = true}};
};

struct PretendedHost {
    ToolCall toolThatPrints(const std::string& text, int = 0) {
        administrator.output = text;
        return {"/tool", {}};
    }
    ToolCall missingTool() {
        administrator.missing.insert("/no tool");
        return {"/no tool", {}};
    }
    fakes::FakeTextStreams streams;
    fakes::FakeAdministrator administrator{streams};
};

using AdministratorHosts = testing::Types<SudoHost, RootHost, PretendedHost>;
INSTANTIATE_TYPED_TEST_SUITE_P(Administrators, AdministratorContract, AdministratorHosts);

class SudoTest : public testing::Test, protected SudoHost {
  protected:
    void TearDown() override {
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
        EXPECT_EQ(errno, ECHILD);
    }
    static void ignore(int) {}
};

TEST_F(SudoTest, OneRequestAsksOnceAndEachToolIsStartedWithoutAsking) {
    const ToolCall call = toolThatPrints("x");
    ASSERT_EQ(administrator.requestRights(), 0);
    EXPECT_EQ(administrator.start({call.tool, {"a b", "-n"}}, ignore), 0);
    administrator.freeSession();
    administrator.freeSession();
    EXPECT_EQ(calls(), "-v|askpass=|\n-n|-v|askpass=|\n-n|--|" + call.tool +
                           "|a b|-n|askpass=|\n-k|askpass=|\n");
}

TEST_F(SudoTest, TheAskpassProgramIsHandedToSudo) {
    SudoAdministrator asking(
        {.askpass = "/some/askpass", .sudo = folder.path("sudo"), .isRoot = false});
    EXPECT_EQ(asking.requestRights(), 0);
    EXPECT_EQ(calls(), "-A|-v|askpass=/some/askpass|\n");
}

TEST_F(SudoTest, ARefusalIsDeniedAndStartsNothing) {
    refuse();
    EXPECT_EQ(administrator.requestRights(), Administrator::kDenied);
    EXPECT_EQ(administrator.start(toolThatPrints("x"), ignore), Administrator::kDenied);
    administrator.freeSession();
    EXPECT_EQ(calls(), "-v|askpass=|\n");
}

TEST_F(SudoTest, ATicketThatRanOutIsAnErrorAndNoSecondPrompt) {
    ASSERT_EQ(administrator.requestRights(), 0);
    folder.write("expired", "");
    EXPECT_EQ(administrator.start(toolThatPrints("x"), ignore), Administrator::kDenied);
    EXPECT_EQ(calls(), "-v|askpass=|\n-n|-v|askpass=|\n");
}

TEST_F(SudoTest, AMissingSudoIsToldApartFromARefusal) {
    SudoAdministrator lacking({.sudo = folder.path("no sudo"), .isRoot = false});
    EXPECT_EQ(lacking.createSession(), 0);
    EXPECT_EQ(lacking.requestRights(), Administrator::kToolExecuteFailure);
    EXPECT_EQ(lacking.start(toolThatPrints("x"), ignore), Administrator::kDenied);
}

TEST_F(SudoTest, WhoeverWaitsIsCalledWhileTheUserIsAskedAndWhileAToolRunsAndLosesNoOutput) {
    int called = 0;
    SudoAdministrator waiting(
        {.sudo = folder.path("sudo"), .whileWaiting = [&] { ++called; }, .isRoot = false});
    ASSERT_EQ(waiting.requestRights(), 0);
    EXPECT_GT(std::exchange(called, 0), 0);
    std::string output;
    EXPECT_EQ(waiting.start({"/bin/sh", {"-c", "echo one; sleep 0.1; echo two"}},
                            [&](int end) { output = readAll(streams, end); }),
              0);
    EXPECT_EQ(output, "one\ntwo\n");
    EXPECT_GT(called, 2);
}

TEST_F(SudoTest, AGroupNamedWheelIsTheGroupWithTheNumberNoughtWhereItHasNoName) {
    SudoAdministrator root({.sudo = folder.path("sudo"), .isRoot = true});
    ASSERT_EQ(root.requestRights(), 0);
    std::string output;
    EXPECT_EQ(root.start({"/bin/echo", {"root:wheel", "wheel"}},
                         [&](int end) { output = readAll(streams, end); }),
              0);
    EXPECT_EQ(output, ::getgrnam("wheel") ? "root:wheel wheel\n" : "root:0 wheel\n");
}

TEST_F(SudoTest, RootIsNeverAskedAndSudoNeverCalled) {
    SudoAdministrator root({.sudo = folder.path("sudo"), .isRoot = true});
    EXPECT_EQ(root.requestRights(), 0);
    EXPECT_EQ(root.start(toolThatPrints("x"), ignore), 0);
    root.freeSession();
    EXPECT_EQ(calls(), "");
}

TEST_F(SudoTest, WithoutFurtherWordTheProcessItselfSaysWhetherItIsRoot) {
    EXPECT_EQ(SudoAdministrator::Needs().isRoot, ::geteuid() == 0);
}

TEST_F(SudoTest, AToolOfOurOwnStandsInForOneThatTheSystemLacks) {
    folder.writeProgram("own/lacking", "#!/bin/sh\nprintf ours\n");
    SudoAdministrator root({.ownToolsFolder = folder.path("own"), .isRoot = true});
    ASSERT_EQ(root.requestRights(), 0);
    std::string output;
    EXPECT_EQ(
        root.start({"/usr/bin/lacking", {}}, [&](int end) { output = readAll(streams, end); }), 0);
    EXPECT_EQ(output, "ours");
}

TEST(DecidedAdministrator, ARefusalHoldsForEverybodyAndTheHostIsNotAsked) {
    fakes::FakeAdministrator host;
    DecidedAdministrator refused({.inner = host, .authorize = false});
    EXPECT_EQ(refused.createSession(), 0);
    EXPECT_EQ(refused.requestRights(), Administrator::kDenied);
    EXPECT_EQ(refused.start({"/tool", {}}, [](int) {}), Administrator::kDenied);
    refused.freeSession();
    EXPECT_EQ(host.sessions + host.prompts, 0);
    EXPECT_TRUE(host.calls.empty());
}

TEST(DecidedAdministrator, OtherwiseTheHostDecides) {
    fakes::FakeAdministrator host;
    DecidedAdministrator allowed({.inner = host, .authorize = true});
    EXPECT_EQ(allowed.createSession(), 0);
    EXPECT_EQ(allowed.requestRights(), 0);
    EXPECT_EQ(allowed.start({"/tool", {"a"}}, [](int) {}), 0);
    EXPECT_EQ(host.calls, std::vector<ToolCall>({{"/tool", {"a"}}}));
    EXPECT_TRUE(host.sessionIsOpen);
    allowed.freeSession();
    EXPECT_FALSE(host.sessionIsOpen);
    host.rightsError = Administrator::kDenied;
    EXPECT_EQ(allowed.requestRights(), Administrator::kDenied);
}

} // namespace

} // namespace tests
