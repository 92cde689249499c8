// ports::Appearance as a test sets it.
#pragma once

#include "platform/ports/FrontEnd.h"

namespace fakes {

class FakeAppearance final : public ports::Appearance {
  public:
    bool dark = false;
    double version = 1671;

    bool isDark() const override { return dark; }
    double toolkitVersion() const override { return version; }
};

} // namespace fakes
