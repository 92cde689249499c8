#include "cp/private/FileStatus.h"

namespace Corvaldine::CP::Private {

const timespec& time_written(const struct stat& status) {
    return status.st_mtim;
}

const timespec& time_changed(const struct stat& status) {
    return status.st_ctim;
}

} // namespace Corvaldine::CP::Private
