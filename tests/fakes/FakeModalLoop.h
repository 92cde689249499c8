// ports::ModalLoop without events: calls back whenever a real loop would wait for the user.
#pragma once

#include <algorithm>
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
    /// The codes that the sessions of `runModalForWindow` ended with, in that order.
    std::vector<int> codes;
    /// The windows of the open sessions, the innermost last.
    std::vector<const controls::Window*> windows;
    /// The sheets that hang on their windows.
    std::vector<const controls::Window*> sheets;
    bool terminated = false;

    int runModalForWindow(controls::Window& window) override {
        const Session session = beginModalSession(window);
        int code = kContinues;
        while (code == kContinues)
            code = runModalSession(session);
        endModalSession(session);
        window.orderOut();
        codes.push_back(code);
        return code;
    }

    void stopModalWithCode(int code) override {
        if (!m_codes.empty() && !m_codes.back())
            m_codes.back() = code;
    }

    Session beginModalSession(controls::Window& window) override {
        window.orderFront();
        windows.push_back(&window);
        m_codes.emplace_back();
        return m_codes.size() - 1;
    }

    int runModalSession(Session session) override {
        if (terminated)
            return kAborted;
        if (!m_codes.at(session) && !(idle && idle())) {
            m_codes.resize(session);
            windows.resize(session);
            throw std::logic_error("The modal session waits, and nothing is left to do");
        }
        if (terminated)
            return kAborted;
        if (m_codes[session])
            return *m_codes[session];
        return windows[session]->isVisible() ? kContinues : kAborted;
    }

    void endModalSession(Session session) override {
        if (session + 1 != m_codes.size())
            throw std::logic_error("A modal session was ended before those inside it");
        m_codes.pop_back();
        windows.pop_back();
    }

    void beginSheet(controls::Window& sheet, controls::Window&) override {
        sheets.push_back(&sheet);
        sheet.orderFront();
    }
    void endSheet(controls::Window& sheet) override {
        if (std::erase(sheets, &sheet) != 0)
            sheet.orderOut();
    }

    void terminate() override { terminated = true; }

    bool isRunning() const { return !m_codes.empty(); }

  private:
    std::vector<std::optional<int>> m_codes;
};

} // namespace fakes
