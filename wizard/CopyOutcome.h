// What became of one installed copy of the application in a run of the updater, as it is on disk
// afterwards: the summary, the events and the exit status tell it. A value; made by
// patcher/CopyAudit, kept in the session.
#pragma once

#include <optional>
#include <string>

#include "platform/ports/LocalizedTexts.h"

namespace ec {

struct CopyOutcome {
    enum class State {
        offered,  ///< the update fits it, and nobody has answered yet
        declined, ///< it was passed over
        updated,  ///< it was accepted, and is what the update makes of it
        refused,  ///< it was accepted, and failed for want of administrator rights
        failed,   ///< it was accepted, and is not what the update makes of it
        current,  ///< it was not offered, as it is what the update makes of it already
        unfit,    ///< it was not offered, as the update does not fit it
    };

    std::string folder;                      ///< the one that holds the application
    std::string application;                 ///< the application's bundle
    std::optional<std::string> version = {}; ///< where its dictionary tells one
    State state = State::offered;

    /// Why it is not updated though it was accepted.
    std::optional<ports::TextKey> reason() const {
        if (state == State::refused)
            return ports::TextKey("Administrator rights were refused.");
        if (state == State::failed)
            return ports::TextKey("The update did not take effect.");
        return std::nullopt;
    }
    bool wasAccepted() const { return state == State::updated || !succeeded(); }
    bool succeeded() const { return state != State::refused && state != State::failed; }
};

} // namespace ec
