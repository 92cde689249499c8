#include "app/unattended/AnswersDriver.h"

#include <algorithm>
#include <array>
#include <string_view>

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

std::optional<std::size_t> indexOf(const Question& question, std::string_view title) {
    const auto found = std::ranges::find(question.buttons, title);
    if (found == question.buttons.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - question.buttons.begin());
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
    std::string operator()(const SelectStep& s) const { return "select in \"" + s.outlet + "\""; }
    std::string operator()(const SelectRowStep& s) const {
        return "selectRow in \"" + s.outlet + "\"";
    }
    std::string operator()(const CallStep& s) const { return "call \"" + s.action + "\""; }
    std::string operator()(const WaitStep& s) const { return "waitFor " + s.members.dump(); }
    std::string operator()(const SnapshotStep& s) const { return "snapshot \"" + s.name + "\""; }
};

} // namespace

AnswersDriver::AnswersDriver(Needs needs)
    : m_needs(std::move(needs)), m_pilot({.agree = m_needs.agree}) {
    const auto waits = [](const Step& step) { return std::holds_alternative<WaitStep>(step); };
    if (m_needs.answers.steps && std::ranges::any_of(*m_needs.answers.steps, waits))
        m_needs.events.addListener(
            [this](const Event& event) { m_sinceLastStep.push_back(event); });
}

void AnswersDriver::fail(std::string why) {
    if (!m_failure)
        m_failure = std::move(why);
}

void AnswersDriver::failAt(const std::string& place) {
    fail(m_needs.answers.name + ": " + place);
}

AnswersDriver::Turn AnswersDriver::cancel(std::string why) {
    if (!m_cancelled)
        m_cancelled = std::move(why);
    return Turn::closeWindow;
}

std::optional<std::size_t> AnswersDriver::answer(const Question& question) {
    if (!m_failure && m_nextAnswer < m_needs.answers.answers.size()) {
        const std::string& title = m_needs.answers.answers[m_nextAnswer++];
        if (const auto index = indexOf(question, title))
            return index;
        failAt("answers[" + std::to_string(m_nextAnswer - 1) + "]: the question \"" +
               question.message + "\" has no button \"" + title + "\"; it has " +
               listed(question.buttons));
    }
    if (const auto quit = indexOf(question, kQuitButton)) {
        const auto giveUp = Clock::now() + m_needs.waitForApps;
        while (!m_failure && Clock::now() < giveUp && m_needs.appsAreRunning())
            if (!m_needs.pause(kAppsPollInterval))
                return quit;
        return !m_failure && m_needs.waitForApps > 0s && !m_needs.appsAreRunning() ? 0 : quit;
    }
    if (m_failure)
        return std::nullopt;
    if (m_needs.agree)
        for (const std::string_view title : kAgreeingButtons)
            if (const auto index = indexOf(question, title))
                return index;
    return 0;
}

std::optional<std::string> AnswersDriver::choose() {
    if (m_failure || m_nextChoice == m_needs.answers.choices.size())
        return std::nullopt;
    return m_needs.answers.choices[m_nextChoice++];
}

AnswersDriver::Turn AnswersDriver::turn(controls::Interface& outlets, bool busy) {
    if (m_failure || m_cancelled)
        return Turn::closeWindow;
    ec::ecController* controller = m_needs.controller();
    const Scene scene{outlets,
                      controller && &controller->outlets == &outlets ? controller : nullptr};
    if (!chooseComponents(scene))
        return Turn::closeWindow;
    if (m_needs.answers.steps && m_nextStep < m_needs.answers.steps->size())
        return perform(scene, (*m_needs.answers.steps)[m_nextStep]);
    if (busy)
        return Turn::waits;
    if (!m_needs.answers.steps)
        return turnWithoutSteps(scene);
    return cancel("the steps are over and the window still waits; it was cancelled");
}

AnswersDriver::Turn AnswersDriver::turnWithoutSteps(const Scene& scene) {
    if (scene.wizard) {
        if (const auto why = m_pilot.act(*scene.wizard))
            return cancel(*why);
        return Turn::acted;
    }
    if (m_pressedFirst)
        return Turn::closeWindow;
    m_pressedFirst = true;
    if (auto refusal = pressOutlet(m_needs.firstButton, scene))
        fail(*refusal);
    return m_failure ? Turn::closeWindow : Turn::acted;
}

/// Once, when the page of components is first in sight: what --select and --deselect say.
bool AnswersDriver::chooseComponents(const Scene& scene) {
    if (m_componentsChosen || !scene.wizard ||
        scene.wizard->ecTabView.selected() != ec::page::kComponents)
        return true;
    m_componentsChosen = true;
    for (const auto& [name, on] : m_needs.choices)
        if (auto refusal = clickComponent(name, on ? 1 : 0, scene))
            fail((on ? "--select: " : "--deselect: ") + *refusal);
    return !m_failure;
}

AnswersDriver::Turn AnswersDriver::perform(const Scene& scene, const Step& step) {
    if (const auto* wait = std::get_if<WaitStep>(&step))
        return waitFor(wait->members);
    ++m_nextStep;
    m_sinceLastStep.clear();
    if (auto refusal = performStep(step, scene, m_needs.events))
        failAt("steps[" + std::to_string(m_nextStep - 1) + "]: can't " +
               std::visit(Described(), step) + ": " + *refusal);
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
    failAt("steps[" + std::to_string(m_nextStep) + "]: the event " + members.dump() +
           " did not come within 60 seconds");
    return Turn::closeWindow;
}

} // namespace app
