#include "platform/macos/GlobalQueue.h"

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <stdexcept>
#include <thread>
#include <vector>

#include "tests/macos/FakeDispatch.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/QueuesContract.h"

namespace tests {

namespace {

using macoshost::GlobalQueue;

class GlobalQueueTest : public testing::Test {
  protected:
    GlobalQueueTest() { fakes::dispatch().started = 0; }
    ~GlobalQueueTest() override {
        fakes::joinDispatched();
        EXPECT_EQ(fakes::dispatch().groups, 0) << "a group is left";
    }
};

TEST_F(GlobalQueueTest, AQueueThatIsNeverUsedHandsNothingOver) {
    {
        const GlobalQueue queue;
        EXPECT_FALSE(queue.isBusy());
    }
    EXPECT_EQ(fakes::dispatch().started, 0);
}

TEST_F(GlobalQueueTest, OneBlockAtATimeInTheirOrderAndOneFunctionForAllThatWait) {
    std::vector<int> order;
    std::atomic<int> running = 0;
    std::atomic<bool> overlapped = false;
    std::atomic<bool> begun = false;
    {
        GlobalQueue queue;
        queue.async([&] { // until all the others wait
            while (!begun)
                std::this_thread::yield();
        });
        for (int i = 0; i < 50; ++i)
            queue.async([&, i] {
                overlapped = overlapped || ++running > 1;
                order.push_back(i);
                --running;
            });
        EXPECT_TRUE(queue.isBusy());
        begun = true;
    }
    EXPECT_FALSE(overlapped);
    ASSERT_EQ(order.size(), 50u);
    EXPECT_TRUE(std::ranges::is_sorted(order));
    EXPECT_EQ(fakes::dispatch().started, 1);
}

TEST_F(GlobalQueueTest, AfterAPauseTheWorkIsHandedOverAnew) {
    GlobalQueue queue;
    for (int i = 1; i <= 3; ++i) {
        bool done = false;
        queue.async([&] { done = true; });
        ASSERT_TRUE(comesTrue([&] { return !queue.isBusy(); }));
        EXPECT_TRUE(done);
        EXPECT_EQ(fakes::dispatch().started, i);
    }
}

TEST_F(GlobalQueueTest, WorkMayQueueFurtherWork) {
    std::vector<int> order;
    {
        GlobalQueue queue;
        queue.async([&] {
            queue.async([&] { order.push_back(2); });
            order.push_back(1);
        });
    }
    EXPECT_EQ(order, std::vector({1, 2}));
}

TEST_F(GlobalQueueTest, TheDestructorWaitsForTheWork) {
    std::atomic<bool> mayEnd = false;
    std::atomic<bool> done = false;
    std::thread letting;
    {
        GlobalQueue queue;
        queue.async([&] {
            while (!mayEnd)
                std::this_thread::yield();
            done = true;
        });
        letting = std::thread([&] { mayEnd = true; });
    }
    EXPECT_TRUE(done);
    letting.join();
}

TEST_F(GlobalQueueTest, WorkFromManyThreadsAllRuns) {
    int count = 0; // only ever touched by the one block that runs
    {
        GlobalQueue queue;
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t)
            threads.emplace_back([&] {
                for (int i = 0; i < 500; ++i)
                    queue.async([&] { ++count; });
            });
        for (std::thread& thread : threads)
            thread.join();
    }
    EXPECT_EQ(count, 2000);
}

TEST(GlobalQueueDeathTest, AnExceptionThatLeavesTheWorkEndsTheProgram) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            GlobalQueue queue;
            queue.async([] { throw std::runtime_error("uncaught"); });
        },
        "");
}

// --- What every pair of queues promises

struct GlobalQueueHost {
    ~GlobalQueueHost() { fakes::joinDispatched(); }
    void runUntilIdle() { tests::runUntilIdle(main, background); }
    posix::MainQueue main;
    GlobalQueue background;
};
INSTANTIATE_TYPED_TEST_SUITE_P(GlobalQueue, QueuesContract, GlobalQueueHost);

} // namespace

} // namespace tests
