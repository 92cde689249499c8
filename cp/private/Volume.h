// The volumes that paths lie on. Also used by the composition root, for what the adapters of the
// platform say of volumes.
#pragma once

#include <string>

namespace Corvaldine::CP::Private {

struct Volume {
    std::string mount_point; ///< begins the path, with its links resolved, of all that lies on it
    std::string name;        ///< UTF-8
};

/// The volume that holds what the path leads to; both empty when the path doesn't resolve. On macOS
/// the name is the one that the volume was given; the volumes of the startup disk are one, mounted
/// at "/". On Linux it is the last component of the mount point; the volume at "/", which has none,
/// is called "File System".
[[nodiscard]] Volume volume_of(const std::string& path);

[[nodiscard]] inline std::string volume_name(const std::string& path) {
    return volume_of(path).name;
}

} // namespace Corvaldine::CP::Private
