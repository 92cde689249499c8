// What the two queues promise, for the test program of each adapter: its host has them as `main`
// and `background` and runs both until neither has work left (`runUntilIdle`).
#pragma once

#include <chrono>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

#include "platform/ports/Queues.h"
#include "platform/posix/ThreadQueues.h"

namespace tests {

/// Runs the main queue as a front end's loop does, until `background` has nothing left.
inline void runUntilIdle(posix::MainQueue& main, const ports::BackgroundQueue& background) {
    while (background.isBusy()) {
        main.waitForWork(std::chrono::milliseconds(1));
        main.runPending();
    }
    main.runPending();
}

template <class Host>
class QueuesContract : public testing::Test {
  protected:
    Host host;
    ports::MainQueue& main = host.main;
    ports::BackgroundQueue& background = host.background;
};
TYPED_TEST_SUITE_P(QueuesContract);

TYPED_TEST_P(QueuesContract, PostedWorkRunsLaterAndInItsOrder) {
    std::string order;
    this->main.post([&] { order += "a"; });
    this->main.post([&] { order += "b"; });
    EXPECT_EQ(order, "");
    this->host.runUntilIdle();
    EXPECT_EQ(order, "ab");
}

TYPED_TEST_P(QueuesContract, SyncComesAfterWhatWasPostedBeforeAndReturnsWhenItHasRun) {
    std::string order;
    this->background.async([&] {
        this->main.post([&] { order += "posted "; });
        this->main.sync([&] { order += "synced "; });
        order += "after";
    });
    EXPECT_TRUE(this->background.isBusy());
    this->host.runUntilIdle();
    EXPECT_FALSE(this->background.isBusy());
    EXPECT_EQ(order, "posted synced after");
}

TYPED_TEST_P(QueuesContract, AnExceptionThatLeavesSyncedWorkIsRethrownToTheOneWhoWaits) {
    std::string caught;
    this->background.async([&] {
        try {
            this->main.sync([] { throw std::runtime_error("no"); });
        } catch (const std::runtime_error& error) {
            caught = error.what();
        }
    });
    this->host.runUntilIdle();
    EXPECT_EQ(caught, "no");
}

TYPED_TEST_P(QueuesContract, TheThreadThatMadeTheQueueIsTheMainThread) {
    EXPECT_TRUE(this->main.isMainThread());
}

REGISTER_TYPED_TEST_SUITE_P(QueuesContract, PostedWorkRunsLaterAndInItsOrder,
                            SyncComesAfterWhatWasPostedBeforeAndReturnsWhenItHasRun,
                            AnExceptionThatLeavesSyncedWorkIsRethrownToTheOneWhoWaits,
                            TheThreadThatMadeTheQueueIsTheMainThread);

} // namespace tests
