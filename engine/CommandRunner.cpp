#include "engine/CommandRunner.h"

#include <array>
#include <cstdio>

#include "platform/ports/PlatformError.h"

namespace ec {

namespace {

std::vector<std::string> listOf(const Params& params) {
    return params.value_or(std::vector<std::string>{});
}

ports::ToolCall callOf(std::string_view tool, const Params& params) {
    return {std::string(tool), listOf(params)};
}

/// "WHAT TOOL ARGUMENTS Result: STATUS"
std::string runLine(std::string_view what, std::string_view tool, const Params& params,
                    int status) {
    return std::string(what) + std::string(tool) + " " + joined(listOf(params)) +
           " Result: " + std::to_string(status);
}

std::string startFailureLine(std::string_view tool, int status) {
    return "Failed to authenticate: " + std::string(tool) + " Result: " + std::to_string(status);
}

} // namespace

std::string CommandRunner::inResources(OptionalText name) const {
    return m_needs.session.m_custResourceDir + "/" + shown(name);
}

bool CommandRunner::authenticate() {
    if (m_authRef)
        return m_bDidAuthenticate;
    m_needs.log.logMessage("Authenticate");
    m_authRef = m_needs.administrator.createSession() == 0;
    m_bDidAuthenticate = m_authRef && m_needs.administrator.requestRights() == 0;
    m_wereRefused = !m_bDidAuthenticate;
    m_needs.log.logMessage("Authentication status ", m_bDidAuthenticate);
    return m_bDidAuthenticate;
}

void CommandRunner::dethenticate() {
    m_wereRefused = false;
    if (!m_authRef)
        return;
    m_needs.administrator.freeSession();
    m_authRef = false;
    m_bDidAuthenticate = false;
}

ExitStatus CommandRunner::launchApp(std::string_view tool, const Params& params) {
    const int status = m_needs.tools.run(callOf(tool, params));
    m_needs.log.logMessage(runLine("Running as user: ", tool, params, status));
    return ExitStatus::of(status);
}

ExitStatus CommandRunner::launchRootApp(std::string_view tool, const Params& params) {
    if (!authenticate())
        return ExitStatus::success();
    const int status = m_needs.administrator.start(callOf(tool, params), [this](int descriptor) {
        std::array<char, 128> buffer{};
        while (const std::size_t count = m_needs.streams.read(descriptor, buffer))
            std::fwrite(buffer.data(), 1, count, stderr);
    });
    if (status != 0)
        m_needs.log.logMessage(startFailureLine(tool, status));
    m_needs.log.logMessage(runLine("Running as admin: ", tool, params, status));
    return ExitStatus::of(status);
}

ExitStatus CommandRunner::systemCallWithLog(std::string_view tool, const Params& params,
                                            bool justUser) {
    const std::string path = inResources(tool);
    const auto intoLog = [this](int descriptor) { m_needs.log.dumpFDToLog(descriptor); };
    const int asUser = m_needs.tools.runThroughPipe(callOf(path, params), intoLog);
    m_needs.log.logMessage(runLine("Run as user: ", tool, params, asUser));
    if (asUser == 0 || justUser || !authenticate())
        return ExitStatus::of(asUser);
    const int asAdministrator = m_needs.administrator.start(callOf(path, params), intoLog);
    if (asAdministrator != 0)
        m_needs.log.logMessage(startFailureLine(path, asAdministrator));
    m_needs.log.logMessage(runLine("Run as admin: ", tool, params, asAdministrator));
    return ExitStatus::of(asAdministrator);
}

ExitStatus CommandRunner::runResourceScript(OptionalText script, const Params& params,
                                            bool justUser) {
    m_needs.log.logMessage("Run: " + shown(script) +
                           " -> Params: " + (params ? listDescription(*params) : shown({})));
    if (!script)
        return ExitStatus::failure();
    const std::string path = inResources(script);
    if (!justUser)
        return runAsUserThenAdministrator(path, params);
    return launchApp(path, params).succeeded() ? ExitStatus::success() : ExitStatus::failure();
}

std::string CommandRunner::execCmdLineApp(std::string_view tool, const Params& params) {
    std::string result;
    m_needs.log.logMessage("Executing " + std::string(tool));
    try {
        const bool isBareName = tool.find('/') == std::string_view::npos;
        auto [status, output] =
            m_needs.tools.capture(callOf(isBareName ? inResources(tool) : tool, params));
        if (!output.empty())
            output.pop_back();
        result = status == 0 ? bytesAsCharacters(output) : "ERROR";
        m_needs.log.logMessage("execCmdLineApp " + std::string(tool) + " " +
                               joined(listOf(params)) + " result: " + result);
    } catch (const ports::PlatformError&) {
        m_needs.log.logException();
    }
    return result;
}

ExitStatus CommandRunner::askTool(std::string_view tool, const Params& params) {
    try {
        return ExitStatus::of(m_needs.tools.capture(callOf(tool, params)).status);
    } catch (const ports::PlatformError&) {
        return ExitStatus::of(ports::Tools::kCannotStart);
    }
}

} // namespace ec
