#include "tools/files/AtomicExchange.h"

#include <cerrno>
#include <cstdio>

namespace tools {

int exchangeNames(int folder, const char* one, const char* other) {
    if (::renameatx_np(folder, one, folder, other, RENAME_SWAP) == 0)
        return 0;
    return errno == ENOTSUP || errno == ENOSYS || errno == EINVAL ? kNoExchange : errno;
}

} // namespace tools
