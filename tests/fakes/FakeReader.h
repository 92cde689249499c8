// ports::Reader and ports::Beeper that keep what they were asked for.
#pragma once

#include <vector>

#include "platform/ports/FrontEnd.h"

namespace fakes {

class FakeReader final : public ports::Reader {
  public:
    std::vector<ports::ReadingMatter> matters;
    void read(const ports::ReadingMatter& matter, controls::Window&) override {
        matters.push_back(matter);
    }
};

class FakeBeeper final : public ports::Beeper {
  public:
    int beeps = 0;
    void beep() override { ++beeps; }
};

} // namespace fakes
