// The system's time of day (ports::Clock).
#pragma once

#include "platform/ports/Clock.h"

namespace posix {

class SystemClock final : public ports::Clock {
  public:
    std::chrono::system_clock::time_point now() const override {
        return std::chrono::system_clock::now();
    }
};

} // namespace posix
