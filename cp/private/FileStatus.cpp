#include "cp/private/FileStatus.h"

#include <chrono>
#include <cstdint>

namespace Corvaldine::CP::Private {

namespace {

// The slowest clock of a file system in use ticks every two seconds.
constexpr std::chrono::nanoseconds kSlowestTick = std::chrono::seconds(2);

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

std::int64_t now() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

} // namespace

FileStamp stamp_from(const struct stat& status) {
    const std::int64_t changed = nanoseconds(time_changed(status));
    return {.device = static_cast<std::uint64_t>(status.st_dev),
            .inode = static_cast<std::uint64_t>(status.st_ino),
            .size = static_cast<std::int64_t>(status.st_size),
            .written = nanoseconds(time_written(status)),
            .changed = changed,
            .settled = now() - changed > kSlowestTick.count()};
}

} // namespace Corvaldine::CP::Private
