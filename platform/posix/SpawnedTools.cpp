#include "platform/posix/SpawnedTools.h"

#include <array>
#include <cerrno>
#include <system_error>

#include "platform/ports/PlatformError.h"
#include "platform/posix/ChildProcess.h"
#include "platform/posix/ChildStreams.h"
#include "platform/posix/OutputRelay.h"
#include "platform/posix/ProcessSystem.h"
#include "platform/posix/ProgressLines.h"
#include "platform/posix/ToolResolver.h"

namespace posix {

namespace {

/// The pipe for a tool's progress, where the tool has something to report and somebody listens.
class ProgressPipe {
  public:
    ProgressPipe(bool wanted, const std::function<void(const ports::ToolProgress&)>& listener)
        : m_pipe(wanted && listener ? makePipe() : Pipe{}), m_lines(listener) {}

    void addTo(ChildSetUp& setUp) const {
        if (!m_pipe.isOpen())
            return;
        setUp.progress = m_pipe.writing.number();
        setUp.environment.push_back("SCRIVEL_PROGRESS_FD=" + std::to_string(kProgressDescriptor));
    }

    /// The stream to wait with, once the child has its own end; its end is at once when there is
    /// no pipe. Not longer than this object lives.
    ChildStream stream() {
        m_pipe.writing.close();
        return {std::move(m_pipe.reading), [this](std::string_view bytes) { m_lines.take(bytes); }};
    }

  private:
    Pipe m_pipe;
    ProgressLines m_lines;
};

[[noreturn]] void throwNotStarted(const std::string& tool, int error) {
    throw ports::PlatformError(tool +
                               " can't be started: " + std::generic_category().message(error));
}

} // namespace

int SpawnedTools::run(const ports::ToolCall& call) {
    const ResolvedTool tool = resolveTool(call.tool, m_needs.ownToolsFolder);
    ChildSetUp setUp{.program = tool.path, .arguments = call.arguments};
    if (m_needs.outputToError)
        setUp.output = STDERR_FILENO;
    ProgressPipe progress(tool.isOwn, m_needs.progress);
    progress.addTo(setUp);
    // Before its streams: they must be closed first when a listener throws, or both sides wait.
    ChildProcess child;
    if (child.start(setUp) != 0)
        return kCannotStart;
    std::array streams{progress.stream()};
    return waitTakingIn(child, streams, m_needs.whileWaiting);
}

ports::Tools::Captured SpawnedTools::capture(const ports::ToolCall& call) {
    const ResolvedTool tool = resolveTool(call.tool, m_needs.ownToolsFolder);
    Pipe output = makePipe();
    if (!output.isOpen())
        throwNotStarted(call.tool, EMFILE);
    ChildSetUp setUp{
        .program = tool.path, .arguments = call.arguments, .output = output.writing.number()};
    ProgressPipe progress(tool.isOwn, m_needs.progress);
    progress.addTo(setUp);
    ChildProcess child;
    if (const int error = child.start(setUp); error != 0)
        throwNotStarted(call.tool, error);
    output.writing.close();
    Captured captured;
    std::array streams{ChildStream{std::move(output.reading),
                                   [&](std::string_view bytes) { captured.output += bytes; }},
                       progress.stream()};
    captured.status = waitTakingIn(child, streams, m_needs.whileWaiting);
    return captured;
}

int SpawnedTools::runThroughPipe(const ports::ToolCall& call,
                                 const std::function<void(int)>& reader) {
    ChildProcess child;
    OutputRelay relay;
    if (!relay.isOpen())
        return kCannotStart;
    const int error = child.start({.program = resolveTool(call.tool, m_needs.ownToolsFolder).path,
                                   .arguments = call.arguments,
                                   .output = relay.childsEnd(),
                                   .error = relay.childsEnd()});
    return error == 0 ? relay.relay(child, reader, m_needs.whileWaiting) : kCannotStart;
}

} // namespace posix
