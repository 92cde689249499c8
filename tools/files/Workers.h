// Work that is known beforehand, done on all cores. For tools that check or make many files.
#pragma once

#include <atomic>
#include <cstddef>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "tools/files/WorkQueue.h"

namespace tools {

/// Calls `work(next)` on each core, this thread's among them; `next()` answers 0, 1, 2 ... across
/// all threads, and at least `count` when there is no more. The first exception ends the others'
/// work and is thrown here when all have ended.
template <typename Work>
void onAllCores(std::size_t count, Work work) {
    std::atomic<std::size_t> given = 0;
    std::mutex mutex;
    std::exception_ptr failure;
    const auto next = [&] { return given.load() < count ? given++ : count; };
    const auto guarded = [&] {
        try {
            work(next);
        } catch (...) {
            const std::lock_guard lock(mutex);
            if (!failure)
                failure = std::current_exception();
            given = count;
        }
    };
    std::vector<std::thread> others;
    try {
        while (others.size() + 1 < std::min(workerCount(), count))
            others.emplace_back(guarded);
    } catch (const std::system_error&) {
        // Fewer threads do it as well.
    }
    guarded();
    for (std::thread& other : others)
        other.join();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace tools
