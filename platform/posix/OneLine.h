// A text as one line of a log. Used by the adapters of ports::SystemLog.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace posix {

/// `text` with its control characters as blanks.
inline std::string oneLine(std::string_view text) {
    std::string line(text);
    const auto isControl = [](unsigned char c) { return c < 0x20 || c == 0x7F; };
    std::ranges::replace_if(line, isControl, ' ');
    return line;
}

} // namespace posix
