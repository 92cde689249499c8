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
    const std::string& file() const { return m_content.file; }
    /// The core's own text; empty when a file is shown.
    const StyledText& text() const { return m_content.text; }

    void setFile(std::string path) { change(m_content, Content{std::move(path), StyledText()}); }
    void setText(StyledText text) { change(m_content, Content{std::string(), std::move(text)}); }

  private:
    struct Content {
        std::string file;
        StyledText text;
        bool operator==(const Content&) const = default;
    };

    Content m_content;
};

} // namespace controls
