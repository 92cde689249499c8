#include "tests/reliability/DiskCalls.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <sys/syscall.h>

namespace sweep {

namespace {

using enum Effect;

// Calls that are newer than the headers have their numbers here; they are the same on all machines.
constexpr long kRingSetup = 425;
constexpr long kOpenAt2 = 437;
constexpr long kFchmodAt2 = 452;
constexpr long kSetAttributeAt = 463;
constexpr long kRemoveAttributeAt = 466;

constexpr std::array kCalls{
    CallShape{
        .number = SYS_openat, .name = "openat", .effect = open, .folder = 0, .path = 1, .flags = 2},
    CallShape{
        .number = kOpenAt2, .name = "openat2", .effect = open, .folder = 0, .path = 1, .flags = 2},
    // Writes that go through a ring can't be seen; it has no path, so that it counts as a change
    // elsewhere.
    CallShape{.number = kRingSetup, .name = "io_uring_setup", .effect = write},
    CallShape{.number = SYS_mkdirat, .name = "mkdirat", .effect = create, .folder = 0, .path = 1},
    CallShape{.number = SYS_mknodat, .name = "mknodat", .effect = create, .folder = 0, .path = 1},
    CallShape{
        .number = SYS_symlinkat, .name = "symlinkat", .effect = create, .folder = 1, .path = 2},
    CallShape{.number = SYS_linkat, .name = "linkat", .effect = create, .folder = 2, .path = 3},
    CallShape{.number = SYS_write, .name = "write", .effect = write, .file = 0},
    CallShape{.number = SYS_pwrite64, .name = "pwrite64", .effect = write, .file = 0},
    CallShape{.number = SYS_writev, .name = "writev", .effect = write, .file = 0},
    CallShape{.number = SYS_pwritev, .name = "pwritev", .effect = write, .file = 0},
    CallShape{.number = SYS_pwritev2, .name = "pwritev2", .effect = write, .file = 0},
    CallShape{.number = SYS_sendfile, .name = "sendfile", .effect = write, .file = 0},
    CallShape{.number = SYS_splice, .name = "splice", .effect = write, .file = 2},
    CallShape{.number = SYS_copy_file_range, .name = "copy_file_range", .effect = write, .file = 2},
    CallShape{.number = SYS_ioctl, .name = "ioctl", .effect = write, .file = 0, .flags = 1},
    CallShape{.number = SYS_mmap, .name = "mmap", .effect = write, .file = 4, .flags = 3},
    CallShape{.number = SYS_fallocate, .name = "fallocate", .effect = write, .file = 0},
    CallShape{.number = SYS_ftruncate, .name = "ftruncate", .effect = write, .file = 0},
    CallShape{.number = SYS_truncate, .name = "truncate", .effect = write, .path = 0},
    CallShape{.number = SYS_fchmod, .name = "fchmod", .effect = metadata, .file = 0},
    CallShape{
        .number = SYS_fchmodat, .name = "fchmodat", .effect = metadata, .folder = 0, .path = 1},
    CallShape{
        .number = kFchmodAt2, .name = "fchmodat2", .effect = metadata, .folder = 0, .path = 1},
    CallShape{.number = SYS_fchown, .name = "fchown", .effect = metadata, .file = 0},
    CallShape{
        .number = SYS_fchownat, .name = "fchownat", .effect = metadata, .folder = 0, .path = 1},
    CallShape{
        .number = SYS_utimensat, .name = "utimensat", .effect = metadata, .folder = 0, .path = 1},
    CallShape{.number = SYS_setxattr, .name = "setxattr", .effect = metadata, .path = 0},
    CallShape{.number = SYS_lsetxattr, .name = "lsetxattr", .effect = metadata, .path = 0},
    CallShape{.number = SYS_fsetxattr, .name = "fsetxattr", .effect = metadata, .file = 0},
    CallShape{.number = SYS_removexattr, .name = "removexattr", .effect = metadata, .path = 0},
    CallShape{.number = SYS_lremovexattr, .name = "lremovexattr", .effect = metadata, .path = 0},
    CallShape{.number = SYS_fremovexattr, .name = "fremovexattr", .effect = metadata, .file = 0},
    CallShape{.number = kSetAttributeAt,
              .name = "setxattrat",
              .effect = metadata,
              .folder = 0,
              .path = 1},
    CallShape{.number = kRemoveAttributeAt,
              .name = "removexattrat",
              .effect = metadata,
              .folder = 0,
              .path = 1},
    CallShape{.number = SYS_renameat2,
              .name = "renameat2",
              .effect = rename,
              .folder = 0,
              .path = 1,
              .secondFolder = 2,
              .secondPath = 3,
              .flags = 4},
    CallShape{.number = SYS_unlinkat, .name = "unlinkat", .effect = remove, .folder = 0, .path = 1},
    CallShape{.number = SYS_fsync, .name = "fsync", .effect = flush, .file = 0},
    CallShape{.number = SYS_fdatasync, .name = "fdatasync", .effect = flush, .file = 0},
    CallShape{.number = SYS_syncfs, .name = "syncfs", .effect = flush, .file = 0},
    CallShape{.number = SYS_sync_file_range, .name = "sync_file_range", .effect = flush, .file = 0},
    CallShape{.number = SYS_sync, .name = "sync", .effect = flush},
    CallShape{.number = SYS_read, .name = "read", .effect = read, .file = 0},
    CallShape{.number = SYS_pread64, .name = "pread64", .effect = read, .file = 0},
    CallShape{.number = SYS_getdents64, .name = "getdents64", .effect = read, .file = 0},
    CallShape{.number = SYS_fstat, .name = "fstat", .effect = read, .file = 0},
    CallShape{
        .number = SYS_newfstatat, .name = "newfstatat", .effect = read, .folder = 0, .path = 1},
    CallShape{.number = SYS_statx, .name = "statx", .effect = read, .folder = 0, .path = 1},
    CallShape{
        .number = SYS_readlinkat, .name = "readlinkat", .effect = read, .folder = 0, .path = 1},
    CallShape{.number = SYS_flistxattr, .name = "flistxattr", .effect = read, .file = 0},
    CallShape{.number = SYS_fgetxattr, .name = "fgetxattr", .effect = read, .file = 0},
    // What only older machines' systems have.
    CallShape{.number = SYS_open, .name = "open", .effect = open, .path = 0, .flags = 1},
    CallShape{.number = SYS_creat, .name = "creat", .effect = create, .path = 0},
    CallShape{.number = SYS_mkdir, .name = "mkdir", .effect = create, .path = 0},
    CallShape{.number = SYS_mknod, .name = "mknod", .effect = create, .path = 0},
    CallShape{.number = SYS_symlink, .name = "symlink", .effect = create, .path = 1},
    CallShape{.number = SYS_link, .name = "link", .effect = create, .path = 1},
    CallShape{.number = SYS_chmod, .name = "chmod", .effect = metadata, .path = 0},
    CallShape{.number = SYS_chown, .name = "chown", .effect = metadata, .path = 0},
    CallShape{.number = SYS_lchown, .name = "lchown", .effect = metadata, .path = 0},
    CallShape{.number = SYS_utime, .name = "utime", .effect = metadata, .path = 0},
    CallShape{.number = SYS_utimes, .name = "utimes", .effect = metadata, .path = 0},
    CallShape{
        .number = SYS_futimesat, .name = "futimesat", .effect = metadata, .folder = 0, .path = 1},
    CallShape{.number = SYS_rename, .name = "rename", .effect = rename, .path = 0, .secondPath = 1},
    CallShape{.number = SYS_renameat,
              .name = "renameat",
              .effect = rename,
              .folder = 0,
              .path = 1,
              .secondFolder = 2,
              .secondPath = 3},
    CallShape{.number = SYS_unlink, .name = "unlink", .effect = remove, .path = 0},
    CallShape{.number = SYS_rmdir, .name = "rmdir", .effect = remove, .path = 0},
};

bool isOneOf(Effect effect, std::initializer_list<Effect> those) {
    return std::ranges::find(those, effect) != those.end();
}

} // namespace

std::span<const CallShape> diskCalls() {
    return kCalls;
}

const CallShape* diskCall(long number) {
    const auto found = std::ranges::find(kCalls, number, &CallShape::number);
    return found == kCalls.end() ? nullptr : &*found;
}

bool mayAnswer(std::string_view name, Effect effect, int error) {
    const bool opens = name.starts_with("open") || name == "creat";
    switch (error) {
    case ENOSPC:
    case EDQUOT:
        return isOneOf(effect, {create, write, rename}) || name.ends_with("setxattr") ||
               name == "fsync";
    case EIO:
        return true;
    case EACCES:
    case EPERM: // an attribute that the system refuses is left out; see ApplySweepTest
        return isOneOf(effect, {create, metadata, rename, remove, open}) &&
               !name.ends_with("xattr");
    case EROFS:
        return isOneOf(effect, {create, metadata, rename, remove});
    case EMFILE:
        return opens;
    case EINTR:
        return opens || isOneOf(effect, {write, flush}) || name == "read" || name == "pread64";
    case EOPNOTSUPP: // without attributes the file system could not hold the tree at all
        return name == "ioctl" || name == "fallocate" || name == "copy_file_range";
    default:
        return changesDisk(effect);
    }
}

} // namespace sweep
