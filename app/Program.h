// What every kind of run has in common: the adapters of this system, the watchers that make events,
// a front end, and the host that they make up together with the components. The kinds of run
// (InstallRun, WizardRun, ComponentList) are handed it; it starts nothing. Main thread.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/Adapters.h"
#include "app/CommandLine.h"
#include "app/WindowFrontEnd.h"
#include "app/unattended/AnswersDriver.h"
#include "app/unattended/ProgressPrinter.h"
#include "app/unattended/UnattendedFrontEnd.h"
#include "platform/ports/Host.h"
#include "platform/posix/TerminationSignals.h"
#include "rules/ecItem.h"
#include "rules/ecRules.h"

namespace app {

class Program {
  public:
    /// What the program wants to know of the run under way. Each may be empty.
    struct Hooks {
        ec::ecController* controller = nullptr;
        /// Are the applications still running that the installer window asks about?
        std::function<bool()> appsAreRunning = {};
        /// Is its window still open?
        std::function<bool()> isOpen = {};
        /// A signal asks the program to end: cancels what is open.
        std::function<void()> cancel = {};
        /// Shows what a tool of our own reports of its work.
        std::function<void(const ports::ToolProgress&)> showProgress = {};
    };

    Program(const CommandLine& options, AnswersFile answers, int& argc, char** argv);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    const CommandLine& options() const { return m_options; }
    const ports::Host& host() const { return m_host; }
    Adapters& adapters() { return m_adapters; }
    EventStream& events() { return m_adapters.events; }
    ec::ecRules& rules() { return m_rules; }
    ec::ecItem& root() { return m_root; }
    const AnswersDriver& driver() const { return m_driver; }
    std::string logPath() const;

    /// Runs the main queue until no work is left in the background.
    void finishBackgroundWork();

    /// A run's hooks for as long as this lives; what they refer to has to live longer.
    class Hooked {
      public:
        Hooked(Program& program, Hooks hooks) : m_program(program) {
            m_program.m_hooks = std::move(hooks);
        }
        ~Hooked() { m_program.m_hooks = {}; }
        Hooked(const Hooked&) = delete;
        Hooked& operator=(const Hooked&) = delete;

      private:
        Program& m_program;
    };

  private:
    AnswersDriver::Needs driverNeeds(AnswersFile answers);
    std::unique_ptr<WindowFrontEnd> window(int& argc, char** argv);
    bool pause(std::chrono::milliseconds time);

    const CommandLine& m_options;
    Adapters m_adapters;
    Hooks m_hooks;
    posix::TerminationSignals m_signals;
    ProgressPrinter m_printer;
    AnswersDriver m_driver;
    UnattendedFrontEnd m_unattended;
    std::unique_ptr<WindowFrontEnd> m_window;
    FrontEndPorts m_frontEnd;
    ObservedAlerts m_alerts;
    ObservedChoosers m_choosers;
    ports::Host m_host;
    ec::ecRules& m_rules;
    ec::ecItem& m_root;
};

} // namespace app
