// The time of day, for the log's dates and the events' times.
#pragma once

#include <chrono>

namespace ports {

class Clock {
  public:
    virtual ~Clock() = default;
    virtual std::chrono::system_clock::time_point now() const = 0;
};

} // namespace ports
