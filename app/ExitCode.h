// The exit status of the process: truthful, whatever the flow's own codes say. Scripts rely on the
// numbers. Where several hold, the first of usage, unfollowed, appsRunning, cancelled, refused,
// failed is given.
#pragma once

namespace app {

enum class ExitCode : int {
    done = 0,        ///< what was asked for is done
    cancelled = 1,   ///< the user cancelled or declined
    usage = 2,       ///< wrong usage or an unreadable answers file; nothing was started
    unfollowed = 3,  ///< the answers file could not be followed
    failed = 4,      ///< something failed
    refused = 5,     ///< administrator rights were needed and refused
    appsRunning = 6, ///< the session ended at the question about running applications
};

} // namespace app
