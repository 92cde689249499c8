#include "platform/posix/TerminationSignals.h"

#include <csignal>
#include <pthread.h>

namespace posix {

namespace {

sigset_t endingSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&set, signal);
    return set;
}

} // namespace

TerminationSignals::TerminationSignals(ports::MainQueue& mainQueue, std::function<void()> asked)
    : m_mainQueue(mainQueue), m_asked(std::move(asked)) {
    const sigset_t set = endingSignals();
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    m_waiter = std::thread([this, set] {
        int signal = 0;
        while (sigwait(&set, &signal) == 0 && !m_over)
            m_mainQueue.post(m_asked);
    });
}

TerminationSignals::~TerminationSignals() {
    m_over = true;
    // Ends nothing, as the signal is held back; it wakes the waiter alone.
    pthread_kill(m_waiter.native_handle(), SIGTERM); // NOLINT(bugprone-bad-signal-to-kill-thread)
    m_waiter.join();
}

} // namespace posix
