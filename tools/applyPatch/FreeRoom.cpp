#include "tools/applyPatch/FreeRoom.h"

#include <algorithm>

#include <sys/statvfs.h>
#include <unistd.h>

#include "tools/applyPatch/ApplyError.h"
#include "tools/files/Descriptor.h"

namespace tools {

namespace {

constexpr std::uint64_t kMegabyte = 1'000'000;
constexpr std::uint64_t kMargin = kMegabyte;

struct statvfs volumeOf(int folder) {
    struct statvfs volume{};
    checked(::fstatvfs(folder, &volume));
    return volume;
}

} // namespace

std::uint64_t blockSize(int folder) {
    return std::max<std::uint64_t>(volumeOf(folder).f_frsize, 1);
}

void requireRoom(int folder, const std::string& path, std::uint64_t bytes, std::uint64_t entries) {
    const struct statvfs volume = volumeOf(folder);
    const bool isRoot = ::geteuid() == 0;
    const std::uint64_t blocks = isRoot ? volume.f_bfree : volume.f_bavail;
    const std::uint64_t free = blocks * volume.f_frsize;
    bytes += kMargin;
    if (free < bytes)
        throw ApplyError(Ending::refused,
                         path + ": the new version needs " +
                             std::to_string(inBlocks(bytes, kMegabyte) / kMegabyte) +
                             " MB on this volume, where " + std::to_string(free / kMegabyte) +
                             " MB are free; free some and start again");
    // A file system that makes room for entries as they come says that it has none at all.
    const std::uint64_t freeEntries = isRoot ? volume.f_ffree : volume.f_favail;
    if (volume.f_files > 0 && freeEntries < entries)
        throw ApplyError(Ending::refused, path + ": the volume has no room for " +
                                              std::to_string(entries) +
                                              " more files; remove some and start again");
}

} // namespace tools
