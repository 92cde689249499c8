// Turns the wish to end the program (Ctrl-C, kill, a closed terminal) into ordinary work on the
// main queue, so that everything is put away in order. Made first thing by the composition root,
// before any other thread: threads made later inherit that the signals are held back.
#pragma once

#include <atomic>
#include <functional>
#include <thread>

#include "platform/ports/Queues.h"

namespace posix {

class TerminationSignals {
  public:
    /// `asked` runs on the main queue at each SIGINT, SIGTERM or SIGHUP.
    TerminationSignals(ports::MainQueue& mainQueue, std::function<void()> asked);
    /// Listens no longer. The signals stay held back, so that the way out is not cut short.
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

  private:
    ports::MainQueue& m_mainQueue;
    const std::function<void()> m_asked;
    std::atomic<bool> m_over = false;
    std::thread m_waiter;
};

} // namespace posix
