// The system's unified log, with a copy of each line on standard error for whoever started the
// program in a terminal (ports::SystemLog). Any thread may write.
#pragma once

#include "platform/ports/SystemLog.h"

namespace macoshost {

class UnifiedLog final : public ports::SystemLog {
  public:
    /// Control characters in `text` become blanks, so that a line stays one line.
    void write(std::string_view text) override;
};

} // namespace macoshost
