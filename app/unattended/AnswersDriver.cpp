#include "app/unattended/AnswersDriver.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "app/unattended/Observers.h"

namespace app {

namespace {

using namespace std::chrono_literals;

/// How long a step waits for its event.
constexpr auto kEventPatience = 60s;
constexpr auto kAppsPollInterval = 200ms;

/// The button that gives up at the question about running applications.
constexpr std::string_view kQuitButton = "Quit Installer";
/// Buttons that agree, for --yes.
constexpr std::array<std::string_view, 2> kAgreeingButtons{"Yes", "Agree"};

std::optional<std::size_t> indexOf(const ports::Alert& alert, std::string_view title) {
    const auto found = std::ranges::find(alert.buttons, title);
    if (found == alert.buttons.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - alert.buttons.begin());
}

std::string listed(const std::vector<std::string>& titles) {
    std::string text;
    for (const std::string& title : titles)
        text += (text.empty() ? "\"" : ", \"") + title + "\"";
    return text;
}

bool holdsAll(const Event& event, const Event& members) {
    return std::ranges::all_of(members.items(), [&](const auto& item) {
        const auto found = event.find(item.key());
        return found != event.end() && *found == item.value();
    });
}

/// What the file calls the step's verb and object, for errors.
struct Described {
    std::string operator()(const PressStep& s) const { return "press \"" + s.outlet + "\""; }
    std::string operator()(const ComponentStep& s) const {
        return (s.state ? "set \"" : "toggle \"") + s.component + "\"";
    }
    std::string operator()(const RowStep& s) const { return "select in \"" + s.outlet + "\""; }
    std::string operator()(const CallStep& s) const { return "call \"" + s.action + "\""; }
    std::string operator()(const WaitStep& s) const { return "waitFor " + s.members.dump(); }
    std::string operator()(const SnapshotStep& s) const { return "snapshot \"" + s.name + "\""; }
};

} // namespace

AnswersDriver::AnswersDriver(Needs needs) : m_needs(std::move(needs)) {
    const auto waits = [](const Step& step) { return std::holds_alternative<WaitStep>(step); };
    if (m_needs.answers.steps && std::ranges::any_of(*m_needs.answers.steps, waits))
        m_needs.events.addListener(
            [this](const Event& event) { m_sinceLastStep.push_back(event); });
}

void AnswersDriver::fail(std::string why) {
    if (!m_failure)
        m_failure = std::move(why);
}

std::size_t AnswersDriver::answer(const ports::Alert& alert) {
    const auto quit = indexOf(alert, kQuitButton);
    if (!m_failure && m_nextAnswer < m_needs.answers.answers.size()) {
        const std::string& title = m_needs.answers.answers[m_nextAnswer++];
        if (const auto index = indexOf(alert, title))
            return *index;
        fail("answers[" + std::to_string(m_nextAnswer - 1) + "]: the question \"" + alert.message +
             "\" has no button \"" + title + "\"; it has " + listed(alert.buttons));
    }
    if (quit) {
        const auto giveUp = Clock::now() + m_needs.waitForApps;
        while (!m_failure && Clock::now() < giveUp && m_needs.appsAreRunning())
            if (!m_needs.pause(kAppsPollInterval))
                return *quit;
        return !m_failure && m_needs.waitForApps > 0s && !m_needs.appsAreRunning() ? 0 : *quit;
    }
    if (m_needs.agree && !m_failure)
        for (const std::string_view title : kAgreeingButtons)
            if (const auto index = indexOf(alert, title))
                return *index;
    return 0;
}

AnswersDriver::Turn AnswersDriver::turn(const controls::Interface& outlets, bool busy) {
    if (m_failure)
        return Turn::closeWindow;
    if (!m_needs.answers.steps)
        return turnWithoutSteps(outlets, busy);
    if (m_nextStep == m_needs.answers.steps->size())
        return busy ? Turn::waits : Turn::closeWindow;
    return perform(outlets, (*m_needs.answers.steps)[m_nextStep]);
}

AnswersDriver::Turn AnswersDriver::turnWithoutSteps(const controls::Interface& outlets, bool busy) {
    if (m_pressedFirst)
        return busy ? Turn::waits : Turn::closeWindow;
    m_pressedFirst = true;
    return press(outlets, m_needs.firstButton);
}

AnswersDriver::Turn AnswersDriver::perform(const controls::Interface& outlets, const Step& step) {
    if (const auto* wait = std::get_if<WaitStep>(&step))
        return waitFor(wait->members);
    ++m_nextStep;
    m_sinceLastStep.clear();
    if (const auto* button = std::get_if<PressStep>(&step))
        return press(outlets, button->outlet);
    if (const auto* snapshot = std::get_if<SnapshotStep>(&step)) {
        m_needs.events.emit("snapshot", {{"name", snapshot->name},
                                         {"page", nullptr},
                                         {"state", nullptr},
                                         {"controls", controlsSnapshot(outlets)},
                                         {"components", Event::array()}});
        return Turn::acted;
    }
    fail("steps[" + std::to_string(m_nextStep - 1) + "]: can't " + std::visit(Described(), step) +
         ": this window has no such control");
    return Turn::closeWindow;
}

AnswersDriver::Turn AnswersDriver::press(const controls::Interface& outlets,
                                         const std::string& outlet) {
    const std::string place =
        m_needs.answers.steps ? "steps[" + std::to_string(m_nextStep - 1) + "]: " : "";
    const auto* named = outlets.find(outlet);
    const auto* button = named ? std::get_if<controls::Button*>(&named->control) : nullptr;
    if (!button)
        fail(place + "this window has no button \"" + outlet + "\"");
    else if (!(*button)->isEnabled() || (*button)->isHidden())
        fail(place + "the button \"" + outlet + "\" can't be pressed now: it is disabled");
    else
        (*button)->press();
    return m_failure ? Turn::closeWindow : Turn::acted;
}

AnswersDriver::Turn AnswersDriver::waitFor(const Event& members) {
    for (std::size_t i = 0; i < m_sinceLastStep.size(); ++i) {
        if (!holdsAll(m_sinceLastStep[i], members))
            continue;
        // What came after it is still to be waited for by a later step.
        m_sinceLastStep.erase(m_sinceLastStep.begin(),
                              m_sinceLastStep.begin() + static_cast<std::ptrdiff_t>(i) + 1);
        m_waitUntil.reset();
        ++m_nextStep;
        return Turn::acted;
    }
    if (!m_waitUntil)
        m_waitUntil = Clock::now() + kEventPatience;
    if (Clock::now() < *m_waitUntil)
        return Turn::waits;
    fail("steps[" + std::to_string(m_nextStep) + "]: the event " + members.dump() +
         " did not come within 60 seconds");
    return Turn::closeWindow;
}

} // namespace app
