// The two queues of the program: the main thread's, and one for the work behind it.
#pragma once

#include <functional>

namespace ports {

/// Work for the main thread. The front end's loop drains it; so do nested loops.
class MainQueue {
  public:
    virtual ~MainQueue() = default;

    /// Queues `work` and returns. From any thread; in the order of the calls.
    virtual void post(std::function<void()> work) = 0;

    /// Queues `work` and waits until the main thread has run it. An exception that leaves `work` is
    /// rethrown here. Never from the main thread.
    virtual void sync(const std::function<void()>& work) = 0;

    virtual bool isMainThread() const = 0;
};

/// One block of work at a time off the main thread, at default priority.
class BackgroundQueue {
  public:
    virtual ~BackgroundQueue() = default;

    /// Queues `work` and returns. An exception that leaves `work` ends the program, as the platform
    /// does it; work catches what it expects.
    virtual void async(std::function<void()> work) = 0;

    /// Is a block queued or running?
    virtual bool isBusy() const = 0;
};

} // namespace ports
