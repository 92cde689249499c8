// Starts command-line tools as child processes of this one (ports::Tools). Made by the composition
// root. Keeps nothing between calls, so any thread may call at any time.
#pragma once

#include <functional>
#include <string>

#include "platform/ports/Tools.h"

namespace posix {

class SpawnedTools final : public ports::Tools {
  public:
    struct Needs {
        /// Where the program's own tools lie, for those that the system lacks; empty: nowhere.
        std::string ownToolsFolder = {};
        /// Hears what a tool of our own reports while `run` or `capture` waits for it, on the
        /// thread that waits. The tool finds the pipe's number in SCRIVEL_PROGRESS_FD.
        std::function<void(const ports::ToolProgress&)> progress = {};
        /// Called every 15 ms or so while `run` or `capture` waits for a tool, and once more when
        /// the tool has ended, on the thread that waits: keeps a window alive.
        std::function<void()> whileWaiting = {};
        /// `run` sends the tools' standard output to the program's standard error, for a program
        /// whose own standard output must carry nothing else.
        bool outputToError = false;
    };

    explicit SpawnedTools(Needs needs) : m_needs(std::move(needs)) {}

    /// A call is over when the tool itself has ended, whatever it leaves running behind it.
    int run(const ports::ToolCall& call) override;
    Captured capture(const ports::ToolCall& call) override;
    /// Without progress reports: the thread that would hear them is busy in `reader`.
    int runThroughPipe(const ports::ToolCall& call,
                       const std::function<void(int)>& reader) override;

  private:
    Needs m_needs;
};

} // namespace posix
