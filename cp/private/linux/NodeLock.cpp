#include "cp/private/NodeLock.h"

#include <cerrno>
#include <linux/fs.h>
#include <sys/ioctl.h>

namespace Corvaldine::CP::Private {

const unsigned kLockFlag = FS_IMMUTABLE_FL;

bool read_flags(int node, unsigned& flags) {
    // The kernel reads and writes an int here, whatever the request's number says.
    int value = 0;
    if (::ioctl(node, FS_IOC_GETFLAGS, &value) != 0) {
        // The file system has no flags.
        value = 0;
        if (errno != ENOTTY && errno != EOPNOTSUPP && errno != ENOSYS && errno != EINVAL)
            return false;
    }
    flags = static_cast<unsigned>(value);
    return true;
}

bool write_flags(int node, unsigned flags) {
    const int value = static_cast<int>(flags);
    return ::ioctl(node, FS_IOC_SETFLAGS, &value) == 0;
}

} // namespace Corvaldine::CP::Private
