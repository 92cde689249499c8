// The page on which the user points at a Word and its startup folder by hand. It is not part of
// this build yet, which the log says. Main thread.
#pragma once

#include "wizard/InstallLog.h"

namespace ec {

class AlternateLocations {
  public:
    struct Needs {
        InstallLog& log;
    };
    explicit AlternateLocations(Needs needs) : m_needs(needs) {}
    AlternateLocations(const AlternateLocations&) = delete;
    AlternateLocations& operator=(const AlternateLocations&) = delete;

    /// `askUserForWord` lets the user choose a Word.
    void askUserForWord() { m_needs.log.logMessage("askUserForWord: nothing to do"); }

  private:
    Needs m_needs;
};

} // namespace ec
