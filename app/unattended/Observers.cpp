#include "app/unattended/Observers.h"

#include <utility>

namespace app {

namespace {

Event toolEvent(const ports::ToolCall& call, std::string_view as, int status) {
    return {{"path", call.tool}, {"arguments", call.arguments}, {"as", as}, {"status", status}};
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

std::optional<std::string> ObservedChoosers::choose(const ports::Chooser& chooser) {
    const auto answer = m_inner.choose(chooser);
    const bool folder = chooser.kind == ports::Chooser::Kind::folder;
    m_events.emit("chooser", {{"kind", folder ? "folder" : "application"},
                              {"title", chooser.title},
                              {"folder", chooser.folder},
                              {"answer", answer ? Event(*answer) : Event()}});
    return answer;
}

ports::Watchers eventWatchers(EventStream& events) {
    return {.logged = [&events](std::string_view line) { events.emit("log", {{"line", line}}); },
            .rowShown =
                [&events](const ports::RowShown& row) {
                    events.emit("page", {{"page", row.page},
                                         {"state", row.state},
                                         {"title", row.title},
                                         {"outline", row.outline},
                                         {"current", row.current},
                                         {"identity", row.identity}});
                },
            .answered =
                [&events](const ports::QuestionAnswered& question) {
                    events.emit("question", {{"title", question.title},
                                             {"message", question.message},
                                             {"buttons", question.buttons},
                                             {"answer", question.answer},
                                             {"code", question.code}});
                }};
}

ControlWatcher::ControlWatcher(controls::TextField& status,
                               std::vector<controls::Progress*> indicators, EventStream& events)
    : m_status(status), m_indicators(std::move(indicators)), m_events(events),
      m_lastStatus(status.text()) {
    m_status.addObserver(*this);
    for (controls::Progress* indicator : m_indicators)
        indicator->addObserver(*this);
}

ControlWatcher::~ControlWatcher() {
    m_status.removeObserver(*this);
    for (controls::Progress* indicator : m_indicators)
        indicator->removeObserver(*this);
}

void ControlWatcher::controlChanged(controls::Control& control) {
    for (const controls::Progress* indicator : m_indicators) {
        if (&control != indicator)
            continue;
        Event members = {{"running", indicator->isRunning()}};
        if (const auto& amount = indicator->amount(); amount.total != 0) {
            members["done"] = amount.done;
            members["total"] = amount.total;
            members["files"] = amount.files;
        }
        m_events.emit("progress", members);
    }
    if (&control == &m_status && m_status.text() != m_lastStatus) {
        m_lastStatus = m_status.text();
        m_events.emit("status", {{"text", m_lastStatus}});
    }
}

} // namespace app
