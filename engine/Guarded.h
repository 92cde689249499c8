// How an install method answers when the platform raises: the log says so, and the run goes on with
// the next component. For the files of the install methods alone.
#pragma once

#include <exception>

#include "engine/Status.h"
#include "wizard/InstallLog.h"

namespace ec {

/// What `work` answers; `raised`, with a line in the log, when it throws.
template <class Work>
MethodAnswer guarded(InstallLog& log, int raised, Work work) {
    try {
        return work();
    } catch (const std::exception&) {
        log.logException();
        return MethodAnswer::of(raised);
    }
}

} // namespace ec
