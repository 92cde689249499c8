#include "cp/private/RenameExclusively.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>

namespace Corvaldine::CP::Private {

int rename_unless_taken(const char* from, const char* to) {
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return 0;
    return errno == EINVAL || errno == ENOSYS ? ENOTSUP : errno;
}

} // namespace Corvaldine::CP::Private
