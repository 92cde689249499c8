#include "ui/SessionLoop.h"

#include <optional>

#include <QEventLoop>

#include "ui/bind/Binding.h"

namespace ui {

class SessionLoop::OpenSession final : private Binding<controls::Window> {
  public:
    explicit OpenSession(controls::Window& window) : Binding(window) {}

    /// Serves what has come, and waits for it where there is nothing.
    int step() {
        if (!m_code)
            m_loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return m_code.value_or(kContinues);
    }
    int run() {
        if (!m_code)
            m_loop.exec();
        return m_code.value_or(kAborted);
    }
    void stop(int code) {
        if (!m_code)
            m_code = code;
        m_loop.exit();
        m_loop.wakeUp();
    }

  private:
    void mirror(const controls::Window& window) override {
        if (!window.isVisible())
            stop(kAborted);
    }
    void drawNow() override {}
    void modelDied() override { stop(kAborted); }

    QEventLoop m_loop;
    std::optional<int> m_code;
};

SessionLoop::SessionLoop() = default;

SessionLoop::~SessionLoop() = default;

int SessionLoop::runModalForWindow(controls::Window& window) {
    const Session session = beginModalSession(window);
    const int code = m_sessions[session]->run();
    endModalSession(session);
    window.orderOut();
    return code;
}

void SessionLoop::stopModalWithCode(int code) {
    if (!m_sessions.empty())
        m_sessions.back()->stop(code);
}

ports::ModalLoop::Session SessionLoop::beginModalSession(controls::Window& window) {
    window.orderFront();
    m_sessions.push_back(std::make_unique<OpenSession>(window));
    if (m_terminated)
        m_sessions.back()->stop(kAborted);
    return m_sessions.size() - 1;
}

int SessionLoop::runModalSession(Session session) {
    return m_sessions[session]->step();
}

void SessionLoop::endModalSession(Session session) {
    m_sessions.resize(session);
}

void SessionLoop::beginSheet(controls::Window& sheet, controls::Window&) {
    sheet.orderFront();
}

void SessionLoop::endSheet(controls::Window& sheet) {
    sheet.orderOut();
}

void SessionLoop::terminate() {
    m_terminated = true;
    for (const auto& session : m_sessions)
        session->stop(kAborted);
}

} // namespace ui
