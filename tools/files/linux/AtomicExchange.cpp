#include "tools/files/AtomicExchange.h"

#include <cerrno>
#include <cstdio>

namespace tools {

int exchangeNames(int folder, const char* one, const char* other) {
    if (::renameat2(folder, one, folder, other, RENAME_EXCHANGE) == 0)
        return 0;
    // EINVAL is what file systems answer that don't know the flag.
    const bool isUnknown = errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    return isUnknown ? kNoExchange : errno;
}

} // namespace tools
