// Keeps what becomes of each copy that the updater has found, in the session. What is true of it is
// found on disk, as the status of a run as administrator only says that it was started: a copy with
// another version than before was replaced as a whole; of any other the patch tool is asked. It
// changes nothing and logs nothing. Used by Patcher; main thread.
#pragma once

#include <optional>
#include <string>

#include "engine/CommandRunner.h"
#include "platform/ports/Bundles.h"
#include "wizard/CopyOutcome.h"
#include "wizard/WizardSession.h"

namespace ec {

class CopyAudit {
  public:
    struct Needs {
        WizardSession& session;
        CommandRunner& runner;
        ports::Bundles& bundles;
    };
    explicit CopyAudit(Needs needs) : m_needs(needs) {}
    CopyAudit(const CopyAudit&) = delete;
    CopyAudit& operator=(const CopyAudit&) = delete;

    /// The copy with this application is going to be offered.
    void willBeOffered(const std::string& application);
    /// The update can't be applied to it, as the tool's test of it says by this status: it is up to
    /// date, or no such copy as the update is for.
    void willNotBeOffered(const std::string& application, ExitStatus tested);

    /// The copy in `folder` that was offered was passed over, or the update was applied to it.
    /// Nothing where none is offered there.
    void wasDeclined(const std::string& folder);
    void wasAccepted(const std::string& folder);

  private:
    void add(const std::string& application, CopyOutcome::State state);
    CopyOutcome* offeredIn(const std::string& folder);
    std::optional<std::string> versionOf(const std::string& application) const;
    bool isUpToDate(const std::string& folder);

    Needs m_needs;
};

} // namespace ec
