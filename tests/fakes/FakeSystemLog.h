// ports::SystemLog that keeps its lines. One thread.
#pragma once

#include <string>
#include <vector>

#include "platform/ports/SystemLog.h"

namespace fakes {

class FakeSystemLog final : public ports::SystemLog {
  public:
    std::vector<std::string> lines;

    void write(std::string_view text) override { lines.emplace_back(text); }
};

} // namespace fakes
