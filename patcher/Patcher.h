// The updater: finds installed copies of the application, offers each that the update can be
// applied to, and applies it as administrator. The update and the tool that applies it lie in the
// wizard's resource folder (PatchTool). Once a copy is updated, its add-in for Word is installed
// again and the content that goes with the update is brought up to date.
//
// The steps of the wizard's patcher mode call these operations by name; the window says "No" and
// "Yes" on its Back and Next buttons while a copy is offered. Tools run on the main thread, which
// waits for them; what really became of each copy is kept by CopyAudit. Main thread only.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/CommandRunner.h"
#include "engine/FolderComparison.h"
#include "patcher/CopyAudit.h"
#include "platform/ports/Applications.h"
#include "platform/ports/Bundles.h"
#include "platform/ports/LocalizedTexts.h"
#include "platform/ports/SystemLog.h"
#include "wizard/ActionPerformer.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardOutlets.h"
#include "wizard/WizardSession.h"
#include "wizard/WizardSteps.h"
#include "word/WordAddIn.h"

namespace ec {

class Patcher {
  public:
    struct Needs {
        ActionPerformer& actions;
        InstallLog& log;
        WizardSession& session;
        WizardOutlets& outlets;
        WizardSteps& steps;
        CommandRunner& runner;
        FolderComparison& folders;
        WordAddIn& addIn;
        ports::Applications& applications;
        ports::Bundles& bundles;
        const ports::LocalizedTexts& texts;
        ports::SystemLog& systemLog;
    };
    explicit Patcher(Needs needs);
    Patcher(const Patcher&) = delete;
    Patcher& operator=(const Patcher&) = delete;

    /// `patchFindUI` and `patchProgressUI` turn the window busy and go on.
    void patchFindUI() { beginWork(m_needs.outlets.custProgress); }
    void patchProgressUI() { beginWork(m_needs.outlets.progress); }
    /// `disableButtonsInPatch`: Back and Next, at once.
    void disableButtonsInPatch();

    /// `findTheScrivels` searches, then offers the first copy, or goes to "Nothing".
    void findTheScrivels();
    /// `findAllScrivels` asks the host for the applications that open the product's documents, adds
    /// the usual installation where the host has a list and lacks it, and tries the update on each
    /// that is named as the product is, whatever the letter case. A copy that it can be applied to
    /// is kept to be offered; each copy leaves a line in the log. Answers how many are kept.
    ///
    /// The host is asked about an empty document that stands in the temporary folder of all users
    /// meanwhile; one that stands there already goes as well.
    std::int32_t findAllScrivels();
    /// Forgets what a search has found, and gives Back its own action again: what an earlier run of
    /// the wizard has left must not be offered in this one.
    void forgetScrivels();

    /// `patchScrivel:justTesting:` runs the tool on the copy in `folder`: as the user and without a
    /// change when just testing, else as administrator. Answers whether its status says failure: of
    /// an administrator's run that only tells whether it was started. After one that was, the
    /// add-in and the content follow; not when the rights were refused, though that answers false
    /// too.
    bool patchScrivel(const std::string& folder, bool justTesting);

    /// `setupCurrentScrivel` asks about the copy that is offered, and answers its folder; none, and
    /// no question, once there is no further copy.
    std::optional<std::string> setupCurrentScrivel();
    /// `updatePatchTextField:` asks whether to update the copy in `folder`; `patchError:` says that
    /// it failed and asks whether to try again.
    void updatePatchTextField(std::string_view folder);
    void patchError(std::string_view folder);

    /// `setPatchActions` goes to "Found" and offers the current copy: Back becomes "No", Next
    /// "Yes".
    void setPatchActions();
    /// `unSetPatchActions:` goes to the row `state` and gives the buttons their own actions again.
    void unSetPatchActions(std::string_view state);

    /// `nextScrivel` offers the next copy, or goes to "Done" after the last.
    void nextScrivel();
    /// `doPatchYes` updates the copy that is offered, then offers the next. A run that was started
    /// is the one that leaves the text of `patchError`, about no folder, until that.
    void doPatchYes();
    /// `doPatchNo:` offers the next.
    void doPatchNo();

  private:
    ExitStatus tested(const std::string& folder);
    void beginWork(controls::Progress& indicator);
    std::vector<std::string> applicationsFor(const std::string& document) const;
    std::optional<std::string> currentScrivel() const;
    void bringContentUpToDate(const std::string& folder);

    Needs m_needs;
    CopyAudit m_audit;
    std::vector<std::string> m_scrivels; ///< the folders of the copies to offer, as they were found
    std::int32_t m_svCounter = 0;        ///< how many there are
    std::int32_t m_svIndex = 0;          ///< the one that is offered; m_svCounter after the last
};

} // namespace ec
