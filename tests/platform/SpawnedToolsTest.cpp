#include "platform/posix/SpawnedTools.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

#include "platform/ports/PlatformError.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using ports::ToolCall;
using ports::ToolProgress;
using posix::SpawnedTools;

std::string testTool() {
    return SCRIVEL_TEST_TOOL;
}

ToolCall call(std::vector<std::string> arguments) {
    return {testTool(), std::move(arguments)};
}

std::size_t openDescriptors() {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator("/dev/fd"), {}));
}

bool hasChildren() {
    return ::waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD;
}

std::string readAll(int descriptor) {
    std::string text;
    char buffer[4096];
    for (ssize_t count; (count = ::read(descriptor, buffer, sizeof buffer)) > 0;)
        text.append(buffer, static_cast<std::size_t>(count));
    return text;
}

/// Puts a pipe in the place of one of this process's standard descriptors.
class Redirected {
  public:
    explicit Redirected(int number) : m_number(number), m_before(::dup(number)) {
        EXPECT_EQ(::pipe(m_pipe), 0);
        for (const int end : m_pipe)
            EXPECT_EQ(::fcntl(end, F_SETFD, FD_CLOEXEC), 0);
        std::fflush(nullptr);
        ::dup2(m_pipe[1], number);
    }
    ~Redirected() { text(); }
    int readingEnd() const { return m_pipe[0]; }
    std::string text() {
        if (m_before < 0)
            return {};
        ::dup2(m_before, m_number);
        ::close(std::exchange(m_before, -1));
        ::close(m_pipe[1]);
        std::string all = readAll(m_pipe[0]);
        ::close(m_pipe[0]);
        return all;
    }

  private:
    int m_number;
    int m_before;
    int m_pipe[2];
};

/// Ends the process that a tool left behind; its number is the tool's first line.
void endLeftBehind(const std::string& output) {
    const int number = std::atoi(output.c_str());
    ASSERT_GT(number, 1);
    EXPECT_EQ(::kill(number, SIGKILL), 0);
}

class ToolsTest : public testing::Test {
  protected:
    void TearDown() override {
        EXPECT_FALSE(hasChildren());
        EXPECT_EQ(openDescriptors(), m_descriptors);
    }
    SpawnedTools tools{{}};
    tests::TemporaryFolder folder;

  private:
    std::size_t m_descriptors = openDescriptors();
};

TEST_F(ToolsTest, ArgumentsReachTheToolAsTheyStand) {
    const auto captured = tools.capture(call({"print", "two words", "", "$HOME", "a'b\"c", "*"}));
    EXPECT_EQ(captured.output, "two words\n\n$HOME\na'b\"c\n*\n");
    EXPECT_EQ(captured.status, 0);
}

TEST_F(ToolsTest, AToolThatASignalEndsGives128AndItsNumber) {
    EXPECT_EQ(tools.run(call({"kill", "9"})), 137);
    EXPECT_EQ(tools.capture(call({"kill", "15"})).status, 143);
    EXPECT_EQ(tools.runThroughPipe(call({"kill", "15"}), readAll), 143);
}

TEST_F(ToolsTest, AFileThatMayNotBeRunCannotStart) {
    const std::string file = folder.write("no-tool", "#!/bin/sh\n");
    EXPECT_EQ(tools.run({file, {}}), SpawnedTools::kCannotStart);
    EXPECT_THROW((void)tools.capture({file, {}}), ports::PlatformError);
}

TEST_F(ToolsTest, TheErrorOfAToolThatCannotStartNamesItAndTheReason) {
    try {
        (void)tools.capture({"/nowhere/tool", {}});
        FAIL() << "it was started";
    } catch (const ports::PlatformError& error) {
        EXPECT_EQ(std::string(error.what()),
                  "/nowhere/tool can't be started: No such file or directory");
    }
}

TEST_F(ToolsTest, MuchOutputDoesNotHang) {
    constexpr std::size_t kTenMegabytes = 10'000'000;
    EXPECT_EQ(tools.capture(call({"flood", "10000000"})).output.size(), kTenMegabytes);
    std::size_t read = 0;
    tools.runThroughPipe(call({"flood", "10000000"}), [&](int end) { read = readAll(end).size(); });
    EXPECT_EQ(read, kTenMegabytes);
}

TEST_F(ToolsTest, AToolThatClosesItsOutputEarlyIsStillWaitedFor) {
    EXPECT_EQ(tools.capture(call({"closeEarly", folder.path("a")})).status, 7);
    EXPECT_TRUE(std::filesystem::exists(folder.path("a")));
    EXPECT_EQ(tools.runThroughPipe(call({"closeEarly", folder.path("b")}), readAll), 7);
    EXPECT_TRUE(std::filesystem::exists(folder.path("b")));
}

TEST_F(ToolsTest, AProcessLeftBehindDoesNotKeepTheCaller) {
    const auto captured = tools.capture(call({"leaveBehind"}));
    EXPECT_EQ(captured.status, 0);
    endLeftBehind(captured.output);
    std::string output;
    EXPECT_EQ(tools.runThroughPipe(call({"leaveBehind"}), [&](int end) { output = readAll(end); }),
              0);
    endLeftBehind(output);
}

TEST_F(ToolsTest, AProcessLeftBehindThatGoesOnWritingDoesNotKeepTheCaller) {
    const auto captured = tools.capture(call({"leaveBehind", "more and more\n"}));
    // Its number may come after its first output: both write to the same pipe.
    const std::size_t number = captured.output.find_first_of("0123456789");
    ASSERT_NE(number, std::string::npos);
    endLeftBehind(captured.output.substr(number));
}

TEST_F(ToolsTest, OutputThatTheReaderLeavesIsThrownAwayAndTheToolEndsAsEver) {
    EXPECT_EQ(tools.runThroughPipe(call({"flood", "1000000"}), [](int) {}), 0);
}

TEST_F(ToolsTest, WhatTheReaderThrowsReachesTheCallerWhenTheToolIsOver) {
    const auto reader = [](int) { throw std::runtime_error("enough"); };
    EXPECT_THROW((void)tools.runThroughPipe(call({"flood", "1000000"}), reader),
                 std::runtime_error);
}

TEST_F(ToolsTest, BothOutputsShareTheOnePipe) {
    std::string output;
    EXPECT_EQ(
        tools.runThroughPipe(call({"fail", "it broke"}), [&](int end) { output = readAll(end); }),
        1);
    EXPECT_EQ(output, "it broke\n");
}

TEST_F(ToolsTest, CapturedOutputIsStandardOutputAlone) {
    Redirected error(STDERR_FILENO);
    EXPECT_EQ(tools.capture(call({"fail", "it broke"})).output, "");
    EXPECT_EQ(error.text(), "it broke\n");
}

TEST_F(ToolsTest, RunInheritsTheProgramsStandardOutput) {
    Redirected output(STDOUT_FILENO);
    EXPECT_EQ(tools.run(call({"print", "hello"})), 0);
    EXPECT_EQ(output.text(), "hello\n");
}

TEST_F(ToolsTest, RunSendsOutputToStandardErrorWhereThatIsAskedFor) {
    SpawnedTools quiet({.outputToError = true});
    Redirected output(STDOUT_FILENO);
    Redirected error(STDERR_FILENO);
    EXPECT_EQ(quiet.run(call({"print", "hello"})), 0);
    EXPECT_EQ(error.text(), "hello\n");
    EXPECT_EQ(output.text(), "");
}

TEST_F(ToolsTest, AToolHasNothingOnItsStandardInput) {
    EXPECT_EQ(tools.capture(call({"input"})).output, "0");
}

TEST_F(ToolsTest, AToolGetsOnlyTheStandardDescriptors) {
    const int inheritable = ::dup(STDERR_FILENO); // without the close-on-exec flag
    EXPECT_EQ(tools.capture(call({"descriptors"})).output, "0 1 2 ");
    ::close(inheritable);
}

TEST_F(ToolsTest, AToolStartsWithoutBlockedOrIgnoredSignals) {
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto pipeBefore = std::signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(tools.capture(call({"signals"})).output, "");
    std::signal(SIGPIPE, pipeBefore);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST_F(ToolsTest, TheEnvironmentIsInherited) {
    ::setenv("SCRIVEL_TEST_VARIABLE", "seen", 1);
    EXPECT_EQ(tools.capture(call({"environment", "SCRIVEL_TEST_VARIABLE"})).output, "seen");
    ::unsetenv("SCRIVEL_TEST_VARIABLE");
}

TEST_F(ToolsTest, WithTooFewDescriptorsLeftTheToolCannotStartAndNothingStaysOpen) {
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const int firstFree = ::dup(STDERR_FILENO);
    ::close(firstFree);
    // One of the two pipes that are needed fits, the other does not.
    const rlimit few{static_cast<rlim_t>(firstFree) + 2, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    bool called = false;
    const int status = tools.runThroughPipe(call({"print", "x"}), [&](int) { called = true; });
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(status, SpawnedTools::kCannotStart);
    EXPECT_FALSE(called);
}

TEST_F(ToolsTest, WhileAToolIsWaitedForThePlatformIsServedAndOnceMoreWhenItHasEnded) {
    const std::string gate = folder.path("gate");
    ASSERT_EQ(::mkfifo(gate.c_str(), 0600), 0);
    int calls = 0;
    SpawnedTools waiting({.whileWaiting = [&] {
        if (++calls == 3) // until then the tool waits to be let through
            std::ofstream(gate) << "go";
    }});
    EXPECT_EQ(waiting.run({"/bin/cat", {gate}}), 0);
    EXPECT_GE(calls, 4);
    calls = 0;
    EXPECT_EQ(waiting.capture({"/bin/cat", {gate}}).output, "go");
    EXPECT_GE(calls, 4);
}

TEST_F(ToolsTest, TenThousandRunsLeaveNoDescriptorAndNoChild) {
    constexpr int kRuns = 10'000;
    int succeeded = 0;
    for (int i = 0; i < kRuns; ++i) {
        if (i % 3 == 0)
            succeeded += tools.run({"/usr/bin/true", {}}) == 0;
        else if (i % 3 == 1)
            succeeded += tools.capture({"/usr/bin/true", {}}).status == 0;
        else
            succeeded += tools.runThroughPipe({"/usr/bin/true", {}}, readAll) == 0;
    }
    EXPECT_EQ(succeeded, kRuns);
}

TEST_F(ToolsTest, CallsFromSeveralThreadsKeepTheirOutputApart) {
    std::vector<std::thread> threads;
    std::vector<std::string> outputs(4);
    for (std::string& output : outputs)
        threads.emplace_back([&, name = std::to_string(&output - outputs.data())] {
            for (int i = 0; i < 25; ++i)
                output += tools.capture(call({"print", name})).output;
        });
    for (std::thread& thread : threads)
        thread.join();
    for (std::size_t i = 0; i < outputs.size(); ++i) {
        std::string expected;
        for (int line = 0; line < 25; ++line)
            expected += std::to_string(i) + "\n";
        EXPECT_EQ(outputs[i], expected);
    }
}

class OwnToolsTest : public ToolsTest {
  protected:
    OwnToolsTest() {
        std::filesystem::create_symlink(testTool(), folder.path("lacking"));
        std::filesystem::create_symlink(testTool(), folder.path("true"));
    }
    std::vector<ToolProgress> heard;
    std::vector<std::thread::id> threads;
    SpawnedTools own{{.ownToolsFolder = folder.path(), .progress = [this](const ToolProgress& p) {
                          heard.push_back(p);
                          threads.push_back(std::this_thread::get_id());
                      }}};
};

TEST_F(OwnToolsTest, AToolThatTheSystemLacksIsTakenFromOurOwn) {
    EXPECT_EQ(own.capture({"/usr/bin/lacking", {"print", "ours"}}).output, "ours\n");
}

TEST_F(OwnToolsTest, AToolThatTheSystemHasIsNeverReplaced) {
    EXPECT_EQ(own.capture({"/usr/bin/true", {"print", "ours"}}).output, "");
}

TEST_F(OwnToolsTest, AToolThatNeitherHasCannotStart) {
    EXPECT_EQ(own.run({"/usr/bin/nobody-has-this", {}}), SpawnedTools::kCannotStart);
}

TEST_F(OwnToolsTest, ProgressIsHeardOnTheThreadThatWaits) {
    EXPECT_EQ(own.run({"/usr/bin/lacking", {"progress", "1 10 0\n10 10 3\n"}}), 0);
    EXPECT_EQ(heard, (std::vector<ToolProgress>{{1, 10, 0}, {10, 10, 3}}));
    EXPECT_EQ(own.capture({"/usr/bin/lacking", {"progress", "5 5 1\n"}}).status, 0);
    EXPECT_EQ(heard.size(), 3u);
    EXPECT_EQ(threads, std::vector(3, std::this_thread::get_id()));
}

TEST_F(OwnToolsTest, LinesThatAreNoProgressArePassedOver) {
    const std::string odd = "x\n1 2\n1 2 3 4\n1  2 3\n-1 2 3\n99999999999999999999999 1 1\n" +
                            std::string(5000, '1') + "\n1 2 3 \n\n7 8 9\n1 2 3";
    EXPECT_EQ(own.run({"/usr/bin/lacking", {"progress", odd}}), 0);
    EXPECT_EQ(heard, (std::vector<ToolProgress>{{7, 8, 9}}));
}

TEST_F(OwnToolsTest, AProcessLeftBehindWithTheProgressPipeDoesNotKeepTheCaller) {
    Redirected output(STDOUT_FILENO);
    EXPECT_EQ(own.run({"/usr/bin/lacking", {"progressThenLeave", "4 5 6\n"}}), 0);
    EXPECT_EQ(heard, (std::vector<ToolProgress>{{4, 5, 6}}));
    // It holds the redirected output too: what stands there is read without waiting for its end.
    char number[32] = {};
    EXPECT_GT(::read(output.readingEnd(), number, sizeof number - 1), 0);
    endLeftBehind(number);
}

TEST_F(OwnToolsTest, WhatTheListenerThrowsReachesTheCallerAndNoToolIsLeft) {
    SpawnedTools failing({.ownToolsFolder = folder.path(), .progress = [](const ToolProgress&) {
                              throw std::runtime_error("enough");
                          }});
    EXPECT_THROW((void)failing.run({"/usr/bin/lacking", {"progress", "4 5 6\n"}}),
                 std::runtime_error);
}

TEST_F(OwnToolsTest, AToolOfTheSystemIsNotAskedForProgress) {
    EXPECT_EQ(own.capture(call({"environment", "SCRIVEL_PROGRESS_FD"})).output, "(none)");
}

TEST_F(OwnToolsTest, WithoutAListenerNoProgressIsAskedFor) {
    SpawnedTools silent({.ownToolsFolder = folder.path()});
    EXPECT_EQ(silent.capture({"/usr/bin/lacking", {"environment", "SCRIVEL_PROGRESS_FD"}}).output,
              "(none)");
}

} // namespace
