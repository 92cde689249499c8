#include "cp/private/linux/CopyNode.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <linux/fs.h>
#include <string>
#include <string_view>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <vector>

#include "cp/private/FileDescriptor.h"

namespace Corvaldine::CP::Private {

namespace {

constexpr std::size_t kAtOnce = std::size_t{1} << 30;

bool writeAll(int to, const char* bytes, std::size_t left) {
    while (left > 0) {
        const ssize_t written = ::write(to, bytes, left);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        left -= static_cast<std::size_t>(written);
    }
    return true;
}

bool copyByHand(int from, int to) {
    std::vector<char> buffer(std::size_t{256} * 1024);
    for (;;) {
        const ssize_t count = ::read(from, buffer.data(), buffer.size());
        if (count == 0)
            return true;
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 || !writeAll(to, buffer.data(), static_cast<std::size_t>(count)))
            return false;
    }
}

// Shared blocks where the file system can, else within the kernel, else through a buffer. Both
// descriptors keep their place, so each way can go on where the one before stopped.
bool copyData(int from, int to) {
    if (::ioctl(to, FICLONE, from) == 0)
        return true;
    while (::copy_file_range(from, nullptr, to, nullptr, kAtOnce, 0) > 0) {
    }
    return copyByHand(from, to);
}

bool isAccessControl(std::string_view attribute) {
    return attribute == "system.posix_acl_access" || attribute == "system.posix_acl_default";
}

bool copyAttribute(int from, int to, const char* name) {
    const ssize_t size = ::fgetxattr(from, name, nullptr, 0);
    if (size < 0)
        return errno == ENODATA;
    std::vector<char> value(static_cast<std::size_t>(size));
    const ssize_t read = ::fgetxattr(from, name, value.data(), value.size());
    if (read < 0)
        return errno == ENODATA;
    if (::fsetxattr(to, name, value.data(), static_cast<std::size_t>(read), 0) == 0)
        return true;
    return errno == ENOTSUP || errno == EPERM || errno == EACCES;
}

bool isUsers(std::string_view attribute) {
    return attribute.starts_with("user.");
}

// Those that `belongs` picks.
bool copyAttributes(int from, int to, bool (*belongs)(std::string_view)) {
    const ssize_t size = ::flistxattr(from, nullptr, 0);
    if (size <= 0)
        return size == 0 || errno == ENOTSUP;
    std::vector<char> names(static_cast<std::size_t>(size));
    const ssize_t length = ::flistxattr(from, names.data(), names.size());
    if (length < 0)
        return false;
    const std::string_view all(names.data(), static_cast<std::size_t>(length));
    for (std::size_t at = 0, end = 0; at < all.size(); at = end + 1) {
        end = std::min(all.find('\0', at), all.size());
        const std::string name(all.substr(at, end - at));
        if (belongs(name) && !copyAttribute(from, to, name.c_str()))
            return false;
    }
    return true;
}

bool copyRegularFile(int fromFolder, const char* fromName, int toFolder, const char* toName) {
    const FileDescriptor from(
        ::openat(fromFolder, fromName, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status{};
    // What was a file when it was looked at may have become something else.
    if (!from.isOpen() || ::fstat(from.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    FileDescriptor to(
        ::openat(toFolder, toName, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!to.isOpen())
        return false;
    if (copyData(from.number(), to.number()) && copy_metadata(from.number(), to.number()) &&
        to.close())
        return true;
    ::unlinkat(toFolder, toName, 0);
    return false;
}

bool copyLink(int fromFolder, const char* fromName, int toFolder, const char* toName,
              const struct stat& status) {
    std::array<char, 4096> target{};
    const ssize_t size = ::readlinkat(fromFolder, fromName, target.data(), target.size() - 1);
    if (size < 0 || ::symlinkat(target.data(), toFolder, toName) != 0)
        return false;
    // Neither decides about success: no one asks a link for its owner or times.
    if (::fchownat(toFolder, toName, status.st_uid, status.st_gid, AT_SYMLINK_NOFOLLOW) != 0)
        errno = 0;
    const std::array<timespec, 2> times{status.st_atim, status.st_mtim};
    ::utimensat(toFolder, toName, times.data(), AT_SYMLINK_NOFOLLOW);
    return true;
}

} // namespace

bool copy_metadata(int from, int to) {
    struct stat status{};
    if (::fstat(from, &status) != 0)
        return false;
    mode_t mode = status.st_mode & 07777;
    // A set-id bit must not pass to another owner.
    if (::fchown(to, status.st_uid, status.st_gid) != 0)
        mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
    const std::array<timespec, 2> times{status.st_atim, status.st_mtim};
    // The user's attributes can only be set while the copy may be written to; an access control
    // list is part of the permissions and, set after them, wins.
    return copyAttributes(from, to, isUsers) && ::fchmod(to, mode) == 0 &&
           copyAttributes(from, to, isAccessControl) && ::futimens(to, times.data()) == 0;
}

bool copy_node(int fromFolder, const char* fromName, int toFolder, const char* toName) {
    struct stat status{};
    if (::fstatat(fromFolder, fromName, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    if (S_ISREG(status.st_mode))
        return copyRegularFile(fromFolder, fromName, toFolder, toName);
    return S_ISLNK(status.st_mode) && copyLink(fromFolder, fromName, toFolder, toName, status);
}

} // namespace Corvaldine::CP::Private
