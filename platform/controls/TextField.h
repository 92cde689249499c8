// A line or a block of text that the user reads.
#pragma once

#include <string>
#include <utility>

#include "platform/controls/Control.h"
#include "platform/controls/StyledText.h"

namespace controls {

class TextField final : public Control {
  public:
    std::string text() const { return m_text.text(); }
    const StyledText& styledText() const { return m_text; }
    void setText(std::string text) { change(m_text, StyledText::plain(std::move(text))); }
    void setStyledText(StyledText text) { change(m_text, std::move(text)); }

  private:
    StyledText m_text;
};

} // namespace controls
