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

#include "app/unattended/AnswersFile.h"
#include "app/unattended/EventStream.h"
#include "platform/controls/Interface.h"
#include "platform/ports/FrontEnd.h"

namespace app {

class AnswersDriver {
  public:
    struct Needs {
        EventStream& events;
        AnswersFile answers;
        bool agree = false; ///< --yes: agree where the file has no answer left
        std::chrono::seconds waitForApps{0};
        /// Are the applications still running that the question is about?
        std::function<bool()> appsAreRunning;
        /// Lets time pass and runs what the main queue holds; false when the window was closed
        /// meanwhile, so that there is nothing left to wait for.
        std::function<bool(std::chrono::milliseconds)> pause;
        /// The outlet that starts the work when the file has no steps.
        std::string firstButton;
    };
    explicit AnswersDriver(Needs needs);
    AnswersDriver(const AnswersDriver&) = delete;
    AnswersDriver& operator=(const AnswersDriver&) = delete;

    /// The index of the button that answers the question.
    std::size_t answer(const ports::Alert& alert);

    enum class Turn {
        acted,       ///< something was done; ask again
        waits,       ///< nothing to do until work or an event comes
        closeWindow, ///< nobody will do anything more: cancel the window
    };
    /// What to do while the main loop would wait. `busy`: work is under way in the background.
    Turn turn(const controls::Interface& outlets, bool busy);

    /// Why the answers file could not be followed; none while it can.
    const std::optional<std::string>& failure() const { return m_failure; }

  private:
    using Clock = std::chrono::steady_clock;

    void fail(std::string why);
    Turn turnWithoutSteps(const controls::Interface& outlets, bool busy);
    Turn perform(const controls::Interface& outlets, const Step& step);
    Turn press(const controls::Interface& outlets, const std::string& outlet);
    Turn waitFor(const Event& members);

    Needs m_needs;
    std::size_t m_nextAnswer = 0;
    std::size_t m_nextStep = 0;
    std::deque<Event> m_sinceLastStep; ///< kept only where a step may wait for one of them
    std::optional<Clock::time_point> m_waitUntil;
    bool m_pressedFirst = false;
    std::optional<std::string> m_failure;
};

} // namespace app
