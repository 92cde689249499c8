// Waits for a condition that another process or thread brings about.
#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace tests {

/// True as soon as the condition is; false when it has not come about within ten seconds.
inline bool comesTrue(const std::function<bool()>& condition) {
    for (int i = 0; i < 2000; ++i) {
        if (condition())
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return false;
}

} // namespace tests
