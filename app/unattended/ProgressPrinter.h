// Tells the person at a terminal what an unattended run is doing: one line for each status, quarter
// marks while bytes are counted. Listens to the event stream; not used with --events.
#pragma once

#include <cstdint>
#include <ostream>

#include "app/unattended/EventStream.h"

namespace app {

class ProgressPrinter {
  public:
    explicit ProgressPrinter(std::ostream& out) : m_out(out) {}

    void operator()(const Event& event);

  private:
    std::ostream& m_out;
    std::uint64_t m_quarters = 0;
};

} // namespace app
