// What of a component lies where on disk, once it is installed. Each install method tells it of
// what it installs, from the same facts that it works with; ComponentAudit reads the disk by it.
// A value.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "wizard/ComponentOutcome.h"

namespace ec {

struct ComponentParts {
    struct Copy {
        std::string source; ///< what it is copied from; of a file that is written, empty
        std::string destination;
        std::optional<std::string> text = std::nullopt; ///< of a file that is written
    };
    /// All of them are there, and as their sources are, once it is installed.
    std::vector<Copy> copies = {};
    /// None of them is there once it is removed.
    std::vector<std::string> traces = {};
    /// Why it can't be installed; with it there are no copies.
    std::optional<OutcomeReason> obstacle = std::nullopt;
    /// The obstacle is no failure: here it has nowhere to go.
    bool isNotForHere = false;
};

} // namespace ec
