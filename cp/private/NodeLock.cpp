#include "cp/private/NodeLock.h"

#include <sys/stat.h>

namespace Corvaldine::CP::Private {

FileDescriptor open_node(int folder, const char* name, bool followLinks) {
    // Looked at first: opening a device or a pipe could have an effect.
    struct stat status{};
    if (::fstatat(folder, name, &status, followLinks ? 0 : AT_SYMLINK_NOFOLLOW) != 0 ||
        !(S_ISREG(status.st_mode) || S_ISDIR(status.st_mode)))
        return {};
    return FileDescriptor(
        ::openat(folder, name, O_RDONLY | O_NONBLOCK | O_CLOEXEC | (followLinks ? 0 : O_NOFOLLOW)));
}

bool read_locked(const FileDescriptor& node, bool& locked) {
    unsigned flags = 0;
    if (!node.isOpen() || !read_flags(node.number(), flags))
        return false;
    locked = (flags & kLockFlag) != 0;
    return true;
}

bool set_locked(const FileDescriptor& node, bool locked) {
    unsigned flags = 0;
    if (!node.isOpen() || !read_flags(node.number(), flags))
        return false;
    const unsigned wanted = locked ? flags | kLockFlag : flags & ~kLockFlag;
    return wanted == flags || write_flags(node.number(), wanted);
}

} // namespace Corvaldine::CP::Private
