// The driver of the install methods: finds out what is installed, and applies the user's choices.
// The wizard's pages start it when they have turned the window busy; it steps the wizard on when it
// is done. No install method is part of this build yet, so there is nothing to do for any
// component: each entry says so in the log, and steps as it must. Main thread.
#pragma once

#include "wizard/InstallLog.h"
#include "wizard/WizardSession.h"
#include "wizard/WizardSteps.h"

namespace ec {

class InstallDriver {
  public:
    struct Needs {
        InstallLog& log;
        const WizardSession& session;
        WizardSteps& steps;
    };
    explicit InstallDriver(Needs needs) : m_needs(needs) {}
    InstallDriver(const InstallDriver&) = delete;
    InstallDriver& operator=(const InstallDriver&) = delete;

    /// `installCheck` looks what is installed; the states stay as they are.
    void installCheck();
    /// `makeChange` applies the wanted states, then goes one row on, and one more when the wizard
    /// uninstalls. Answers 0.
    int makeChange();
    /// `initialInstall` does the first-time install, then goes on. Answers 0.
    int initialInstall();

  private:
    Needs m_needs;
};

} // namespace ec
