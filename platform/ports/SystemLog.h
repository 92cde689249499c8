// The system's own log, for what concerns support rather than the user's install log.
#pragma once

#include <string_view>

namespace ports {

class SystemLog {
  public:
    virtual ~SystemLog() = default;
    /// Writes one line. Never fails visibly. May be called from any thread.
    virtual void write(std::string_view text) = 0;
};

} // namespace ports
