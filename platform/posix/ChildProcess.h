// One program that was started and has to be waited for. Used by the adapters that start tools and
// applications. Nothing goes through a shell; the child gets an empty standard input, the default
// signal dispositions, no blocked signal, and no descriptor but those named here.
#pragma once

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

#include "platform/posix/Descriptor.h"

namespace posix {

struct ChildSetUp {
    /// Path of the program, and its arguments after its own name.
    std::string program;
    std::vector<std::string> arguments = {};
    /// What becomes the child's standard output and error: a descriptor of this process. By
    /// default its own ones.
    int output = STDOUT_FILENO;
    int error = STDERR_FILENO;
    /// The writing end that a tool of our own gets as `kProgressDescriptor`; -1: none.
    int progress = -1;
    /// "NAME=value" entries that are added to the environment or take the place of those in it.
    std::vector<std::string> environment = {};
    /// Start it in a session of its own, with "/" as its working folder.
    bool detached = false;
};

class ChildProcess {
  public:
    ChildProcess() = default;
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    /// Waits for the child when nobody has: no zombie stays.
    ~ChildProcess();

    /// Starts the program. 0, or the system's error number. Once for each object.
    [[nodiscard]] int start(const ChildSetUp& setUp);

    /// Waits until the child has ended. 0 to 255 as it gave it, or 128 + N after death by
    /// signal N. May be called again.
    int wait();

    /// Has it ended? Does not wait.
    bool hasEnded();

    pid_t pid() const { return m_pid; }

    /// Leaves the waiting to a thread of its own, so that neither this object nor its maker has to
    /// stay for it.
    void abandon();

  private:
    bool collect(int options);

    pid_t m_pid = -1;
    std::optional<int> m_status;
};

} // namespace posix
