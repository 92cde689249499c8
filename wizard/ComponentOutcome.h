// What became of one component in a run, as it is on disk afterwards: the summaries, the events and
// the exit status tell it. A value; made by engine/ComponentAudit, kept in the session.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "engine/OpMode.h"
#include "platform/ports/LocalizedTexts.h"

namespace ec {

/// Why something did not come about: a sentence, with "%@" for what it is about.
struct OutcomeReason {
    ports::TextKey text;
    std::string about = {};
};

struct ComponentOutcome {
    enum class Result {
        installed, ///< it is there now and was not, or not like this
        removed,   ///< it was there and is gone
        unchanged, ///< it is as it was, and that is as wanted, or as it has to be
        refused,   ///< it failed for want of administrator rights
        failed,
    };

    std::optional<std::uint32_t> item = {}; ///< its number in the rules; none without rules
    std::string name = {};
    std::optional<OpMode> mode =
        {}; ///< what was wanted: `copy` or `remove`; none: it was left alone
    Result result = Result::unchanged;
    bool present = false; ///< is any of it on disk?
    std::optional<OutcomeReason> reason = std::nullopt;

    bool succeeded() const { return result != Result::refused && result != Result::failed; }
};

} // namespace ec
