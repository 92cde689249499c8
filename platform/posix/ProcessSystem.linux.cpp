#include "platform/posix/ProcessSystem.h"

#include <fcntl.h>
#include <sys/syscall.h>

namespace posix {

namespace {

Descriptor aboveTheFixedOnes(int number) {
    Descriptor given(number);
    if (number > kProgressDescriptor)
        return given;
    return Descriptor(::fcntl(number, F_DUPFD_CLOEXEC, kProgressDescriptor + 1));
}

} // namespace

Pipe makePipe() {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return {};
    return {aboveTheFixedOnes(ends[0]), aboveTheFixedOnes(ends[1])};
}

Descriptor watchEnd(pid_t pid) {
    // The descriptor closes itself on exec.
    return Descriptor(static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)));
}

void closeFrom(posix_spawn_file_actions_t& actions, posix_spawnattr_t&, int first) {
    ::posix_spawn_file_actions_addclosefrom_np(&actions, first);
}

} // namespace posix
