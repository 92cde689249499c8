#include "platform/posix/StandardSystemLog.h"

#include <syslog.h>

#include "platform/posix/OneLine.h"

namespace posix {

StandardSystemLog::StandardSystemLog() {
    ::openlog("Scrivel 21 Installer", LOG_PERROR | LOG_PID, LOG_USER);
}

StandardSystemLog::~StandardSystemLog() {
    ::closelog();
}

void StandardSystemLog::write(std::string_view text) {
    ::syslog(LOG_NOTICE, "%s", oneLine(text).c_str());
}

} // namespace posix
