// The program's events, one JSON object each: what happens, told to scripts. Made by everything
// that watches the core (see Observers.h), read by standard output (--events), by the progress
// printer and by the answers driver, which waits for them.
//
// `emit` may be called on any thread; listeners are told on the main thread, in order.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/ports/Clock.h"
#include "platform/ports/Queues.h"

namespace app {

/// Members in the order they are written; "event" and "time" come first.
using Event = nlohmann::ordered_json;

class EventStream {
  public:
    using Listener = std::function<void(const Event&)>;

    EventStream(ports::Clock& clock, ports::MainQueue& mainQueue)
        : m_clock(clock), m_mainQueue(mainQueue) {}
    EventStream(const EventStream&) = delete;
    EventStream& operator=(const EventStream&) = delete;

    /// Listeners stay for good; they must outlive the stream's use.
    void addListener(Listener listener) { m_listeners.push_back(std::move(listener)); }

    /// Tells every listener the event `name` with these members (an object) and the time.
    void emit(std::string_view name, const Event& members);

    /// The event as one line of JSON Lines. Text that is no UTF-8 is replaced, never refused.
    static std::string line(const Event& event);

  private:
    void tell(const Event& event) const;

    ports::Clock& m_clock;
    ports::MainQueue& m_mainQueue;
    std::vector<Listener> m_listeners;
};

} // namespace app
