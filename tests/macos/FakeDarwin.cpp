#include "tests/macos/FakeDarwin.h"

#include <algorithm>
#include <cerrno>

// From here on this system's own, and the fields of the fake.
#undef fcntl
#undef fstat
#undef fsync
#undef lstat
#undef posix_spawnattr_setflags
#undef stat
#undef statfs

#include <gtest/gtest.h>

using fakes::darwin;

namespace fakes {

Darwin& darwin() {
    static Darwin one;
    return one;
}

namespace {

int withAdditions(int result, DarwinStat& status) {
    if (darwin().refusesStatus) {
        errno = EIO;
        return -1;
    }
    if (result == 0 && darwin().addStatus)
        darwin().addStatus(status);
    return result;
}

std::string bytesOf(const void* value, std::size_t size) {
    return {static_cast<const char*>(value), size};
}

} // namespace
} // namespace fakes

std::size_t darwinConfstr(int name, char* buffer, std::size_t size) {
    const std::string& folder = darwin().temporaryFolder;
    if (name != _CS_DARWIN_USER_TEMP_DIR || folder.empty())
        return 0;
    if (size > 0) {
        const std::size_t length = std::min(size - 1, folder.size());
        *std::copy_n(folder.begin(), length, buffer) = '\0';
    }
    return folder.size() + 1;
}

int darwinGetattrlist(const char* path, void* wanted, void* answer, std::size_t size, unsigned) {
    return darwin().getattrlist(path, *static_cast<attrlist*>(wanted), answer, size);
}

int darwinStatfs(const char* path, struct statfs* status) {
    return darwin().statfs(path, *status);
}

int darwinFstat(int file, DarwinStat* status) {
    return fakes::withAdditions(::fstat(file, status), *status);
}

int darwinLstat(const char* path, DarwinStat* status) {
    return fakes::withAdditions(::lstat(path, status), *status);
}

int fchflags(int file, unsigned flags) {
    return darwin().fchflags(file, flags);
}

ssize_t darwinGetxattr(const char* path, const char* name, void* value, std::size_t size,
                       std::uint32_t position, int options) {
    return darwin().getxattr(path, name, value, size, position, options);
}

int darwinSetxattr(const char* path, const char* name, const void* value, std::size_t size,
                   std::uint32_t position, int options) {
    return darwin().setxattr(path, name, fakes::bytesOf(value, size), position, options);
}

int darwinFsetxattr(int file, const char* name, const void* value, std::size_t size,
                    std::uint32_t position, int options) {
    return darwin().setxattr("#" + std::to_string(file), name, fakes::bytesOf(value, size),
                             position, options);
}

copyfile_state_t copyfile_state_alloc() {
    if (darwin().refusesCopyState)
        return nullptr;
    ++darwin().copyStates;
    return new DarwinCopyState;
}

int copyfile_state_free(copyfile_state_t state) {
    --darwin().copyStates;
    delete state;
    return 0;
}

int copyfile_state_set(copyfile_state_t state, std::uint32_t flag, const void* value) {
    if (flag == COPYFILE_STATE_STATUS_CB)
        state->callback = reinterpret_cast<copyfile_callback_t>(const_cast<void*>(value));
    else if (flag == COPYFILE_STATE_STATUS_CTX)
        state->context = const_cast<void*>(value);
    else
        return -1;
    return 0;
}

int copyfile(const char* from, const char* to, copyfile_state_t state, copyfile_flags_t flags) {
    return darwin().copyfile(from, to, state, flags);
}

int fcopyfile(int from, int to, copyfile_state_t state, copyfile_flags_t flags) {
    EXPECT_EQ(state, nullptr);
    return darwin().fcopyfile(from, to, flags);
}

ssize_t darwinFgetxattr(int, const char* name, void* value, std::size_t size,
                        std::uint32_t position, int options) {
    EXPECT_EQ(position, 0u);
    EXPECT_EQ(options, 0);
    return darwin().fgetxattr(name, value, size);
}

ssize_t darwinFlistxattr(int, char* names, std::size_t size, int options) {
    EXPECT_EQ(options, 0);
    return darwin().flistxattr(names, size);
}

int darwinFremovexattr(int file, const char* name, int options) {
    return darwin().fremovexattr(file, name, options);
}

int renamex_np(const char* from, const char* to, unsigned flags) {
    return darwin().rename(AT_FDCWD, from, AT_FDCWD, to, flags);
}

int renameatx_np(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    return darwin().rename(fromFolder, from, toFolder, to, flags);
}

namespace fakes {
namespace {

int flush(const std::string& how, int file, bool refuses) {
    darwin().flushed.push_back(how + " " + std::to_string(file));
    errno = refuses ? ENOTSUP : errno;
    return refuses ? -1 : 0;
}

} // namespace
} // namespace fakes

int darwinFsync(int file) {
    return fakes::flush("fsync", file, darwin().refusesFlush);
}

int darwinFcntl(int file, int command, long argument) {
    return command == F_FULLFSYNC ? fakes::flush("full", file, darwin().refusesFullFlush)
                                  : ::fcntl(file, command, argument);
}

int proc_pidpath(int pid, void* buffer, std::uint32_t size) {
    return darwin().procPidpath(pid, static_cast<char*>(buffer), size);
}

int kqueue() {
    errno = EMFILE;
    return darwin().refusesQueue ? -1 : ::open("/dev/null", O_RDONLY);
}

int kevent(int queue, const struct kevent* changes, int changeCount, struct kevent* events,
           int eventCount, const timespec* timeout) {
    EXPECT_EQ(changeCount, 1);
    EXPECT_EQ(events, nullptr);
    EXPECT_EQ(eventCount, 0);
    EXPECT_EQ(timeout, nullptr);
    return darwin().kevent(queue, *changes);
}

int posix_spawn_file_actions_addinherit_np(posix_spawn_file_actions_t*, int file) {
    darwin().inherited.push_back(file);
    return 0;
}

int darwinSpawnattrSetflags(posix_spawnattr_t*, short flags) {
    darwin().spawnFlags = flags;
    return 0;
}
