// The system log through syslog(3), with a copy of each line on standard error for whoever started
// the program in a terminal (ports::SystemLog). At most one such object; any thread may write.
#pragma once

#include "platform/ports/SystemLog.h"

namespace posix {

class StandardSystemLog final : public ports::SystemLog {
  public:
    StandardSystemLog();
    StandardSystemLog(const StandardSystemLog&) = delete;
    StandardSystemLog& operator=(const StandardSystemLog&) = delete;
    ~StandardSystemLog() override;

    /// Control characters in `text` become blanks, so that a line stays one line.
    void write(std::string_view text) override;
};

} // namespace posix
