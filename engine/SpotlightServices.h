// The Spotlight importer and the Services application, each for one user or for all. Here: the page
// on which the user chooses between the two. Main thread.
#pragma once

#include "rules/ecRules.h"
#include "wizard/WizardOutlets.h"
#include "wizard/WizardSteps.h"

namespace ec {

class SpotlightServices {
  public:
    struct Needs {
        const ecRules& rules;
        WizardOutlets& outlets;
        WizardSteps& steps;
    };
    explicit SpotlightServices(Needs needs) : m_needs(needs) {}
    SpotlightServices(const SpotlightServices&) = delete;
    SpotlightServices& operator=(const SpotlightServices&) = delete;

    /// `adjustServSpot`, on entering the page: enables the choice for what the user has just
    /// selected, and passes the page over where that is neither. The choice itself stays as it
    /// shows. Answers 0.
    int adjustServSpot();

  private:
    Needs m_needs;
};

} // namespace ec
