#include "platform/posix/ThreadQueues.h"

#include <cerrno>
#include <condition_variable>
#include <exception>
#include <memory>
#include <stdexcept>
#include <utility>

#include <poll.h>

#include "platform/ports/PlatformError.h"

namespace posix {

namespace {

// One byte stands in the pipe exactly while work is pending, so neither call can wait.
void raise(const Pipe& wake) {
    const char byte = 1;
    while (::write(wake.writing.number(), &byte, 1) < 0 && errno == EINTR) {
    }
}

void lower(const Pipe& wake) {
    char byte = 0;
    while (::read(wake.reading.number(), &byte, 1) < 0 && errno == EINTR) {
    }
}

/// What a thread waits for in `sync`. The exception changes hands whole: the main thread has let go
/// of it when the waiting thread takes it.
class Outcome {
  public:
    void tell(std::exception_ptr error) {
        const std::lock_guard lock(m_mutex);
        m_isKnown = true;
        m_error = std::move(error);
        m_known.notify_one();
    }
    std::exception_ptr wait() {
        std::unique_lock lock(m_mutex);
        m_known.wait(lock, [this] { return m_isKnown; });
        return std::move(m_error);
    }

  private:
    std::mutex m_mutex;
    std::condition_variable m_known;
    bool m_isKnown = false;
    std::exception_ptr m_error;
};

/// Work in the queue that somebody waits for; when it is dropped unrun, it says so.
class AwaitedWork {
  public:
    AwaitedWork(const std::function<void()>& work, std::shared_ptr<Outcome> outcome)
        : m_work(work), m_outcome(std::move(outcome)) {}
    AwaitedWork(const AwaitedWork&) = delete;
    AwaitedWork& operator=(const AwaitedWork&) = delete;
    ~AwaitedWork() {
        if (m_outcome)
            m_outcome->tell(std::make_exception_ptr(
                ports::PlatformError("The main queue is gone; the work was not done")));
    }

    void run() {
        std::exception_ptr error;
        try {
            m_work();
        } catch (...) {
            error = std::current_exception();
        }
        std::exchange(m_outcome, nullptr)->tell(std::move(error));
    }

  private:
    const std::function<void()>& m_work;
    std::shared_ptr<Outcome> m_outcome;
};

} // namespace

MainQueue::MainQueue() : m_wake(makePipe()) {
    if (!m_wake.isOpen())
        throw ports::PlatformError("The main queue gets no descriptors");
}

void MainQueue::post(std::function<void()> work) {
    const std::lock_guard lock(m_mutex);
    m_pending.push_back(std::move(work));
    if (m_pending.size() == 1)
        raise(m_wake);
}

void MainQueue::sync(const std::function<void()>& work) {
    if (isMainThread())
        throw std::logic_error("The main thread can't wait for itself");
    const auto outcome = std::make_shared<Outcome>();
    post([awaited = std::make_shared<AwaitedWork>(work, outcome)] { awaited->run(); });
    if (std::exception_ptr error = outcome->wait())
        std::rethrow_exception(std::move(error));
}

std::function<void()> MainQueue::next() {
    const std::lock_guard lock(m_mutex);
    if (m_pending.empty())
        return {};
    std::function<void()> work = std::move(m_pending.front());
    m_pending.pop_front();
    if (m_pending.empty())
        lower(m_wake);
    return work;
}

void MainQueue::waitForWork(std::chrono::milliseconds longest) const {
    pollfd wake{descriptor(), POLLIN, 0};
    (void)poll(&wake, 1, static_cast<int>(longest.count()));
}

void MainQueue::runPending() {
    std::size_t count = 0;
    {
        const std::lock_guard lock(m_mutex);
        count = m_pending.size();
    }
    for (; count > 0; --count) {
        const std::function<void()> work = next();
        if (!work) // a nested call has run the rest
            return;
        work();
    }
}

BackgroundQueue::~BackgroundQueue() {
    if (m_thread.joinable())
        m_thread.join();
}

void BackgroundQueue::async(std::function<void()> work) {
    const std::lock_guard lock(m_mutex);
    if (!m_work.add(std::move(work)))
        return;
    if (m_thread.joinable())
        m_thread.join(); // it has found nothing left and is on its way out
    m_thread = std::thread([this] { m_work.runAll(); });
}

} // namespace posix
