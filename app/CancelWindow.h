// The end of a window that nobody answers any more: in an unattended run, or after a signal.
#pragma once

#include "platform/controls/Interface.h"

namespace app {

/// Cancels as a person would: with the wizard's Cancel button where it can be pressed, else by
/// closing the window. A window that refuses both is taken out of sight.
inline void cancelWindow(controls::Interface& outlets) {
    if (const auto* named = outlets.find("cancelBtn"))
        if (auto* const* cancel = std::get_if<controls::Button*>(&named->control))
            (*cancel)->press();
    if (outlets.window.isVisible())
        outlets.window.performClose();
    outlets.window.orderOut();
}

} // namespace app
