#include "cp/private/NodeLock.h"

#include <sys/stat.h>

namespace Corvaldine::CP::Private {

const unsigned kLockFlag = UF_IMMUTABLE;

bool read_flags(int node, unsigned& flags) {
    struct stat status;
    if (::fstat(node, &status) != 0)
        return false;
    flags = status.st_flags;
    return true;
}

bool write_flags(int node, unsigned flags) {
    return ::fchflags(node, flags) == 0;
}

} // namespace Corvaldine::CP::Private
