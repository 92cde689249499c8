// Reads the lines "DONE TOTAL FILES\n" (decimal numbers: bytes, bytes, files) that a tool of our
// own writes to its progress pipe. Bytes may come in any pieces; a line that says anything else is
// passed over.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/ports/Tools.h"

namespace posix {

class ProgressLines {
  public:
    explicit ProgressLines(const std::function<void(const ports::ToolProgress&)>& listener)
        : m_listener(listener) {}

    void take(std::string_view bytes);

  private:
    const std::function<void(const ports::ToolProgress&)>& m_listener;
    std::string m_begun;
};

} // namespace posix
