// File references: values that say which file or folder is meant, rather than where it would lie.
#pragma once

#include <cstdint>
#include <string>

namespace Corvaldine::CP {

/// What a path led to when it was resolved.
struct FSRef {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::string path; ///< UTF-8, absolute, links resolved

    [[nodiscard]] bool operator==(const FSRef&) const = default;
};

/// The old-style form: a volume, a folder on it and a name in that folder.
struct FSSpec {
    std::uint64_t vRefNum = 0; ///< device
    std::uint64_t parID = 0;   ///< inode of the folder
    std::string name;          ///< UTF-8

    [[nodiscard]] bool operator==(const FSSpec&) const = default;
};

} // namespace Corvaldine::CP
