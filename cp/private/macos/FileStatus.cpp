#include "cp/private/FileStatus.h"

namespace Corvaldine::CP::Private {

const timespec& time_written(const struct stat& status) {
    return status.st_mtimespec;
}

const timespec& time_changed(const struct stat& status) {
    return status.st_ctimespec;
}

} // namespace Corvaldine::CP::Private
