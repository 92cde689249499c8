// Grand Central Dispatch for tests on another system: each function that is handed over runs on a
// thread of its own, at once. Counts what was handed over and what groups there are.
#pragma once

#include <atomic>

namespace fakes {

struct Dispatch {
    std::atomic<int> started = 0;
    std::atomic<int> groups = 0;
};

Dispatch& dispatch();

/// Waits for the threads, which outlive their functions by a moment. For the end of a test.
void joinDispatched();

} // namespace fakes
