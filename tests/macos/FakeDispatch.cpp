#include "tests/macos/FakeDispatch.h"

#include <condition_variable>
#include <dispatch/dispatch.h>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace {

/// As the system's, kept alive by what runs in it as well as by its owner.
struct Count {
    std::mutex mutex;
    std::condition_variable left;
    int running = 0;
};

struct Group : dispatch_group_s {
    std::shared_ptr<Count> count = std::make_shared<Count>();
};

std::mutex threadsMutex;
std::vector<std::thread> threads;
dispatch_queue_global_s defaultQueue;

} // namespace

namespace fakes {

Dispatch& dispatch() {
    static Dispatch one;
    return one;
}

void joinDispatched() {
    std::vector<std::thread> ended;
    {
        const std::lock_guard lock(threadsMutex);
        ended = std::exchange(threads, {});
    }
    for (std::thread& thread : ended)
        thread.join();
}

} // namespace fakes

extern "C" {

dispatch_queue_global_t dispatch_get_global_queue(std::intptr_t identifier, std::uintptr_t flags) {
    EXPECT_EQ(identifier, 0) << "not the default priority";
    EXPECT_EQ(flags, 0u);
    return &defaultQueue;
}

dispatch_group_t dispatch_group_create(void) {
    ++fakes::dispatch().groups;
    return new Group;
}

void dispatch_group_async_f(dispatch_group_t group, dispatch_queue_t queue, void* context,
                            dispatch_function_t work) {
    EXPECT_EQ(queue, &defaultQueue);
    ++fakes::dispatch().started;
    const std::shared_ptr<Count> count = static_cast<Group*>(group)->count;
    {
        const std::lock_guard lock(count->mutex);
        ++count->running;
    }
    const std::lock_guard lock(threadsMutex);
    threads.emplace_back([=] {
        work(context);
        const std::lock_guard counting(count->mutex);
        --count->running;
        count->left.notify_all();
    });
}

std::intptr_t dispatch_group_wait(dispatch_group_t group, dispatch_time_t timeout) {
    EXPECT_EQ(timeout, DISPATCH_TIME_FOREVER);
    Count& count = *static_cast<Group*>(group)->count;
    std::unique_lock lock(count.mutex);
    count.left.wait(lock, [&] { return count.running == 0; });
    return 0;
}

void dispatch_release(dispatch_object_t object) {
    --fakes::dispatch().groups;
    delete static_cast<Group*>(object);
}

} // extern "C"
