#include "platform/posix/ThreadQueues.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "platform/ports/PlatformError.h"
#include "tests/support/QueuesContract.h"

namespace {

using posix::BackgroundQueue;
using posix::MainQueue;
using tests::runUntilIdle;

bool isReadable(int descriptor) {
    pollfd waiting{descriptor, POLLIN, 0};
    return ::poll(&waiting, 1, 0) == 1;
}

TEST(MainQueue, TheDescriptorIsReadableExactlyWhileWorkIsPending) {
    MainQueue queue;
    EXPECT_FALSE(isReadable(queue.descriptor()));
    queue.post([] {});
    queue.post([] {});
    EXPECT_TRUE(isReadable(queue.descriptor()));
    queue.runPending();
    EXPECT_FALSE(isReadable(queue.descriptor()));
}

TEST(MainQueue, WorkThatWorkPostsWaitsForTheNextTurn) {
    MainQueue queue;
    int runs = 0;
    std::function<void()> again = [&] {
        ++runs;
        queue.post(again);
    };
    queue.post(again);
    queue.runPending();
    EXPECT_EQ(runs, 1);
    EXPECT_TRUE(isReadable(queue.descriptor()));
    queue.runPending();
    EXPECT_EQ(runs, 2);
}

TEST(MainQueue, ANestedLoopSeesAndRunsWhatIsStillPending) {
    MainQueue queue;
    std::string order;
    queue.post([&] {
        order += "a(";
        EXPECT_TRUE(isReadable(queue.descriptor()));
        queue.runPending();
        order += ")";
    });
    queue.post([&] { order += "b"; });
    queue.post([&] { order += "c"; });
    queue.runPending();
    EXPECT_EQ(order, "a(bc)");
    EXPECT_FALSE(isReadable(queue.descriptor()));
}

TEST(MainQueue, AfterAnExceptionTheRestIsStillPending) {
    MainQueue queue;
    bool ran = false;
    queue.post([] { throw std::runtime_error("first"); });
    queue.post([&] { ran = true; });
    EXPECT_THROW(queue.runPending(), std::runtime_error);
    EXPECT_TRUE(isReadable(queue.descriptor()));
    queue.runPending();
    EXPECT_TRUE(ran);
}

TEST(MainQueue, SyncOnTheMainThreadIsRefused) {
    MainQueue queue;
    EXPECT_TRUE(queue.isMainThread());
    EXPECT_THROW(queue.sync([] {}), std::logic_error);
}

TEST(MainQueue, WhoWaitsForAQueueThatDiesIsReleased) {
    auto queue = std::make_unique<MainQueue>();
    std::atomic<bool> released = false;
    std::thread waiting([&, raw = queue.get()] {
        EXPECT_THROW(raw->sync([] {}), ports::PlatformError);
        released = true;
    });
    pollfd pending{queue->descriptor(), POLLIN, 0};
    ::poll(&pending, 1, -1);
    queue->post([] {}); // from here on the other thread is out of the queue
    queue.reset();
    waiting.join();
    EXPECT_TRUE(released);
}

TEST(MainQueue, WorkFromManyThreadsAllRunsInEachThreadsOrder) {
    MainQueue queue;
    constexpr int kThreads = 4;
    constexpr int kPosts = 1000;
    std::vector<std::vector<int>> seen(kThreads);
    std::vector<std::thread> threads;
    std::atomic<int> finished = 0;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&, t] {
            for (int i = 0; i < kPosts; ++i)
                queue.post([&seen, t, i] { seen[static_cast<std::size_t>(t)].push_back(i); });
            ++finished;
        });
    while (finished < kThreads)
        queue.runPending();
    for (std::thread& thread : threads)
        thread.join();
    queue.runPending();
    for (const auto& list : seen) {
        ASSERT_EQ(list.size(), static_cast<std::size_t>(kPosts));
        for (int i = 0; i < kPosts; ++i)
            EXPECT_EQ(list[static_cast<std::size_t>(i)], i);
    }
}

TEST(BackgroundQueue, WorkRunsOffTheMainThreadAndHopsOntoIt) {
    MainQueue main;
    BackgroundQueue background;
    bool offMain = false;
    bool onMain = false;
    background.async([&] {
        offMain = !main.isMainThread();
        main.sync([&] { onMain = main.isMainThread(); });
    });
    runUntilIdle(main, background);
    EXPECT_TRUE(offMain);
    EXPECT_TRUE(onMain);
}

TEST(BackgroundQueue, AnExceptionOfTheMainThreadsWorkReachesTheWaitingThread) {
    MainQueue main;
    BackgroundQueue background;
    std::string caught;
    background.async([&] {
        try {
            main.sync([] { throw std::runtime_error("from the main thread"); });
        } catch (const std::runtime_error& error) {
            caught = error.what();
        }
    });
    runUntilIdle(main, background);
    EXPECT_EQ(caught, "from the main thread");
}

TEST(BackgroundQueue, OneBlockAtATimeInTheirOrder) {
    std::vector<int> order;
    std::atomic<int> running = 0;
    std::atomic<bool> overlapped = false;
    {
        BackgroundQueue background;
        for (int i = 0; i < 50; ++i)
            background.async([&, i] {
                overlapped = overlapped || ++running > 1;
                order.push_back(i);
                --running;
            });
    }
    EXPECT_FALSE(overlapped);
    ASSERT_EQ(order.size(), 50u);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(BackgroundQueue, TheDestructorWaitsForTheWork) {
    std::atomic<bool> done = false;
    {
        BackgroundQueue background;
        background.async([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            done = true;
        });
    }
    EXPECT_TRUE(done);
}

TEST(BackgroundQueueDeathTest, AnExceptionThatLeavesTheWorkEndsTheProgram) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            BackgroundQueue background;
            background.async([] { throw std::runtime_error("uncaught"); });
        },
        "");
}

} // namespace
