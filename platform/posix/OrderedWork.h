// The work of a background queue: what is still to do and whether somebody is at it. The queues of
// both systems keep theirs here and only bring the thread. Never starts one itself. Any thread.
#pragma once

#include <deque>
#include <functional>
#include <mutex>

namespace posix {

class OrderedWork {
  public:
    /// Adds `work` at the end. True when nobody is at it: the caller then has to see to one call of
    /// `runAll` on another thread.
    [[nodiscard]] bool add(std::function<void()> work);

    /// Runs the work in its order, one piece at a time, until nothing is left. An exception that
    /// leaves the work ends the program.
    void runAll() noexcept;

    /// Is work waiting or running?
    bool isBusy() const;

  private:
    /// The next piece; an empty function when there is none, and nobody is at it from then on.
    std::function<void()> next();

    mutable std::mutex m_mutex;
    std::deque<std::function<void()>> m_waiting;
    bool m_isBusy = false;
};

} // namespace posix
