// A long text for reading: a file of the bundle's resources, or a text that the core has made.
#pragma once

#include <string>
#include <utility>

#include "platform/controls/Control.h"

namespace controls {

class DocumentView final : public Control {
  public:
    /// The file whose text is in sight, an HTML file; empty for a text of the core's own.
    const std::string& file() const { return m_file; }
    /// The core's own text, plain; empty when a file is shown.
    const std::string& text() const { return m_text; }

    void setFile(std::string path) { show(std::move(path), {}); }
    void setText(std::string text) { show({}, std::move(text)); }

  private:
    void show(std::string file, std::string text) {
        if (file == m_file && text == m_text)
            return;
        m_file = std::move(file);
        m_text = std::move(text);
        changed();
    }

    std::string m_file;
    std::string m_text;
};

} // namespace controls
