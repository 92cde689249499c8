#include "app/unattended/UnattendedFrontEnd.h"

#include <algorithm>
#include <utility>

#include "app/CancelWindow.h"
#include "app/generated/InterfaceDefaults.h"
#include "engine/FileBytes.h"

namespace app {

namespace {

/// How long the loop sleeps before it looks whether the driver's patience has run out.
constexpr std::chrono::milliseconds kLongestSleep{50};

/// The interface file of the wizard's questions.
constexpr std::string_view kQuestionInterface = "ecPanel";

void giveTitle(const controls::Outlet& control, std::string_view title) {
    if (const auto* button = std::get_if<controls::Button*>(&control))
        (*button)->setTitle(std::string(title));
    else if (const auto* field = std::get_if<controls::TextField*>(&control))
        (*field)->setText(std::string(title));
}

template <class Interfaces>
auto interfaceOf(const Interfaces& interfaces, const controls::Window& window) {
    const auto found = std::ranges::find_if(
        interfaces, [&](const auto& loaded) { return loaded.window == &window; });
    return found == interfaces.end() ? nullptr : &*found;
}

} // namespace

bool UnattendedFrontEnd::load(std::string_view name, controls::Interface& outlets) {
    const std::string file =
        ec::bytesOfFile(m_needs.resourceFolder + "/" + std::string(name) + ".ui");
    const bool complete = std::ranges::all_of(outlets.outlets, [&](const auto& outlet) {
        return file.find("name=\"" + std::string(outlet.name) + "\"") != std::string::npos;
    });
    if (file.empty() || !complete)
        return false;
    for (const auto& [interface, outlet, title] : kInterfaceTitles)
        if (const auto* named = interface == name ? outlets.find(outlet) : nullptr)
            giveTitle(named->control, title);
    if (!interfaceOf(m_interfaces, outlets.window)) {
        m_interfaces.push_back({&outlets.window, &outlets, name == kQuestionInterface});
        outlets.window.addObserver(*this);
    }
    return true;
}

void UnattendedFrontEnd::controlDestroyed(controls::Control& window) {
    std::erase_if(m_interfaces, [&](const Loaded& loaded) { return loaded.window == &window; });
}

void UnattendedFrontEnd::beginSheet(const ports::Alert& alert, controls::Window&,
                                    std::function<void(int)> completion) {
    m_sheet = Sheet{alert, std::move(completion)};
}

void UnattendedFrontEnd::answer(const Sheet& sheet) {
    const auto& [alert, completion] = sheet;
    const auto index = m_needs.driver.answer({alert.message, alert.buttons});
    const std::size_t escape = alert.escapeButton.value_or(alert.buttons.size() - 1);
    completion(kFirstButton + static_cast<int>(index.value_or(escape)));
}

/// The wizard's own sheet: its buttons in sight, default, alternate and other.
void UnattendedFrontEnd::answerQuestion(controls::Interface& outlets) {
    Question question;
    std::vector<controls::Button*> buttons;
    if (const auto* message = outlets.find("msgText"))
        question.message = std::get<controls::TextField*>(message->control)->text();
    for (const std::string_view name : {"defBtn", "altBtn", "othBtn"}) {
        const auto* named = outlets.find(name);
        auto* button = named ? std::get<controls::Button*>(named->control) : nullptr;
        if (!button || button->isHidden())
            continue;
        buttons.push_back(button);
        question.buttons.push_back(button->title());
    }
    if (const auto index = m_needs.driver.answer(question))
        buttons.at(*index)->press();
    else
        outlets.window.performClose();
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
    if (const Loaded* loaded = interfaceOf(m_interfaces, *m_sessions[session].window))
        act(*loaded);
    else
        m_needs.waitForWork(kLongestSleep);
    return kContinues;
}

void UnattendedFrontEnd::act(const Loaded& loaded) {
    using Turn = AnswersDriver::Turn;
    controls::Interface& outlets = *loaded.outlets; // the window may die while it is worked
    if (loaded.isQuestion)
        return answerQuestion(outlets);
    // Looked at before the driver is asked: work that ends meanwhile has queued its last hop.
    const bool busy = m_needs.background.isBusy();
    switch (m_needs.driver.turn(outlets, busy)) {
    case Turn::acted:
        break;
    case Turn::waits:
        m_needs.waitForWork(kLongestSleep);
        break;
    case Turn::closeWindow:
        cancelWindow(outlets);
        break;
    }
}

void UnattendedFrontEnd::endModalSession(Session session) {
    m_sessions.resize(session);
}

} // namespace app
