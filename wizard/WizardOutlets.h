// The control models of the wizard's window, by the names of the interface file. The first base of
// ecController, so that every facet can be handed the controls that it works. Holds state only.
#pragma once

#include "platform/controls/TextField.h"

namespace ec {

struct WizardOutlets {
    /// The line that names the component under work.
    controls::TextField processingText;
};

} // namespace ec
