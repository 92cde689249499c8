#include "cp/private/FileStatus.h"

namespace Corvaldine::CP::Private {

namespace {

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

} // namespace

std::int64_t written_at(const struct stat& status) {
    return nanoseconds(status.st_mtim);
}

std::int64_t changed_at(const struct stat& status) {
    return nanoseconds(status.st_ctim);
}

} // namespace Corvaldine::CP::Private
