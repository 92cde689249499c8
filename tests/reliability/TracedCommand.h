// A command that runs under the eyes of the kernel's tracer, with all threads and processes it
// starts: every call that concerns a file below one folder is counted, and at the N-th of them the
// command is killed or the call fails. For the tests of what an update leaves on disk. Looks on and
// interferes; never touches a file itself. Linux on x86-64; one thread, and no other children.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

#include "tests/reliability/DiskCalls.h"

namespace sweep {

/// One file or folder, whatever its name is at the moment.
struct Inode {
    dev_t device = 0;
    ino_t number = 0;
    auto operator<=>(const Inode&) const = default;
};

/// One call that was seen.
struct Call {
    const CallShape* shape = nullptr;
    Effect effect = Effect::open;    ///< of this use of it
    std::string path = {};           ///< absolute; of a descriptor, what it stands for
    std::string second = {};         ///< where a rename goes
    bool counted = false;            ///< by the plan
    bool refused = false;            ///< by the plan
    long result = 0;                 ///< as the kernel answers: negative is an error's number
    std::vector<Inode> changed = {}; ///< by a call that succeeded, or made to last by it

    /// "renameat2 /a to /b"
    std::string text() const;
};

enum class Act { watch, killBefore, killAfter, failOnce, failFromThere };

struct Plan {
    Act act = Act::watch;
    std::size_t at = 1; ///< which of the calls that count, from 1
    int error = 0;
    /// Which calls count; without it those that change the disk.
    std::function<bool(const Call&)> counts = {};
    /// A call that fails in every run, with the error's number; 0: goes through.
    std::function<int(const Call&)> refuses = {};
};

struct Outcome {
    std::vector<Call> calls;   ///< those below the folder, in order of their beginnings
    std::vector<Call> outside; ///< those that change the disk elsewhere
    std::size_t counted = 0;
    bool struck = false;      ///< the plan's act took place
    std::size_t struckAt = 0; ///< index in `calls`, when it did
    bool killed = false;      ///< by the plan
    bool hung = false;        ///< did not end by itself within the limit, and was killed
    int status = -1; ///< exit status; 128 and the signal, when a signal of its own ended it
    std::string output;
    std::string errors;
};

class TracedCommand {
  public:
    /// Calls below `folder` are seen.
    TracedCommand(std::vector<std::string> command, std::string folder);

    /// Also in the command's environment, "NAME=value".
    void setVariable(std::string variable) { m_variables.push_back(std::move(variable)); }

    /// Runs it to its end, or to the plan's. Nothing of it runs any more when this returns. Throws
    /// std::system_error when it can't be traced.
    Outcome run(const Plan& plan) const;

  private:
    std::vector<std::string> m_command;
    std::string m_folder;
    std::vector<std::string> m_variables;
};

} // namespace sweep
