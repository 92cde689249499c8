// Both queues without threads: posted work waits until a test runs it, work in the background as
// well, and everything happens on the test's own thread.
#pragma once

#include <deque>
#include <functional>
#include <utility>

#include "platform/ports/Queues.h"

namespace fakes {

class FakeMainQueue final : public ports::MainQueue {
  public:
    void post(std::function<void()> work) override { m_pending.push_back(std::move(work)); }

    /// What was posted before runs first, as the main thread would do it.
    void sync(const std::function<void()>& work) override {
        runPending();
        work();
    }

    bool isMainThread() const override { return true; }

    bool hasPending() const { return !m_pending.empty(); }

    /// Runs the work that is pending now; what it posts waits for the next call.
    void runPending() {
        for (std::size_t count = m_pending.size(); count > 0 && !m_pending.empty(); --count) {
            const std::function<void()> work = std::move(m_pending.front());
            m_pending.pop_front();
            work();
        }
    }

  private:
    std::deque<std::function<void()>> m_pending;
};

class FakeBackgroundQueue final : public ports::BackgroundQueue {
  public:
    void async(std::function<void()> work) override { m_work.push_back(std::move(work)); }

    bool isBusy() const override { return m_running || !m_work.empty(); }

    /// Runs all work to its end.
    void run() {
        while (!m_work.empty()) {
            const std::function<void()> work = std::move(m_work.front());
            m_work.pop_front();
            m_running = true;
            work();
            m_running = false;
        }
    }

  private:
    std::deque<std::function<void()>> m_work;
    bool m_running = false;
};

} // namespace fakes
