// Light or dark, decided once at the start.
#pragma once

#include "platform/ports/FrontEnd.h"

namespace ui {

class DesktopAppearance final : public ports::Appearance {
  public:
    explicit DesktopAppearance(bool dark) : m_dark(dark) {}

    bool isDark() const override { return m_dark; }

    /// The toolkit whose window manners this front end has: it follows a dark desktop, and its
    /// buttons suit a title in a colour of its own. In the platform's count that is macOS 11.
    double toolkitVersion() const override { return kOwnToolkitVersion; }

  private:
    bool m_dark;
};

} // namespace ui
