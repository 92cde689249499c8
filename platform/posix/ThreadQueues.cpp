#include "platform/posix/ThreadQueues.h"

#include <cerrno>
#include <future>
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
    auto task = std::make_shared<std::packaged_task<void()>>(std::cref(work));
    std::future<void> done = task->get_future();
    post([task = std::move(task)] { (*task)(); });
    done.get();
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
    m_work.push_back(std::move(work));
    if (std::exchange(m_running, true))
        return;
    if (m_thread.joinable())
        m_thread.join(); // it has found nothing left and is on its way out
    m_thread = std::thread([this] { runAll(); });
}

bool BackgroundQueue::isBusy() const {
    const std::lock_guard lock(m_mutex);
    return m_running;
}

void BackgroundQueue::runAll() noexcept {
    for (;;) {
        std::function<void()> work;
        {
            const std::lock_guard lock(m_mutex);
            if (m_work.empty()) {
                m_running = false;
                return;
            }
            work = std::move(m_work.front());
            m_work.pop_front();
        }
        work();
    }
}

} // namespace posix
