#include "app/unattended/EventStream.h"

#include <array>
#include <cstdio>

namespace app {

namespace {

/// ISO 8601 in UTC with milliseconds.
std::string timeText(std::chrono::system_clock::time_point time) {
    const ports::CalendarTime t(time);
    std::array<char, 48> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", t.year,
                      t.month, t.day, t.hour, t.minute, t.second, t.millisecond);
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::string EventStream::line(const Event& event) {
    return event.dump(-1, ' ', false, Event::error_handler_t::replace) + "\n";
}

void EventStream::emit(std::string_view name, const Event& members) {
    Event event = {{"event", name}, {"time", timeText(m_clock.now())}};
    event.update(members);
    if (m_mainQueue.isMainThread())
        tell(event);
    else
        m_mainQueue.post([this, event = std::move(event)] { tell(event); });
}

void EventStream::tell(const Event& event) const {
    for (const Listener& listener : m_listeners)
        listener(event);
}

} // namespace app
