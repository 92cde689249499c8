// The exit status of the process: truthful, whatever the flow's own codes say. Scripts rely on the
// numbers.
#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>

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

/// Of several that hold, the one that is reported.
constexpr ExitCode mostTelling(std::initializer_list<ExitCode> holding) {
    constexpr std::array kOrder{ExitCode::usage,     ExitCode::unfollowed, ExitCode::appsRunning,
                                ExitCode::cancelled, ExitCode::refused,    ExitCode::failed};
    for (const ExitCode code : kOrder)
        if (std::ranges::find(holding, code) != holding.end())
            return code;
    return ExitCode::done;
}

} // namespace app
