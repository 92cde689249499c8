// What makes the events: watchers round the ports and the control models. They pass everything on
// unchanged and tell the event stream what went by; the core does not know them.
#pragma once

#include <atomic>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/unattended/EventStream.h"
#include "platform/controls/Progress.h"
#include "platform/controls/TextField.h"
#include "platform/ports/Administrator.h"
#include "platform/ports/FrontEnd.h"
#include "platform/ports/Tools.h"
#include "platform/ports/Watchers.h"

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

/// `chooser` events, told when the user has chosen or cancelled.
class ObservedChoosers final : public ports::FileChoosers {
  public:
    ObservedChoosers(ports::FileChoosers& inner, EventStream& events)
        : m_inner(inner), m_events(events) {}
    std::optional<std::string> choose(const ports::Chooser& chooser) override;

  private:
    ports::FileChoosers& m_inner;
    EventStream& m_events;
};

/// The core's own watchers: `log`, `page` and, for the questions of the wizard, `question` events.
ports::Watchers eventWatchers(EventStream& events);

/// `status` events for the status line and `progress` events for the indicators of one interface.
class ControlWatcher final : private controls::Control::Observer {
  public:
    ControlWatcher(controls::TextField& status, std::vector<controls::Progress*> indicators,
                   EventStream& events);
    ~ControlWatcher();
    ControlWatcher(const ControlWatcher&) = delete;
    ControlWatcher& operator=(const ControlWatcher&) = delete;

  private:
    void controlChanged(controls::Control& control) override;

    controls::TextField& m_status;
    std::vector<controls::Progress*> m_indicators;
    EventStream& m_events;
    std::string m_lastStatus;
};

} // namespace app
