// A command of a menu. Its title and its key come from the interface file.
#pragma once

#include <functional>
#include <utility>

#include "platform/controls/Control.h"

namespace controls {

class MenuItem final : public Control {
  public:
    void setAction(std::function<void()> action) { m_action = std::move(action); }

    /// The user chooses the command. Nothing happens while it is disabled or hidden.
    void press() {
        if (!isEnabled() || isHidden() || !m_action)
            return;
        const auto action = m_action;
        action();
    }

  private:
    std::function<void()> m_action;
};

} // namespace controls
