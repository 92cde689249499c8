#include "platform/posix/ProcessSystem.h"

#include <fcntl.h>
#include <sys/event.h>

namespace posix {

namespace {

Descriptor closedOnExec(int number) {
    Descriptor given(number);
    if (number > kProgressDescriptor) {
        ::fcntl(number, F_SETFD, FD_CLOEXEC);
        return given;
    }
    return Descriptor(::fcntl(number, F_DUPFD_CLOEXEC, kProgressDescriptor + 1));
}

} // namespace

Pipe makePipe() {
    int ends[2];
    if (::pipe(ends) != 0)
        return {};
    return {closedOnExec(ends[0]), closedOnExec(ends[1])};
}

Descriptor watchEnd(pid_t pid) {
    Descriptor queue = closedOnExec(::kqueue());
    struct kevent ended;
    EV_SET(&ended, static_cast<uintptr_t>(pid), EVFILT_PROC, EV_ADD, NOTE_EXIT, 0, nullptr);
    if (queue.isOpen() && ::kevent(queue.number(), &ended, 1, nullptr, 0, nullptr) != 0)
        queue.close();
    return queue;
}

// The system closes everything that no action has put in place, so `first` follows by itself.
void closeFrom(posix_spawn_file_actions_t& actions, posix_spawnattr_t& attributes, int first) {
    for (int standard = STDOUT_FILENO; standard <= STDERR_FILENO && standard < first; ++standard)
        // One that is closed here would make starting fail; an action has put another there.
        if (::fcntl(standard, F_GETFD) >= 0)
            ::posix_spawn_file_actions_addinherit_np(&actions, standard);
    short flags = 0;
    ::posix_spawnattr_getflags(&attributes, &flags);
    ::posix_spawnattr_setflags(&attributes,
                               static_cast<short>(flags | POSIX_SPAWN_CLOEXEC_DEFAULT));
}

} // namespace posix
