// Tells whether a file or folder is still as it was when it was read, so that what was read may be
// kept. Used by what remembers folders and files: the walk for applications and the registry of
// bundles. Looks only. Files on another machine are as certain as its clock agrees with ours.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Corvaldine::CP {

struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t written = 0; ///< contents changed last, in nanoseconds since 1970
    std::int64_t changed = 0; ///< anything changed last; nobody can set it
    /// Had the last change been over for a while when the stamp was taken? Until then another
    /// change could leave the same stamp, as a file system's clock ticks slowly.
    bool settled = false;

    /// Is what was read after this stamp was taken still what is there at the stamp `now`?
    [[nodiscard]] bool holds(const FileStamp& now) const;
};

/// What is at the path, links followed; none when nothing is or it can't be reached.
[[nodiscard]] std::optional<FileStamp> stamp_of(const std::string& path);

} // namespace Corvaldine::CP
