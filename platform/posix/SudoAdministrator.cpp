#include "platform/posix/SudoAdministrator.h"

#include <utility>

#include "platform/ports/Tools.h"
#include "platform/posix/ChildProcess.h"
#include "platform/posix/OutputRelay.h"
#include "platform/posix/ToolResolver.h"

namespace posix {

int SudoAdministrator::runSudo(std::vector<std::string> arguments) const {
    ChildSetUp setUp{
        .program = m_needs.sudo, .arguments = std::move(arguments), .output = STDERR_FILENO};
    if (!m_needs.askpass.empty())
        setUp.environment.push_back("SUDO_ASKPASS=" + m_needs.askpass);
    ChildProcess child;
    return child.start(setUp) == 0 ? child.wait() : ports::Tools::kCannotStart;
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
    ChildSetUp setUp{.program = tool.path, .arguments = call.arguments};
    setUp.output = relay.childsEnd();
    if (!m_needs.isRoot) {
        setUp.program = m_needs.sudo;
        setUp.arguments.insert(setUp.arguments.begin(), {"-n", "--", tool.path});
    }
    if (!relay.isOpen() || child.start(setUp) != 0)
        return kToolExecuteFailure;
    relay.relay(child, reader);
    return 0;
}

void SudoAdministrator::freeSession() {
    if (std::exchange(m_granted, false) && !m_needs.isRoot)
        runSudo({"-k"});
}

} // namespace posix
