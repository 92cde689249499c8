// Three plain install methods: one file beside the application, one folder, and the uninstaller,
// which is nobody's business here. Called by the driver. Copies and removals are made by the
// program itself, without tools; a copy never overwrites, and keeps modes, times and attributes.
//
// Answers: in a check the state found, else 1 for success. A missing path where one is needed
// raises, as the platform's file manager does: that is caught, logged, and answers -1. Main thread.
#pragma once

#include <cstdint>

#include "engine/LogText.h"
#include "engine/OpMode.h"
#include "engine/Status.h"
#include "rules/ecRules.h"
#include "wizard/InstallLog.h"

namespace ec {

class FileModes {
  public:
    struct Needs {
        InstallLog& log;
        const ecRules& rules;
    };
    explicit FileModes(Needs needs) : m_needs(needs) {}
    FileModes(const FileModes&) = delete;
    FileModes& operator=(const FileModes&) = delete;

    /// `installFileMode:itemNum:source:dest:`: the file of the item's name in the folder `dest`.
    /// Check: 1 when it exists, else -1. Copy: from `source`. Remove: nothing is removed, 0.
    MethodAnswer installFileMode(OpMode mode, std::uint32_t itemNum, OptionalText source,
                                 OptionalText dest);

    /// `installDirMode:itemNum:source:dest:`: the folder `dest`. Check: 1 when it exists, else -1.
    /// Copy: from `source`. Remove: unless there is a `source` and the two differ, which answers 0.
    MethodAnswer installDirMode(OpMode mode, std::uint32_t itemNum, OptionalText source,
                                OptionalText dest);

    /// `installUninstMode:itemNum:source:dest:` does nothing: 0 for a check, else 1.
    MethodAnswer installUninstMode(OpMode mode, std::uint32_t itemNum, OptionalText source,
                                   OptionalText dest);

  private:
    Needs m_needs;
};

} // namespace ec
