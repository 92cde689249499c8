// Leads the wizard from its first page to its last when the answers file has no steps: agrees where
// it was told to, otherwise presses Next. It gives up where that leads nowhere: each of its presses
// has to change something that can be seen, and there is a limit to their number. Main thread only.
#pragma once

#include <optional>
#include <string>

#include "wizard/ecController.h"

namespace app {

class WizardPilot {
  public:
    struct Needs {
        bool agree = false; ///< --yes: agree to the licence
    };
    explicit WizardPilot(Needs needs) : m_needs(needs) {}

    /// Does the next thing. The reason when there is nothing to be done any more and the wizard has
    /// to be cancelled; else none.
    std::optional<std::string> act(ec::ecController& wizard);

  private:
    std::optional<std::string> pressNext(ec::ecController& wizard);

    Needs m_needs;
    int m_presses = 0;
};

} // namespace app
