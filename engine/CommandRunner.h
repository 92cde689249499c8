// Runs command-line tools, as the user or as administrator, and logs each run. FileOperations works
// through it, and so does the installer window. It never touches a file itself.
//
// Tools are named by absolute paths and get their arguments element by element, never through a
// shell. Every call blocks the thread it is made on until the tool is over. A run as administrator
// reports only whether the tool could be started: callers rely on that lenience.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/LogText.h"
#include "engine/Status.h"
#include "platform/ports/Administrator.h"
#include "platform/ports/TextStreams.h"
#include "platform/ports/Tools.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardSession.h"

namespace ec {

/// A tool's arguments, or none.
using Params = std::optional<std::vector<std::string>>;

class CommandRunner {
  public:
    struct Needs {
        InstallLog& log;
        const WizardSession& session;
        ports::Tools& tools;
        ports::Administrator& administrator;
        ports::TextStreams& streams;
    };
    explicit CommandRunner(Needs needs) : m_needs(needs) {}
    CommandRunner(const CommandRunner&) = delete;
    CommandRunner& operator=(const CommandRunner&) = delete;

    /// `authenticate`: may tools be run as administrator? Asks once in a session, with the
    /// platform's own prompt, and remembers the answer, a refusal too.
    [[nodiscard]] bool authenticate();

    /// `dethenticate`: ends the session, so that the next need asks again.
    void dethenticate();

    /// Were the rights asked for in this session and not given?
    bool rightsWereRefused() const { return m_wereRefused; }

    /// `launchApp:params:` runs the tool as the user with the program's own output. Answers its
    /// exit status: 127 when it can't be started, 128 and the signal's number when one killed it.
    ExitStatus launchApp(std::string_view tool, const Params& params);

    /// `launchRootApp:params:` runs the tool as administrator, its output copied to standard error.
    /// Answers 0 when it was started, whatever became of it, and 0 as well when the rights were
    /// refused: then nothing runs and nothing is logged.
    ExitStatus launchRootApp(std::string_view tool, const Params& params);

    /// `systemCallWithLog:withParams:justUser:` runs a tool of the resource folder with its output
    /// in the log; after a failure as administrator too, unless `justUser`. Answers the user's
    /// status, or whether the administrator's run was started.
    ExitStatus systemCallWithLog(std::string_view tool, const Params& params, bool justUser);

    /// `runResourceScript:withParams:justUser:` runs a script of the resource folder, and after a
    /// failure as administrator too, unless `justUser`. 0 or 1.
    ExitStatus runResourceScript(OptionalText script, const Params& params, bool justUser);

    /// `execCmdLineApp:withParams:` answers the tool's standard output less its last character
    /// (commonly the line feed), "ERROR" when its status is not 0, and the empty text when it can't
    /// be started. Each byte of output is one character. A tool that is named without a path is one
    /// of the resource folder's; the log has its name.
    std::string execCmdLineApp(std::string_view tool, const Params& params);

    /// Asks a tool that changes nothing: runs it as the user without a line in the log and keeps
    /// its output from being seen. Answers as `launchApp` does.
    ExitStatus askTool(std::string_view tool, const Params& params);

    /// First as the user, then once as administrator: 0 when either run went well, else 1.
    /// `beforeSecond` runs between the two.
    template <class Before>
    ExitStatus runAsUserThenAdministrator(std::string_view tool, const Params& params,
                                          Before beforeSecond) {
        if (launchApp(tool, params).succeeded())
            return ExitStatus::success();
        beforeSecond();
        return launchRootApp(tool, params).succeeded() ? ExitStatus::success()
                                                       : ExitStatus::failure();
    }
    ExitStatus runAsUserThenAdministrator(std::string_view tool, const Params& params) {
        return runAsUserThenAdministrator(tool, params, [] {});
    }

  private:
    std::string inResources(OptionalText name) const;

    Needs m_needs;
    bool m_authRef = false; ///< does an authorization session stand?
    bool m_bDidAuthenticate = false;
    bool m_wereRefused = false; ///< also where no session could be made
};

} // namespace ec
