// Administrator rights through sudo(8) (ports::Administrator). A process that is root already has
// them and is never asked. Made by the composition root; one thread at a time.
//
// The password is asked for once, by `requestRights`; from then on sudo is told never to ask, so a
// ticket that has run out meanwhile shows as an error of `start` instead of as another prompt.
#pragma once

#include <string>
#include <unistd.h>
#include <vector>

#include "platform/ports/Administrator.h"

namespace posix {

class SudoAdministrator final : public ports::Administrator {
  public:
    struct Needs {
        /// See SpawnedTools.
        std::string ownToolsFolder = {};
        /// The program that shows the password prompt and prints the answer (SUDO_ASKPASS of
        /// sudo(8)); empty: sudo asks on the terminal.
        std::string askpass = {};
        std::string sudo = "/usr/bin/sudo";
        /// See SpawnedTools; also called while the user is asked for the password.
        std::function<void()> whileWaiting = nullptr;
        bool isRoot = ::geteuid() == 0;
    };

    explicit SudoAdministrator(Needs needs) : m_needs(std::move(needs)) {}
    SudoAdministrator(const SudoAdministrator&) = delete;
    SudoAdministrator& operator=(const SudoAdministrator&) = delete;
    ~SudoAdministrator() override { freeSession(); }

    int createSession() override;
    /// kDenied when sudo refuses or the user gives up, kToolExecuteFailure when there is no sudo.
    int requestRights() override;
    /// Besides the tool's standard output nothing is in the pipe; its standard error is the
    /// program's. kDenied without rights, kToolExecuteFailure when the tool can't be started.
    /// The call is over when the tool has ended. A host without a group "wheel" has the group with
    /// the number 0 in its place.
    int start(const ports::ToolCall& call, const std::function<void(int)>& reader) override;
    /// Has sudo forget that it asked.
    void freeSession() override;

  private:
    /// Runs sudo itself with its output on standard error. Its exit status, or 127.
    int runSudo(std::vector<std::string> arguments) const;

    Needs m_needs;
    bool m_granted = false;
};

} // namespace posix
