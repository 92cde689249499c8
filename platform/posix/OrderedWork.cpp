#include "platform/posix/OrderedWork.h"

#include <utility>

namespace posix {

bool OrderedWork::add(std::function<void()> work) {
    const std::lock_guard lock(m_mutex);
    m_waiting.push_back(std::move(work));
    return !std::exchange(m_isBusy, true);
}

std::function<void()> OrderedWork::next() {
    const std::lock_guard lock(m_mutex);
    m_isBusy = !m_waiting.empty();
    if (!m_isBusy)
        return {};
    std::function<void()> work = std::move(m_waiting.front());
    m_waiting.pop_front();
    return work;
}

void OrderedWork::runAll() noexcept {
    while (const std::function<void()> work = next())
        work();
}

bool OrderedWork::isBusy() const {
    const std::lock_guard lock(m_mutex);
    return m_isBusy;
}

} // namespace posix
