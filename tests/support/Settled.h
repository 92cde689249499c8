// Waits until what is on disk has not changed for so long that it may be remembered. For the tests
// of what remembers folders and files; takes two seconds, the slowest tick of a file system's
// clock.
#pragma once

#include <chrono>
#include <string>
#include <thread>

#include "cp/FileStamp.h"

namespace tests {

/// Is the file or folder `last`, the one that changed last, settled in the end?
inline bool becomesSettled(const std::string& last) {
    for (int i = 0; i < 1000; ++i) {
        const auto stamp = Corvaldine::CP::stamp_of(last);
        if (stamp && stamp->settled)
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

} // namespace tests
