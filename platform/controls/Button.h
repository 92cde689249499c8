// A push button: a title, perhaps styled, and one action.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/controls/Control.h"
#include "platform/controls/StyledText.h"

namespace controls {

class Button final : public Control {
  public:
    std::string title() const { return m_title.text(); }
    const StyledText& attributedTitle() const { return m_title; }
    void setTitle(std::string title) { setAttributedTitle(StyledText::plain(std::move(title))); }
    void setAttributedTitle(StyledText title) { change(m_title, std::move(title)); }

    void setAction(std::function<void()> action) { m_action = std::move(action); }

    /// A click. Nothing happens on a disabled or hidden button.
    void press() {
        if (!isEnabled() || isHidden() || !m_action)
            return;
        auto action = m_action; // the action may replace itself
        action();
    }

  private:
    StyledText m_title;
    std::function<void()> m_action;
};

} // namespace controls
