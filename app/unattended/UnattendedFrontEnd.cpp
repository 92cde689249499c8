#include "app/unattended/UnattendedFrontEnd.h"

#include <filesystem>
#include <utility>

#include "app/generated/InterfaceDefaults.h"

namespace app {

namespace {

/// How long the loop sleeps before it looks whether the driver's patience has run out.
constexpr std::chrono::milliseconds kLongestSleep{50};

} // namespace

bool UnattendedFrontEnd::load(std::string_view name, controls::Interface& outlets) {
    const auto file = std::filesystem::path(m_needs.resourceFolder) / (std::string(name) + ".ui");
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(file, ignored))
        return false;
    for (const auto& [interface, outlet, title] : kInterfaceTitles) {
        const auto* named = outlets.find(outlet);
        if (interface != name || !named)
            continue;
        if (const auto* button = std::get_if<controls::Button*>(&named->control))
            (*button)->setTitle(std::string(title));
        else if (const auto* field = std::get_if<controls::TextField*>(&named->control))
            (*field)->setText(std::string(title));
    }
    m_outlets = &outlets;
    return true;
}

void UnattendedFrontEnd::beginSheet(const ports::Alert& alert, controls::Window&,
                                    std::function<void(int)> completion) {
    m_sheet = Sheet{alert, std::move(completion)};
}

void UnattendedFrontEnd::answer(const Sheet& sheet) {
    const std::size_t index = m_needs.driver.answer(sheet.alert);
    sheet.completion(kFirstButton + static_cast<int>(index));
}

int UnattendedFrontEnd::runModalForWindow(controls::Window& window) {
    const Session session = beginModalSession(window);
    int code = kContinues;
    while (code == kContinues)
        code = runModalSession(session);
    endModalSession(session);
    window.orderOut();
    return code;
}

void UnattendedFrontEnd::stopModalWithCode(int code) {
    if (!m_sessions.empty() && !m_sessions.back().code)
        m_sessions.back().code = code;
}

UnattendedFrontEnd::Session UnattendedFrontEnd::beginModalSession(controls::Window& window) {
    window.orderFront();
    m_sessions.push_back({&window, std::nullopt});
    return m_sessions.size() - 1;
}

int UnattendedFrontEnd::runModalSession(Session session) {
    using Turn = AnswersDriver::Turn;
    m_needs.runPending();
    if (m_terminated)
        return kAborted;
    if (m_sessions[session].code)
        return *m_sessions[session].code;
    if (!m_sessions[session].window->isVisible())
        return kAborted;
    if (m_sheet) {
        answer(*std::exchange(m_sheet, std::nullopt));
        return kContinues;
    }
    // Looked at before the driver is asked: work that ends meanwhile has queued its last hop.
    const bool busy = m_needs.background.isBusy();
    switch (m_needs.driver.turn(*m_outlets, busy)) {
    case Turn::acted:
        break;
    case Turn::waits:
        m_needs.waitForWork(kLongestSleep);
        break;
    case Turn::closeWindow:
        m_sessions[session].window->performClose();
        break;
    }
    return kContinues;
}

void UnattendedFrontEnd::endModalSession(Session session) {
    m_sessions.resize(session);
}

void UnattendedFrontEnd::beginSheet(controls::Window& sheet, controls::Window&) {
    sheet.orderFront();
}

void UnattendedFrontEnd::endSheet(controls::Window& sheet) {
    sheet.orderOut();
}

std::optional<std::string> UnattendedFrontEnd::choose(const ports::Chooser&) {
    return std::nullopt;
}

} // namespace app
