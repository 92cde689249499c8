// Modal sessions of windows, one inside the other. Main thread only; the main queue is drained by
// the front end's notifier, which every loop serves.
#pragma once

#include <vector>

#include "platform/ports/FrontEnd.h"

namespace ui {

class SessionLoop final : public ports::ModalLoop {
  public:
    /// What a session answers that ends without a code because its window was ordered out or the
    /// program was asked to quit: nothing could end it any more.
    static constexpr int kAborted = -1001;

    int runModalForWindow(controls::Window& window) override;
    /// A session that is ending already keeps its code.
    void stopModalWithCode(int code) override;

  private:
    class Session;
    std::vector<Session*> m_sessions;
};

} // namespace ui
