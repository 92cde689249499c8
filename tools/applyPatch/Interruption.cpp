#include "tools/applyPatch/Interruption.h"

#include <array>
#include <atomic>
#include <csignal>

namespace tools {

namespace {

constexpr int kGoesOn = -1;

std::atomic<int> s_signal = 0; // 0: none yet
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void remember(int signal) {
    int none = 0;
    s_signal.compare_exchange_strong(none, signal);
}

} // namespace

void rememberSignals() {
    for (const int signal : std::array{SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction now{};
        ::sigaction(signal, nullptr, &now);
        if (now.sa_handler == SIG_IGN)
            continue;
        now.sa_handler = remember;
        now.sa_flags = SA_RESTART;
        ::sigaction(signal, &now, nullptr);
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

void leaveIfInterrupted() {
    if (const int signal = s_signal; signal > 0)
        throw Interrupted{signal};
}

void passPointOfNoReturn() {
    int none = 0;
    if (!s_signal.compare_exchange_strong(none, kGoesOn) && none > 0)
        throw Interrupted{none};
}

} // namespace tools
