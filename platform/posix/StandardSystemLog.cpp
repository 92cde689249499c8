#include "platform/posix/StandardSystemLog.h"

#include <algorithm>
#include <string>
#include <syslog.h>

namespace posix {

StandardSystemLog::StandardSystemLog() {
    ::openlog("Scrivel 21 Installer", LOG_PERROR | LOG_PID, LOG_USER);
}

StandardSystemLog::~StandardSystemLog() {
    ::closelog();
}

void StandardSystemLog::write(std::string_view text) {
    std::string line(text);
    const auto isControl = [](unsigned char c) { return c < 0x20 || c == 0x7F; };
    std::ranges::replace_if(line, isControl, ' ');
    ::syslog(LOG_NOTICE, "%s", line.c_str());
}

} // namespace posix
