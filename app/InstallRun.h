// The command `install`: runs the installer window through the application delegate and finds out
// what came of it. Used once. Main thread.
#pragma once

#include <optional>

#include "app/Program.h"
#include "app/RunOutcome.h"
#include "app/myAppDelegate.h"

namespace app {

class InstallRun {
  public:
    explicit InstallRun(Program& program);
    InstallRun(const InstallRun&) = delete;
    InstallRun& operator=(const InstallRun&) = delete;

    RunOutcome run();

  private:
    void watch(ScrivelInstaller& installer);
    RunOutcome outcome(int result);

    Program& m_program;
    myAppDelegate m_delegate;
    std::optional<ControlWatcher> m_watcher;
    std::optional<ControlWatcher> m_wizardWatcher; ///< the menu opens the wizard
    std::optional<Program::Hooked> m_hooked;
};

} // namespace app
