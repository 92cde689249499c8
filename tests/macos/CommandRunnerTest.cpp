// The command runner over Authorization Services: what reaches the log and standard error when
// tools are run as administrator.
#include "engine/CommandRunner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/macos/AuthorizationServices.h"
#include "platform/posix/FileTextStreams.h"
#include "tests/fakes/FakeHost.h"
#include "tests/macos/FakeAuthorization.h"

namespace {

using ec::ExitStatus;
using ec::Params;
using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// The log's file in memory, but real descriptors, with the size of each buffer that was to be
/// filled.
class NotedStreams final : public ports::TextStreams {
  public:
    explicit NotedStreams(ports::TextStreams& files) : m_files(files) {}

    std::vector<std::size_t> buffers;

    bool append(const std::string& path, std::string_view bytes) override {
        return m_files.append(path, bytes);
    }
    std::size_t read(int descriptor, std::span<char> buffer) override {
        buffers.push_back(buffer.size());
        return m_descriptors.read(descriptor, buffer);
    }

  private:
    ports::TextStreams& m_files;
    posix::FileTextStreams m_descriptors;
};

struct CommandRunnerTest : testing::Test {
    fakes::Authorization system;
    fakes::FakeHost host;
    NotedStreams streams{host.streams};
    controls::TextField processingText;
    ec::InstallLog log{{.places = host.places,
                        .clock = host.clock,
                        .streams = streams,
                        .texts = host.texts,
                        .processingText = processingText,
                        .written = nullptr}};
    ec::WizardSession session{host.bundles, host.places};
    macoshost::AuthorizationServices services{{}};
    ec::CommandRunner runner{{.log = log,
                              .session = session,
                              .tools = host.tools,
                              .administrator = services,
                              .streams = streams}};
};

TEST_F(CommandRunnerTest, ARefusalIsLoggedOnceAndRememberedAndNothingRuns) {
    system.rightsStatus = errAuthorizationCanceled;
    EXPECT_EQ(runner.launchRootApp("/bin/rm", Params{{std::string("-f"), "x"}}),
              ExitStatus::success());
    EXPECT_EQ(runner.launchRootApp("/bin/rm", std::nullopt), ExitStatus::success());
    EXPECT_TRUE(runner.rightsWereRefused());
    EXPECT_THAT(host.logged(), ElementsAre("Authenticate", "Authentication status :Failed"));
    EXPECT_THAT(system.calls, ElementsAre("create 19", "rights 1 system.privilege.admin 19"));
}

TEST_F(CommandRunnerTest, AfterTheSessionWasDroppedTheUserIsAskedAgain) {
    system.rightsStatus = errAuthorizationDenied;
    EXPECT_FALSE(runner.authenticate());
    runner.dethenticate();
    system.rightsStatus = 0;
    EXPECT_TRUE(runner.authenticate());
    EXPECT_THAT(system.calls,
                ElementsAre("create 19", "rights 1 system.privilege.admin 19", "free 1 0",
                            "create 19", "rights 2 system.privilege.admin 19"));
}

TEST_F(CommandRunnerTest, ARootRunAsksOnceAndLogsThatTheToolWasStarted) {
    EXPECT_EQ(runner.launchRootApp("/bin/rm", Params{{std::string("-f"), "a b"}}),
              ExitStatus::success());
    EXPECT_EQ(runner.launchRootApp("/bin/ls", std::nullopt), ExitStatus::success());
    EXPECT_THAT(host.logged(), ElementsAre("Authenticate", "Authentication status :Succeeded",
                                           "Running as admin: /bin/rm -f a b Result: 0",
                                           "Running as admin: /bin/ls  Result: 0"));
    EXPECT_THAT(system.calls, ElementsAre("create 19", "rights 1 system.privilege.admin 19",
                                          "start 1 /bin/rm|-f|a b|0", "start 1 /bin/ls|0"));
}

TEST_F(CommandRunnerTest, ARootRunThatCannotStartLogsBothLinesWithTheSystemsStatus) {
    system.startStatus = errAuthorizationToolExecuteFailure;
    EXPECT_EQ(runner.launchRootApp("/bin/none", Params{{std::string("x")}}),
              ExitStatus::of(errAuthorizationToolExecuteFailure));
    EXPECT_THAT(host.logged(), ElementsAre("Authenticate", "Authentication status :Succeeded",
                                           "Failed to authenticate: /bin/none Result: -60031",
                                           "Running as admin: /bin/none x Result: -60031"));
}

TEST_F(CommandRunnerTest, TheOutputGoesToStandardErrorByOneHundredAndTwentyEightBytesToItsEnd) {
    system.output = std::string(100'000, 'x') + "the end";
    testing::internal::CaptureStderr();
    EXPECT_EQ(runner.launchRootApp("/bin/tool", std::nullopt), ExitStatus::success());
    EXPECT_TRUE(testing::internal::GetCapturedStderr() == system.output);
    EXPECT_THAT(streams.buffers, AllOf(Not(IsEmpty()), Each(128u)));
}

TEST_F(CommandRunnerTest, AToolOfTheResourcesThatFailsAsTheUserWritesAsAdministratorIntoTheLog) {
    host.tools.answers.push_back({.status = 3, .output = ""});
    system.output = "one\ntwo\n";
    EXPECT_EQ(runner.systemCallWithLog("tool", std::nullopt, false), ExitStatus::success());
    EXPECT_THAT(host.logged(), ElementsAre("Run as user: tool  Result: 3", "Authenticate",
                                           "Authentication status :Succeeded", "one", "two",
                                           "Run as admin: tool  Result: 0"));
    EXPECT_EQ(system.calls.back(), "start 1 " + session.m_custResourceDir + "/tool|0");
}

} // namespace
