// A picture from a file.
#pragma once

#include <string>

#include "platform/controls/Control.h"

namespace controls {

class ImageView final : public Control {
  public:
    /// A picture file: `name` as the core calls it ("/Customizer.icns"), `path` where it lies.
    /// Both are empty when there is none.
    struct Picture {
        std::string name;
        std::string path;
        bool operator==(const Picture&) const = default;
    };

    const Picture& picture() const { return m_picture; }
    void setPicture(Picture picture) { change(m_picture, std::move(picture)); }

  private:
    Picture m_picture;
};

} // namespace controls
