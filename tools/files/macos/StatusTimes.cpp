#include "tools/files/StatusTimes.h"

namespace tools {

timespec modifiedTime(const struct stat& status) {
    return status.st_mtimespec;
}

timespec accessedTime(const struct stat& status) {
    return status.st_atimespec;
}

timespec changedTime(const struct stat& status) {
    return status.st_ctimespec;
}

} // namespace tools
