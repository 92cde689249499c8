// The program's two queues (ports::MainQueue, ports::BackgroundQueue). The front end makes them,
// watches the main queue's descriptor in its own loop, and runs what is pending.
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

#include "platform/ports/Queues.h"
#include "platform/posix/OrderedWork.h"
#include "platform/posix/ProcessSystem.h"

namespace posix {

/// The thread that makes it is the main thread. Work that stands in it when it dies is dropped; who
/// waits for such work in `sync` gets a PlatformError.
class MainQueue final : public ports::MainQueue {
  public:
    /// Throws PlatformError when the process has no descriptors left.
    MainQueue();

    void post(std::function<void()> work) override;
    /// Throws std::logic_error on the main thread, where it could never return.
    void sync(const std::function<void()>& work) override;
    bool isMainThread() const override { return std::this_thread::get_id() == m_mainThread; }

    /// Readable exactly while work is pending; for poll(2) and its like. Never read it.
    int descriptor() const { return m_wake.reading.number(); }

    /// Main thread: waits until work is pending, at most this long. For loops without a toolkit.
    void waitForWork(std::chrono::milliseconds longest) const;

    /// Main thread: runs the work that was pending when this was called, in its order. Work that
    /// it posts waits for the next call. May be called from within work, as a nested loop does;
    /// each piece of work runs once. An exception that leaves posted work leaves here, and what is
    /// still pending stays so.
    void runPending();

  private:
    std::function<void()> next();

    const std::thread::id m_mainThread = std::this_thread::get_id();
    const Pipe m_wake;
    std::mutex m_mutex;
    std::deque<std::function<void()>> m_pending;
};

/// Work runs in its order, on one thread that lives while there is some.
class BackgroundQueue final : public ports::BackgroundQueue {
  public:
    BackgroundQueue() = default;
    BackgroundQueue(const BackgroundQueue&) = delete;
    BackgroundQueue& operator=(const BackgroundQueue&) = delete;
    /// Waits for all work. Work that may still `sync` with the main thread must be over before:
    /// run the main queue until `isBusy` is false.
    ~BackgroundQueue() override;

    void async(std::function<void()> work) override;
    bool isBusy() const override { return m_work.isBusy(); }

  private:
    OrderedWork m_work;
    std::mutex m_mutex; ///< of the thread
    std::thread m_thread;
};

} // namespace posix
