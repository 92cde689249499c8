// Work that is known beforehand, done by several threads. For tools that check or make many files.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <iterator>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "tools/files/WorkQueue.h"

namespace tools {

/// Calls `work(next)` on so many threads at most, this one among them; `next()` answers 0, 1, 2 ...
/// across all threads, and at least `count` when there is no more. The first exception ends the
/// others' work and is thrown here when all have ended.
template <typename Work>
void onThreads(std::size_t most, std::size_t count, Work work) {
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
        while (others.size() + 1 < std::min(most, count))
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

/// The same with a thread for each core.
template <typename Work>
void onAllCores(std::size_t count, Work work) {
    onThreads(workerCount(), count, std::move(work));
}

/// The same items with the large ones first, the largest before all, so that no core begins one
/// when the others are done; the small ones keep their order. `size(item)` is in bytes.
template <typename Item, typename Size>
std::vector<Item> largeOnesFirst(const std::vector<Item>& items, std::uint64_t large, Size size) {
    const auto isLarge = [&](const Item& item) { return size(item) >= large; };
    std::vector<Item> order;
    order.reserve(items.size());
    std::ranges::copy_if(items, std::back_inserter(order), isLarge);
    std::ranges::sort(order, std::ranges::greater(), size);
    std::ranges::copy_if(items, std::back_inserter(order), std::not_fn(isLarge));
    return order;
}

} // namespace tools
