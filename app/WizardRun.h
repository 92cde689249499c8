// The commands that open the wizard: `customize`, `penmark`, `first-install` and `update`. Runs it
// to its end and finds out what came of it. Main thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

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

/// What is known of a wizard's run besides what the wizard itself tells.
struct WizardEnding {
    std::int32_t result = 0;               ///< the wizard's result code
    std::optional<std::string> unfollowed; ///< why the answers file could not be followed
    std::optional<std::string> cancelled;  ///< why the front end gave it up
};

/// What came of a wizard that is closed now.
RunOutcome outcomeOfWizard(const ec::ecController& wizard, const WizardEnding& ending);

} // namespace app
