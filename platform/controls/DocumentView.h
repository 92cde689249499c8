// A long text for reading: a file of the bundle's resources, or a text that the core has made.
#pragma once

#include <string>
#include <utility>

#include "platform/controls/Control.h"
#include "platform/controls/StyledText.h"

namespace controls {

class DocumentView final : public Control {
  public:
    /// The file whose text is in sight, an HTML file; empty for a text of the core's own.
    const std::string& file() const { return m_file; }
    /// The core's own text; empty when a file is shown.
    const StyledText& text() const { return m_text; }

    void setFile(std::string path) { show(std::move(path), {}); }
    void setText(StyledText text) { show({}, std::move(text)); }

  private:
    void show(std::string file, StyledText text) {
        if (file == m_file && text == m_text)
            return;
        m_file = std::move(file);
        m_text = std::move(text);
        changed();
    }

    std::string m_file;
    StyledText m_text;
};

} // namespace controls
