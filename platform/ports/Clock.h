// The time of day, for the log's dates and the events' times.
#pragma once

#include <chrono>

namespace ports {

/// A moment as the calendar and the clock on the wall show it in UTC.
struct CalendarTime {
    int year = 0;
    unsigned month = 0, day = 0;
    int hour = 0, minute = 0, second = 0, millisecond = 0;

    explicit CalendarTime(std::chrono::system_clock::time_point time) {
        using namespace std::chrono;
        const auto midnight = floor<days>(time);
        const year_month_day date(midnight);
        const hh_mm_ss clock(floor<milliseconds>(time - midnight));
        year = static_cast<int>(date.year());
        month = static_cast<unsigned>(date.month());
        day = static_cast<unsigned>(date.day());
        hour = static_cast<int>(clock.hours().count());
        minute = static_cast<int>(clock.minutes().count());
        second = static_cast<int>(clock.seconds().count());
        millisecond = static_cast<int>(clock.subseconds().count());
    }
};

class Clock {
  public:
    virtual ~Clock() = default;
    virtual std::chrono::system_clock::time_point now() const = 0;
};

} // namespace ports
