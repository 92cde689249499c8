// Modal sessions of windows, one inside the other. Main thread only; the main queue is drained by
// the front end's notifier, which every loop serves.
#pragma once

#include <memory>
#include <vector>

#include "platform/ports/FrontEnd.h"

namespace ui {

class SessionLoop final : public ports::ModalLoop {
  public:
    SessionLoop();
    ~SessionLoop() override;

    int runModalForWindow(controls::Window& window) override;
    /// A session that is ending already keeps its code.
    void stopModalWithCode(int code) override;
    Session beginModalSession(controls::Window& window) override;
    int runModalSession(Session session) override;
    void endModalSession(Session session) override;
    void beginSheet(controls::Window& sheet, controls::Window& parent) override;
    void endSheet(controls::Window& sheet) override;
    void terminate() override;

  private:
    class OpenSession;
    std::vector<std::unique_ptr<OpenSession>> m_sessions;
    bool m_terminated = false;
};

} // namespace ui
