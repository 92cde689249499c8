#include "tools/files/StatusTimes.h"

namespace tools {

timespec modifiedTime(const struct stat& status) {
    return status.st_mtim;
}

timespec accessedTime(const struct stat& status) {
    return status.st_atim;
}

timespec changedTime(const struct stat& status) {
    return status.st_ctim;
}

} // namespace tools
