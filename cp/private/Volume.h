// The names of volumes.
#pragma once

#include <string>

namespace Corvaldine::CP::Private {

/// The name of the volume that holds what the path leads to, UTF-8; empty when the path doesn't
/// resolve. On macOS the name that the volume was given. On Linux the last component of its mount
/// point; the one mounted at "/", which has none, is called "File System".
[[nodiscard]] std::string volume_name(const std::string& path);

} // namespace Corvaldine::CP::Private
