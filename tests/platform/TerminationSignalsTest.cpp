#include "platform/posix/TerminationSignals.h"

#include <chrono>
#include <csignal>
#include <pthread.h>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/posix/SpawnedTools.h"
#include "platform/posix/ThreadQueues.h"

namespace {

using posix::TerminationSignals;

/// Gives the test program back the signals that it took before.
class TerminationSignalsTest : public testing::Test {
  protected:
    TerminationSignalsTest() { ::pthread_sigmask(SIG_BLOCK, nullptr, &m_before); }
    ~TerminationSignalsTest() override { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

    static void raiseForProcess(int signal) { ASSERT_EQ(::kill(::getpid(), signal), 0); }
    static bool isHeldBack(int signal) {
        sigset_t waiting;
        ::sigpending(&waiting);
        return sigismember(&waiting, signal) == 1;
    }
    static int takeSignal(int signal) {
        sigset_t one;
        sigemptyset(&one);
        sigaddset(&one, signal);
        int taken = 0;
        ::sigwait(&one, &taken);
        return taken;
    }
    void waitAndRun() {
        queue.waitForWork(std::chrono::seconds(60));
        queue.runPending();
    }

    posix::MainQueue queue;
    int timesAsked = 0;

  private:
    sigset_t m_before{};
};

TEST_F(TerminationSignalsTest, EachWishToEndReachesTheMainQueue) {
    const TerminationSignals signals(queue, [this] { ++timesAsked; });
    int expected = 0;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        raiseForProcess(signal);
        waitAndRun();
        EXPECT_EQ(timesAsked, ++expected) << signal;
    }
}

TEST_F(TerminationSignalsTest, NothingHappensBeforeTheMainQueueRuns) {
    const TerminationSignals signals(queue, [this] { ++timesAsked; });
    raiseForProcess(SIGTERM);
    queue.waitForWork(std::chrono::seconds(60));
    EXPECT_EQ(timesAsked, 0);
    queue.runPending();
    EXPECT_EQ(timesAsked, 1);
}

TEST_F(TerminationSignalsTest, TheSameSignalIsHeardASecondTime) {
    const TerminationSignals signals(queue, [this] { ++timesAsked; });
    for (const int expected : {1, 2}) {
        raiseForProcess(SIGTERM);
        waitAndRun();
        EXPECT_EQ(timesAsked, expected);
    }
}

TEST_F(TerminationSignalsTest, WithoutASignalItEndsWithoutAsking) {
    {
        const TerminationSignals signals(queue, [this] { ++timesAsked; });
    }
    queue.runPending();
    EXPECT_EQ(timesAsked, 0);
}

TEST_F(TerminationSignalsTest, ASignalAfterwardsIsHeldBackSoThatTheWayOutIsNotCutShort) {
    {
        const TerminationSignals signals(queue, [this] { ++timesAsked; });
    }
    raiseForProcess(SIGTERM);
    EXPECT_TRUE(isHeldBack(SIGTERM));
    EXPECT_EQ(takeSignal(SIGTERM), SIGTERM);
    queue.runPending();
    EXPECT_EQ(timesAsked, 0);
}

TEST_F(TerminationSignalsTest, AToolStartedMeanwhileStillDiesOfEachSignal) {
    const TerminationSignals signals(queue, [this] { ++timesAsked; });
    posix::SpawnedTools tools({});
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        EXPECT_EQ(tools.run({"/bin/sh", {"-c", "kill -" + std::to_string(signal) + " $$"}}),
                  128 + signal);
    queue.runPending();
    EXPECT_EQ(timesAsked, 0) << "the tool's signal is not the program's";
}

} // namespace
