// What makes the events: watchers round the ports and the control models. They pass everything on
// unchanged and tell the event stream what went by; the core does not know them.
#pragma once

#include <atomic>
#include <functional>
#include <string>

#include "app/unattended/EventStream.h"
#include "platform/controls/Interface.h"
#include "platform/ports/Administrator.h"
#include "platform/ports/FrontEnd.h"
#include "platform/ports/Tools.h"

namespace app {

/// `tool` events for runs as the user.
class ObservedTools final : public ports::Tools {
  public:
    ObservedTools(ports::Tools& inner, EventStream& events) : m_inner(inner), m_events(events) {}
    int run(const ports::ToolCall& call) override;
    Captured capture(const ports::ToolCall& call) override;
    int runThroughPipe(const ports::ToolCall& call,
                       const std::function<void(int)>& reader) override;

  private:
    ports::Tools& m_inner;
    EventStream& m_events;
};

/// `authorize` events, and `tool` events for runs as administrator.
class ObservedAdministrator final : public ports::Administrator {
  public:
    ObservedAdministrator(ports::Administrator& inner, EventStream& events)
        : m_inner(inner), m_events(events) {}
    int createSession() override { return m_inner.createSession(); }
    int requestRights() override;
    int start(const ports::ToolCall& call, const std::function<void(int)>& reader) override;
    void freeSession() override { m_inner.freeSession(); }

    /// Were the rights ever asked for and not given?
    bool wasRefused() const { return m_refused; }

  private:
    ports::Administrator& m_inner;
    EventStream& m_events;
    std::atomic<bool> m_refused = false;
};

/// `question` events, told when the answer is there.
class ObservedAlerts final : public ports::AlertSheets {
  public:
    ObservedAlerts(ports::AlertSheets& inner, EventStream& events)
        : m_inner(inner), m_events(events) {}
    void beginSheet(const ports::Alert& alert, controls::Window& window,
                    std::function<void(int)> completion) override;

  private:
    ports::AlertSheets& m_inner;
    EventStream& m_events;
};

/// `status` events for the status line and `progress` events for the indicator of one interface.
class ControlWatcher final : private controls::Control::Observer {
  public:
    ControlWatcher(controls::TextField& status, controls::Progress& progress, EventStream& events);
    ~ControlWatcher();
    ControlWatcher(const ControlWatcher&) = delete;
    ControlWatcher& operator=(const ControlWatcher&) = delete;

  private:
    void controlChanged(controls::Control& control) override;

    controls::TextField& m_status;
    controls::Progress& m_progress;
    EventStream& m_events;
    std::string m_lastStatus;
};

/// The `controls` member of a snapshot: every outlet by its name.
Event controlsSnapshot(const controls::Interface& outlets);

} // namespace app
