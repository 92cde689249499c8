// Light or dark, decided once at the start.
#pragma once

#include "platform/ports/FrontEnd.h"

namespace ui {

class DesktopAppearance final : public ports::Appearance {
  public:
    /// A front end without a toolkit of the platform follows a dark desktop, and its buttons suit a
    /// title in a colour of its own: in the platform's count it is macOS 11.
    explicit DesktopAppearance(bool dark, double toolkitVersion = kOwnToolkitVersion)
        : m_dark(dark), m_toolkitVersion(toolkitVersion) {}

    bool isDark() const override { return m_dark; }
    double toolkitVersion() const override { return m_toolkitVersion; }

  private:
    bool m_dark;
    double m_toolkitVersion;
};

} // namespace ui
