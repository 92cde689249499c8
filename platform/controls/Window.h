// A window: its title, whether it is in sight, and whether it may be closed.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/controls/Control.h"

namespace controls {

class Window final : public Control {
  public:
    Window() { setHidden(true); }

    const std::string& title() const { return m_title; }
    void setTitle(std::string title) { change(m_title, std::move(title)); }

    bool isVisible() const { return !isHidden(); }
    void orderFront() { setHidden(false); }
    void orderOut() { setHidden(true); }

    /// Asked before the user's wish to close the window is granted; none: always granted.
    void setShouldClose(std::function<bool(Window&)> shouldClose) {
        m_shouldClose = std::move(shouldClose);
    }

    /// The user closes the window: asks, and orders it out when the answer is yes.
    bool performClose() {
        if (m_shouldClose && !m_shouldClose(*this))
            return false;
        orderOut();
        return true;
    }

  private:
    std::string m_title;
    std::function<bool(Window&)> m_shouldClose;
};

} // namespace controls
