#include "platform/posix/SudoAdministrator.h"

#include <utility>

#include <grp.h>

#include "platform/ports/Tools.h"
#include "platform/posix/ChildProcess.h"
#include "platform/posix/ChildStreams.h"
#include "platform/posix/OutputRelay.h"
#include "platform/posix/ToolResolver.h"

namespace posix {

namespace {

/// The group of the administrators has the number 0; its name of BSD's is not known everywhere.
std::vector<std::string> withKnownGroup(std::vector<std::string> arguments) {
    for (std::string& argument : arguments)
        if (argument == "root:wheel" && ::getgrnam("wheel") == nullptr)
            argument = "root:0";
    return arguments;
}

} // namespace

int SudoAdministrator::runSudo(std::vector<std::string> arguments) const {
    ChildSetUp setUp{
        .program = m_needs.sudo, .arguments = std::move(arguments), .output = STDERR_FILENO};
    if (!m_needs.askpass.empty())
        setUp.environment.push_back("SUDO_ASKPASS=" + m_needs.askpass);
    ChildProcess child;
    return child.start(setUp) == 0 ? waitTakingIn(child, {}, m_needs.whileWaiting)
                                   : ports::Tools::kCannotStart;
}

int SudoAdministrator::createSession() {
    return 0;
}

int SudoAdministrator::requestRights() {
    m_granted = m_needs.isRoot;
    if (m_granted)
        return 0;
    if (::access(m_needs.sudo.c_str(), X_OK) != 0)
        return kToolExecuteFailure;
    using Arguments = std::vector<std::string>;
    m_granted = runSudo(m_needs.askpass.empty() ? Arguments{"-v"} : Arguments{"-A", "-v"}) == 0;
    return m_granted ? 0 : kDenied;
}

int SudoAdministrator::start(const ports::ToolCall& call, const std::function<void(int)>& reader) {
    if (!m_granted)
        return kDenied;
    // Asked before each tool: afterwards sudo's own refusal and the tool's failure look the same.
    if (!m_needs.isRoot && runSudo({"-n", "-v"}) != 0)
        return kDenied;
    const ResolvedTool tool = resolveTool(call.tool, m_needs.ownToolsFolder);
    if (::access(tool.path.c_str(), X_OK) != 0)
        return kToolExecuteFailure;
    ChildProcess child;
    OutputRelay relay;
    ChildSetUp setUp{.program = tool.path, .arguments = withKnownGroup(call.arguments)};
    setUp.output = relay.childsEnd();
    if (!m_needs.isRoot) {
        setUp.program = m_needs.sudo;
        setUp.arguments.insert(setUp.arguments.begin(), {"-n", "--", tool.path});
    }
    if (!relay.isOpen() || child.start(setUp) != 0)
        return kToolExecuteFailure;
    relay.relay(child, reader, m_needs.whileWaiting);
    return 0;
}

void SudoAdministrator::freeSession() {
    if (std::exchange(m_granted, false) && !m_needs.isRoot)
        runSudo({"-k"});
}

} // namespace posix
