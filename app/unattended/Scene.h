// What the driver of an unattended run has before it: the window whose session is the innermost,
// and the wizard where it is the wizard's.
#pragma once

#include "platform/controls/Interface.h"
#include "wizard/ecController.h"

namespace app {

struct Scene {
    controls::Interface& outlets;
    ec::ecController* wizard = nullptr;
};

} // namespace app
