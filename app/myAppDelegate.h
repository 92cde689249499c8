// The application delegate: makes the installer window, runs it modally, and lets the program end
// when the session does, whatever its result.
#pragma once

#include <functional>
#include <optional>

#include "app/ScrivelInstaller.h"

namespace app {

class myAppDelegate {
  public:
    struct Needs {
        const ports::Host& host;
        /// The components, for the window's controller.
        ec::ecRules& rules;
        ec::ecItem& root;
        /// Runs the main queue until no work is left in the background.
        std::function<void()> finishBackgroundWork;
        /// Called with the window's object before its session begins.
        std::function<void(ScrivelInstaller&)> willRun;
    };
    explicit myAppDelegate(Needs needs) : m_needs(std::move(needs)) {}

    /// `applicationDidFinishLaunching:`. Answers the modal session's result; none when the window
    /// could not be loaded. Work that a closed window left behind is cancelled and waited for.
    std::optional<int> applicationDidFinishLaunching();

    /// The window's object, after the call above.
    ScrivelInstaller& installer() { return *m_installer; }

  private:
    Needs m_needs;
    std::optional<ScrivelInstaller> m_installer;
};

} // namespace app
