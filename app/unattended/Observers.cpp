#include "app/unattended/Observers.h"

namespace app {

namespace {

Event toolEvent(const ports::ToolCall& call, std::string_view as, int status) {
    return {{"path", call.tool}, {"arguments", call.arguments}, {"as", as}, {"status", status}};
}

Event described(const controls::Button& button) {
    return {{"kind", "button"},
            {"title", button.title()},
            {"enabled", button.isEnabled()},
            {"hidden", button.isHidden()}};
}

Event described(const controls::TextField& field) {
    return {{"kind", "text"},
            {"text", field.text()},
            {"enabled", field.isEnabled()},
            {"hidden", field.isHidden()}};
}

Event described(const controls::Progress& progress) {
    return {
        {"kind", "progress"}, {"running", progress.isRunning()}, {"hidden", progress.isHidden()}};
}

Event described(const controls::Control& control) {
    return {{"enabled", control.isEnabled()}, {"hidden", control.isHidden()}};
}

} // namespace

int ObservedTools::run(const ports::ToolCall& call) {
    const int status = m_inner.run(call);
    m_events.emit("tool", toolEvent(call, "user", status));
    return status;
}

ports::Tools::Captured ObservedTools::capture(const ports::ToolCall& call) {
    Captured captured = m_inner.capture(call);
    m_events.emit("tool", toolEvent(call, "user", captured.status));
    return captured;
}

int ObservedTools::runThroughPipe(const ports::ToolCall& call,
                                  const std::function<void(int)>& reader) {
    const int status = m_inner.runThroughPipe(call, reader);
    m_events.emit("tool", toolEvent(call, "user", status));
    return status;
}

int ObservedAdministrator::requestRights() {
    const int error = m_inner.requestRights();
    if (error != 0)
        m_refused = true;
    m_events.emit("authorize", {{"granted", error == 0}});
    return error;
}

int ObservedAdministrator::start(const ports::ToolCall& call,
                                 const std::function<void(int)>& reader) {
    const int status = m_inner.start(call, reader);
    m_events.emit("tool", toolEvent(call, "admin", status));
    return status;
}

void ObservedAlerts::beginSheet(const ports::Alert& alert, controls::Window& window,
                                std::function<void(int)> completion) {
    m_inner.beginSheet(alert, window, [this, alert, completion = std::move(completion)](int code) {
        Event members = {{"title", ""}, {"message", alert.message}};
        if (!alert.informative.empty())
            members["informative"] = alert.informative;
        members["buttons"] = alert.buttons;
        members["answer"] = alert.buttons.at(static_cast<std::size_t>(code - kFirstButton));
        members["code"] = code;
        m_events.emit("question", members);
        completion(code);
    });
}

ControlWatcher::ControlWatcher(controls::TextField& status, controls::Progress& progress,
                               EventStream& events)
    : m_status(status), m_progress(progress), m_events(events), m_lastStatus(status.text()) {
    m_status.addObserver(*this);
    m_progress.addObserver(*this);
}

ControlWatcher::~ControlWatcher() {
    m_status.removeObserver(*this);
    m_progress.removeObserver(*this);
}

void ControlWatcher::controlChanged(controls::Control& control) {
    if (&control == &m_progress) {
        Event members = {{"running", m_progress.isRunning()}};
        if (const auto& amount = m_progress.amount(); amount.total != 0) {
            members["done"] = amount.done;
            members["total"] = amount.total;
            members["files"] = amount.files;
        }
        m_events.emit("progress", members);
    } else if (m_status.text() != m_lastStatus) {
        m_lastStatus = m_status.text();
        m_events.emit("status", {{"text", m_lastStatus}});
    }
}

Event controlsSnapshot(const controls::Interface& outlets) {
    Event all = Event::object();
    for (const auto& [name, control] : outlets.outlets)
        std::visit([&](const auto* model) { all[std::string(name)] = described(*model); }, control);
    return all;
}

} // namespace app
