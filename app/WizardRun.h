// The commands that open the wizard: `customize`, `penmark`, `first-install` and `update`. Runs it
// to its end and finds out what came of it. Main thread.
#pragma once

#include "app/Program.h"
#include "app/RunOutcome.h"

namespace app {

class WizardRun {
  public:
    explicit WizardRun(Program& program) : m_program(program) {}
    WizardRun(const WizardRun&) = delete;
    WizardRun& operator=(const WizardRun&) = delete;

    RunOutcome run();

  private:
    Program& m_program;
};

/// Is it one of the wizard's commands?
bool isWizardCommand(std::string_view command);

/// What came of a wizard that was open and is closed now; `result` is its result code.
RunOutcome outcomeOfWizard(Program& program, const ec::ecController& wizard, std::int32_t result);

} // namespace app
