// ports::ModalLoop without events: calls back whenever a real loop would wait for the user.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <vector>

#include "platform/ports/FrontEnd.h"

namespace fakes {

class FakeModalLoop final : public ports::ModalLoop {
  public:
    /// Does the next thing that the user, a queue or a sheet would do; false when nothing is left
    /// to do, which ends a session that waits with an exception instead of hanging the test.
    std::function<bool()> idle;
    /// The codes that the sessions ended with, in that order.
    std::vector<int> codes;

    int runModalForWindow(controls::Window& window) override {
        m_sessions.emplace_back();
        const std::size_t level = m_sessions.size();
        window.orderFront();
        while (!m_sessions[level - 1])
            if (!idle || !idle()) {
                m_sessions.pop_back();
                throw std::logic_error("The modal session waits, and nothing is left to do");
            }
        const int code = *m_sessions[level - 1];
        m_sessions.pop_back();
        window.orderOut();
        codes.push_back(code);
        return code;
    }

    void stopModalWithCode(int code) override {
        if (!m_sessions.empty())
            m_sessions.back() = code;
    }

    bool isRunning() const { return !m_sessions.empty(); }

  private:
    std::vector<std::optional<int>> m_sessions;
};

} // namespace fakes
