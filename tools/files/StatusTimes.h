// The times of a file's status in nanoseconds, whose members each system names its own way;
// implemented once for each system by the file of the same name in its folder.
#pragma once

#include <sys/stat.h>
#include <time.h>

namespace tools {

timespec modifiedTime(const struct stat& status);
timespec accessedTime(const struct stat& status);
/// When the status changed: moves on with every change of content or status, and no program can
/// turn it back.
timespec changedTime(const struct stat& status);

inline bool isSameTime(const timespec& one, const timespec& other) {
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

} // namespace tools
