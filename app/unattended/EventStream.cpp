#include "app/unattended/EventStream.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace app {

namespace {

/// ISO 8601 in UTC with milliseconds.
std::string timeText(std::chrono::system_clock::time_point time) {
    using namespace std::chrono;
    const auto day = floor<days>(time);
    const year_month_day date(day);
    const hh_mm_ss clock(floor<milliseconds>(time - day));
    std::array<char, 48> text{};
    const int length = std::snprintf(
        text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ",
        static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
        static_cast<unsigned>(date.day()), static_cast<int>(clock.hours().count()),
        static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()),
        static_cast<int>(clock.subseconds().count()));
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::string EventStream::line(const Event& event) {
    return event.dump(-1, ' ', false, Event::error_handler_t::replace) + "\n";
}

void EventStream::emit(std::string_view name, Event members) {
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
