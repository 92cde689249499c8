// How a run came to its end, as the program tells it.
#pragma once

#include <optional>
#include <string>

#include "app/ExitCode.h"

namespace app {

struct RunOutcome {
    /// The wizard's result code, or that of the window's modal session; none without a window.
    std::optional<int> result;
    ExitCode code = ExitCode::failed;
    std::string reason;  ///< why it is not `done`
    std::string summary; ///< for the person at the terminal; whole lines without the last line feed
};

} // namespace app
