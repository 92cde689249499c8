// The updater: finds installed copies of the application and offers to patch each. The search is
// not part of this build yet: it says so in the log and finds none, and the wizard goes where it
// goes when there is none. Main thread.
#pragma once

#include "wizard/InstallLog.h"
#include "wizard/WizardOutlets.h"
#include "wizard/WizardSteps.h"

namespace ec {

class Patcher {
  public:
    struct Needs {
        InstallLog& log;
        WizardOutlets& outlets;
        WizardSteps& steps;
    };
    explicit Patcher(Needs needs) : m_needs(needs) {}
    Patcher(const Patcher&) = delete;
    Patcher& operator=(const Patcher&) = delete;

    /// `patchFindUI` and `patchProgressUI` turn the window busy and go on.
    void patchFindUI() { beginWork(m_needs.outlets.custProgress); }
    void patchProgressUI() { beginWork(m_needs.outlets.progress); }
    /// `disableButtonsInPatch`: Back and Next, at once.
    void disableButtonsInPatch();
    /// `findTheScrivels` searches, then goes to "Nothing".
    void findTheScrivels();
    /// `doPatchYes` patches the copy that is offered, then goes to "Done".
    void doPatchYes();
    /// `doPatchNo:` passes it over, then goes to "Done".
    void doPatchNo() { m_needs.steps.skipToState("Done"); }

  private:
    void beginWork(controls::Progress& indicator);

    Needs m_needs;
};

} // namespace ec
