#include "platform/macos/AuthorizationServices.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <pthread.h>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "platform/posix/FileTextStreams.h"
#include "tests/macos/FakeAuthorization.h"
#include "tests/support/AdministratorContract.h"

namespace tests {

namespace {

using macoshost::AuthorizationServices;
using ports::Administrator;
using Calls = std::vector<std::string>;

bool isOpen(int descriptor) {
    return ::fcntl(descriptor, F_GETFD) != -1;
}

class AuthorizationServicesTest : public testing::Test {
  protected:
    void grant(AuthorizationServices& administrator) {
        ASSERT_EQ(administrator.createSession(), 0);
        ASSERT_EQ(administrator.requestRights(), 0);
    }
    /// What the reader of a started tool reads.
    std::string outputOf(AuthorizationServices& administrator, const ports::ToolCall& call) {
        std::string output;
        EXPECT_EQ(administrator.start(
                      call, [&](int descriptor) { output = readAll(streams, descriptor); }),
                  0);
        return output;
    }
    static void ignore(int) {}

    fakes::Authorization system;
    posix::FileTextStreams streams;
    AuthorizationServices services{{}};
};

TEST_F(AuthorizationServicesTest, ASessionAsksForTheOneRightAndRunsToolsAndIsFreedOnce) {
    grant(services);
    EXPECT_EQ(outputOf(services, {"/bin/rm", {"-rf", "/a b"}}), "");
    services.freeSession();
    services.freeSession();
    EXPECT_EQ(system.calls, Calls({"create 19", "rights 1 system.privilege.admin 19",
                                   "start 1 /bin/rm|-rf|/a b|0", "free 1 0"}));
}

TEST_F(AuthorizationServicesTest, NothingIsAskedOfTheSystemBeforeItIsNeeded) {
    services.freeSession();
    {
        AuthorizationServices unused{{}};
    }
    EXPECT_EQ(system.calls, Calls());
}

TEST_F(AuthorizationServicesTest, ASessionThatCannotBeMadeIsItsStatusAndNothingIsFreed) {
    system.createStatus = -60008;
    EXPECT_EQ(services.createSession(), -60008);
    EXPECT_EQ(services.requestRights(), errAuthorizationInvalidRef);
    EXPECT_EQ(services.start({"/tool", {}}, ignore), Administrator::kDenied);
    services.freeSession();
    EXPECT_EQ(system.calls, Calls({"create 19"}));
}

TEST_F(AuthorizationServicesTest, ARefusalAndACancelledPromptAreTheirStatusAndKeepTheSession) {
    ASSERT_EQ(services.createSession(), 0);
    for (const OSStatus status : {-60005, -60006, -60007}) {
        system.rightsStatus = status;
        EXPECT_EQ(services.requestRights(), status);
        EXPECT_EQ(services.start({"/tool", {}}, ignore), Administrator::kDenied);
    }
    EXPECT_EQ(std::ranges::count(system.calls, "free 1 0"), 0);
    services.freeSession();
    EXPECT_EQ(system.calls.size(), 5u) << "no tool was started";
    EXPECT_EQ(system.calls.back(), "free 1 0");
}

TEST_F(AuthorizationServicesTest, RightsThatAreRefusedAtTheSecondRequestAreGone) {
    grant(services);
    system.rightsStatus = errAuthorizationDenied;
    EXPECT_EQ(services.requestRights(), errAuthorizationDenied);
    EXPECT_EQ(services.start({"/tool", {}}, ignore), Administrator::kDenied);
}

TEST_F(AuthorizationServicesTest, ASecondSessionIsAnotherOne) {
    grant(services);
    services.freeSession();
    EXPECT_EQ(services.start({"/tool", {}}, ignore), Administrator::kDenied);
    grant(services);
    EXPECT_EQ(outputOf(services, {"/tool", {}}), "");
    EXPECT_EQ(system.calls.back(), "start 2 /tool|0");
    services.freeSession();
    EXPECT_EQ(system.calls.back(), "free 2 0");
    EXPECT_EQ(std::ranges::count(system.calls, "free 1 0"), 1);
}

TEST_F(AuthorizationServicesTest, ANewSessionEndsTheOneThatStands) {
    grant(services);
    ASSERT_EQ(services.createSession(), 0);
    EXPECT_EQ(system.calls[2], "free 1 0");
    EXPECT_EQ(services.start({"/tool", {}}, ignore), Administrator::kDenied);
}

TEST_F(AuthorizationServicesTest, TheDestructorFreesASessionThatStands) {
    auto owned = std::make_unique<AuthorizationServices>(AuthorizationServices::Needs{});
    grant(*owned);
    EXPECT_EQ(outputOf(*owned, {"/tool", {}}), "");
    owned.reset();
    EXPECT_EQ(std::ranges::count(system.calls, "free 1 0"), 1);
    EXPECT_FALSE(isOpen(system.streams.at(0)));
}

TEST_F(AuthorizationServicesTest, ArgumentsOfAnyNumberGoElementByElement) {
    grant(services);
    const std::vector<std::string> arguments(5000, "an argument");
    EXPECT_EQ(outputOf(services, {"/tool", arguments}), "");
    EXPECT_EQ(std::ranges::count(system.calls.back(), '|'), 5001);
    EXPECT_EQ(outputOf(services, {"/tool", {"", "$HOME", "ü"}}), "");
    EXPECT_EQ(system.calls.back(), "start 1 /tool||$HOME|ü|0");
}

TEST_F(AuthorizationServicesTest, AToolThatCannotBeStartedIsItsStatusAndNothingIsRead) {
    grant(services);
    for (const OSStatus status : {-60031, -60006}) {
        system.startStatus = status;
        bool read = false;
        EXPECT_EQ(services.start({"/tool", {}}, [&](int) { read = true; }), status);
        EXPECT_FALSE(read);
    }
}

TEST_F(AuthorizationServicesTest, AStartedToolWithoutAPipeIsASuccessAndNothingIsRead) {
    system.givesStream = false;
    AuthorizationServices waiting({.whileWaiting = [] {}});
    for (AuthorizationServices* administrator : {&services, &waiting}) {
        grant(*administrator);
        bool read = false;
        EXPECT_EQ(administrator->start({"/tool", {}}, [&](int) { read = true; }), 0);
        EXPECT_FALSE(read);
    }
}

TEST_F(AuthorizationServicesTest, TheReaderGetsThePipeItselfAndAllThatTheToolWrites) {
    grant(services);
    system.output = std::string(1'000'000, 'x') + "end";
    int given = -1;
    std::string output;
    EXPECT_EQ(services.start({"/tool", {}},
                             [&](int descriptor) {
                                 given = descriptor;
                                 output = readAll(streams, descriptor);
                             }),
              0);
    EXPECT_EQ(given, system.streams.at(0));
    EXPECT_TRUE(output == system.output) << output.size();
}

TEST_F(AuthorizationServicesTest, WhatTheReaderLeavesIsReadAllTheSame) {
    grant(services);
    system.output = std::string(1'000'000, 'x');
    EXPECT_EQ(services.start({"/tool", {}},
                             [&](int descriptor) {
                                 char some[10];
                                 EXPECT_EQ(streams.read(descriptor, some), 10u);
                             }),
              0);
    services.freeSession(); // what has not been read by now never will be
    EXPECT_TRUE(system.tools.back().wroteAll());
    grant(services);
    EXPECT_THROW(services.start({"/tool", {}}, [](int) { throw std::runtime_error("enough"); }),
                 std::runtime_error);
    EXPECT_TRUE(system.tools.back().wroteAll());
}

TEST_F(AuthorizationServicesTest, SignalsDoNotEndTheReading) {
    struct sigaction noted{};
    struct sigaction before{};
    noted.sa_handler = [](int) {}; // and calls are not taken up again by themselves
    ASSERT_EQ(::sigaction(SIGUSR1, &noted, &before), 0);
    grant(services);
    system.toolsEndByThemselves = false;
    std::atomic<bool> ended = false;
    std::thread disturbing;
    const pthread_t main = ::pthread_self();
    EXPECT_EQ(services.start({"/tool", {}},
                             [&](int) {
                                 disturbing = std::thread([&] {
                                     for (int i = 0; i < 100; ++i) {
                                         ::pthread_kill(main, SIGUSR1);
                                         std::this_thread::yield();
                                     }
                                     ended = true;
                                     system.tools.back().end();
                                 });
                             }),
              0);
    EXPECT_TRUE(ended);
    disturbing.join();
    ASSERT_EQ(::sigaction(SIGUSR1, &before, nullptr), 0);
}

TEST_F(AuthorizationServicesTest, TheToolsInputStaysOpenUntilTheSessionEnds) {
    grant(services);
    for (int i = 0; i < 3; ++i)
        outputOf(services, {"/tool", {}});
    const auto all = [&](auto condition) { return std::ranges::all_of(system.tools, condition); };
    EXPECT_TRUE(all([](const fakes::StartedTool& tool) { return tool.inputIsOpen(); }));
    EXPECT_TRUE(std::ranges::all_of(system.streams, [](int stream) {
        return ::fcntl(stream, F_GETFD) == FD_CLOEXEC;
    })) << "other programs get them";
    services.freeSession();
    EXPECT_TRUE(all([](const fakes::StartedTool& tool) { return !tool.inputIsOpen(); }));
    EXPECT_FALSE(std::ranges::any_of(system.streams, isOpen));
}

TEST_F(AuthorizationServicesTest, InALongSessionTheOldestStreamsAreWantedToBeClosedBefore) {
    grant(services);
    const std::size_t kept = AuthorizationServices::kStreamsKept;
    for (std::size_t i = 0; i < kept + 5; ++i)
        outputOf(services, {"/tool", {}});
    for (std::size_t i = 0; i < kept + 5; ++i)
        EXPECT_EQ(system.tools[i].inputIsOpen(), i >= 5) << i;
}

TEST_F(AuthorizationServicesTest, WhoeverWaitsIsCalledWhileTheToolRunsAndLosesNoOutput) {
    int called = 0;
    AuthorizationServices waiting({.whileWaiting = [&] { ++called; }});
    grant(waiting);
    EXPECT_EQ(called, 0);
    system.output = std::string(1'000'000, 'x');
    EXPECT_TRUE(outputOf(waiting, {"/tool", {}}) == system.output);
    EXPECT_GT(called, 1);
}

TEST_F(AuthorizationServicesTest, WhileSomebodyWaitsTheReaderMayLeaveWhatItLikes) {
    AuthorizationServices waiting({.whileWaiting = [] {}});
    grant(waiting);
    system.output = std::string(1'000'000, 'x'); // more than a pipe holds
    EXPECT_EQ(waiting.start({"/tool", {}}, ignore), 0);
    EXPECT_THROW(waiting.start({"/tool", {}}, [](int) { throw std::runtime_error("enough"); }),
                 std::runtime_error);
}

TEST_F(AuthorizationServicesTest, WhoeverWaitsIsCalledAgainAndAgainWhileTheToolIsSilent) {
    int called = 0;
    AuthorizationServices waiting({.whileWaiting = [&] {
        if (++called == 5) // the tool ends
            system.tools.back().end();
    }});
    grant(waiting);
    system.toolsEndByThemselves = false;
    EXPECT_EQ(outputOf(waiting, {"/tool", {}}), "");
    EXPECT_GE(called, 5);
}

TEST_F(AuthorizationServicesTest, ASessionThatIsEndedWhileAToolRunsLeavesNothingOpen) {
    std::optional<AuthorizationServices> waiting;
    waiting.emplace(AuthorizationServices::Needs{.whileWaiting = [&] { waiting->freeSession(); }});
    grant(*waiting);
    system.output = "some text";
    EXPECT_EQ(outputOf(*waiting, {"/tool", {}}), "some text");
    EXPECT_FALSE(isOpen(system.streams.at(0)));
    EXPECT_EQ(system.calls.back(), "free 1 0");
    EXPECT_EQ(waiting->start({"/tool", {}}, ignore), Administrator::kDenied);
}

TEST_F(AuthorizationServicesTest, WithoutDescriptorsForTheOutputToolsAreNotStarted) {
    AuthorizationServices waiting({.whileWaiting = [] {}});
    grant(waiting);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none{.rlim_cur = 0, .rlim_max = before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    const int status = waiting.start({"/tool", {}}, ignore);
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(status, Administrator::kToolExecuteFailure);
    EXPECT_EQ(system.calls.size(), 2u);
}

// --- What every adapter promises

struct AuthorizationHost {
    ports::ToolCall toolThatPrints(const std::string& text, int) {
        system.output = text;
        return {"/tool", {}};
    }
    ports::ToolCall missingTool() {
        system.startStatus = errAuthorizationToolExecuteFailure;
        return {"/no tool", {}};
    }

    fakes::Authorization system;
    posix::FileTextStreams streams;
    AuthorizationServices administrator{{}};
};
INSTANTIATE_TYPED_TEST_SUITE_P(Authorization, AdministratorContract, AuthorizationHost);

} // namespace

} // namespace tests
