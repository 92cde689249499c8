#include "ui/SessionLoop.h"

#include <optional>

#include <QEventLoop>

#include "ui/bind/Binding.h"

namespace ui {

class SessionLoop::Session final : private Binding<controls::Window> {
  public:
    explicit Session(controls::Window& window) : Binding(window) {}

    int run() {
        if (!m_code)
            m_loop.exec();
        return m_code.value_or(kAborted);
    }
    void stop(int code) {
        if (!m_code)
            m_code = code;
        m_loop.exit();
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

int SessionLoop::runModalForWindow(controls::Window& window) {
    window.orderFront();
    int code = kAborted;
    {
        Session session(window);
        m_sessions.push_back(&session);
        code = session.run();
        m_sessions.pop_back();
    }
    window.orderOut();
    return code;
}

void SessionLoop::stopModalWithCode(int code) {
    if (!m_sessions.empty())
        m_sessions.back()->stop(code);
}

} // namespace ui
