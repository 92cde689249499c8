#include "cp/private/RenameExclusively.h"

#include <cerrno>
#include <stdio.h>

namespace Corvaldine::CP::Private {

int rename_unless_taken(const char* from, const char* to) {
    return ::renamex_np(from, to, RENAME_EXCL) == 0 ? 0 : errno;
}

} // namespace Corvaldine::CP::Private
