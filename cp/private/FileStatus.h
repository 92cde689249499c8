// What the system says of a file, in the library's words. The fields for times are called otherwise
// on each system, so that a file of this name in the system's own folder reads them. Used by
// FileStamp and FolderWalk.
#pragma once

#include <ctime>
#include <sys/stat.h>

#include "cp/FileStamp.h"

namespace Corvaldine::CP::Private {

[[nodiscard]] const timespec& time_written(const struct stat& status);
[[nodiscard]] const timespec& time_changed(const struct stat& status);

/// The stamp of a file whose status was asked for just now, before anything is read of it.
[[nodiscard]] FileStamp stamp_from(const struct stat& status);

} // namespace Corvaldine::CP::Private
