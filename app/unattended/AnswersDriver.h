// The stand-in for the person in an unattended run: answers questions, presses and waits as the
// answers file says, and by its own rules where the file says nothing. UnattendedFrontEnd asks it
// whenever the main loop would wait. Main thread only; it never blocks but where `answer` waits for
// applications to quit.
#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/CommandLine.h"
#include "app/unattended/AnswersFile.h"
#include "app/unattended/EventStream.h"
#include "app/unattended/StepPerformer.h"
#include "app/unattended/WizardPilot.h"

namespace app {

/// A question as it is put, in a sheet of the platform's or one of the wizard's.
struct Question {
    std::string message;
    std::vector<std::string> buttons; ///< titles; the first is the default one
};

class AnswersDriver {
  public:
    struct Needs {
        EventStream& events;
        AnswersFile answers;
        /// What the command line turns on and off on the wizard's page of components.
        std::vector<ComponentChoice> choices = {};
        bool agree = false; ///< --yes: agree where the file has no answer left
        std::chrono::seconds waitForApps{0};
        /// Are the applications still running that the question is about?
        std::function<bool()> appsAreRunning;
        /// Lets time pass and runs what the main queue holds; false when the window was closed
        /// meanwhile, so that there is nothing left to wait for.
        std::function<bool(std::chrono::milliseconds)> pause;
        /// The outlet that starts the installer window's work when the file has no steps.
        std::string firstButton;
        /// The run's controller; null before there is one.
        std::function<ec::ecController*()> controller;
    };
    explicit AnswersDriver(Needs needs);
    AnswersDriver(const AnswersDriver&) = delete;
    AnswersDriver& operator=(const AnswersDriver&) = delete;

    /// The index of the button that answers the question; none when the answers file asks for one
    /// that it lacks, and the question has to be declined.
    std::optional<std::size_t> answer(const Question& question);
    /// What is chosen in the next chooser; none for Cancel.
    std::optional<std::string> choose();

    enum class Turn {
        acted,       ///< something was done; ask again
        waits,       ///< nothing to do until work or an event comes
        closeWindow, ///< nobody will do anything more: cancel the window
    };
    /// What to do while the main loop would wait. `busy`: work is under way in the background.
    Turn turn(controls::Interface& outlets, bool busy);

    /// Why the answers file could not be followed; none while it can.
    const std::optional<std::string>& failure() const { return m_failure; }
    /// Why a window was cancelled although the answers file was followed; none when none was.
    const std::optional<std::string>& cancelled() const { return m_cancelled; }

  private:
    using Clock = std::chrono::steady_clock;

    void fail(std::string why);
    /// The same for a place in the answers file and what is wrong there.
    void failAt(const std::string& place);
    Turn cancel(std::string why);
    Turn turnWithoutSteps(const Scene& scene);
    Turn perform(const Scene& scene, const Step& step);
    Turn waitFor(const Event& members);
    bool chooseComponents(const Scene& scene);

    Needs m_needs;
    WizardPilot m_pilot;
    std::size_t m_nextAnswer = 0;
    std::size_t m_nextChoice = 0;
    std::size_t m_nextStep = 0;
    std::deque<Event> m_sinceLastStep; ///< kept only where a step may wait for one of them
    std::optional<Clock::time_point> m_waitUntil;
    bool m_componentsChosen = false;
    bool m_pressedFirst = false;
    std::optional<std::string> m_failure;
    std::optional<std::string> m_cancelled;
};

} // namespace app
