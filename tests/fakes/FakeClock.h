// ports::Clock that stands still: 2024-02-03 04:05:06 UTC until a test moves it.
#pragma once

#include "platform/ports/Clock.h"

namespace fakes {

class FakeClock final : public ports::Clock {
  public:
    std::chrono::system_clock::time_point time{std::chrono::seconds(1'706'933'106)};

    std::chrono::system_clock::time_point now() const override { return time; }
};

} // namespace fakes
