// Makes deltas, as patcher/format/Delta.h reads them: with references foretold where the files are
// programs and that makes the delta smaller.
#pragma once

#include "patcher/format/Bytes.h"
#include "tools/makePatch/Matching.h"

namespace tools {

struct DeltaSettings {
    int level = 19; ///< zstd's
    MatchingWindow window;
};

/// The block for method delta. Any thread; see MatchingWindow for the memory.
patch::Bytes deltaOf(const patch::Source& before, const patch::Source& after,
                     const DeltaSettings& settings = {});

} // namespace tools
