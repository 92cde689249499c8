// The Spotlight importer and the Services application, each copied ready-made from the installation
// into a folder of the user's or into the system's: the page on which the user chooses between the
// two, and the two install methods. Main thread.
//
// Deliberately unlike each other: where there is no look at the disk, a check of the importer
// answers 0 and one of the Services 1; copying and removing answer 0 and 1.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/CommandRunner.h"
#include "engine/ComponentParts.h"
#include "engine/FileOperations.h"
#include "engine/OpMode.h"
#include "platform/ports/Bundles.h"
#include "rules/ecRules.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardOutlets.h"
#include "wizard/WizardSession.h"
#include "wizard/WizardSteps.h"

namespace ec {

class SpotlightServices {
  public:
    struct Needs {
        InstallLog& log;
        const WizardSession& session;
        const ecRules& rules;
        WizardOutlets& outlets;
        WizardSteps& steps;
        CommandRunner& runner;
        FileOperations& files;
        const ports::Bundles& bundles;
    };
    explicit SpotlightServices(Needs needs) : m_needs(needs) {}
    SpotlightServices(const SpotlightServices&) = delete;
    SpotlightServices& operator=(const SpotlightServices&) = delete;

    /// `adjustServSpot`, on entering the page: enables the choice for what the user has just
    /// selected, and passes the page over where that is neither. The choice itself stays as it
    /// shows. Answers 0.
    int adjustServSpot();

    /// `installSpotlightMode:itemNum:source:dest:`, the importer. Check: 1 in launch mode 32; in
    /// the Customizer whether either copy exists; else 0. Copy, to the level that is on, and
    /// remove, from both: 0. An exception of the platform: -1.
    MethodAnswer installSpotlightMode(OpMode mode, std::uint32_t itemNum, OptionalText source,
                                      OptionalText dest);

    /// `installServicesMode:itemNum:source:dest:`, the application. Check: in the Customizer
    /// whether either copy exists, else 1. Copy and remove, as for the importer, stop a running
    /// service first, whatever is chosen: 1. A shipped copy that is put away under a name with
    /// ".disabled" gets its own name again, in a check too. An exception of the platform: -1.
    MethodAnswer installServicesMode(OpMode mode, std::uint32_t itemNum, OptionalText source,
                                     OptionalText dest);

    /// What of either lies where; to be installed at the level that is on.
    ComponentParts spotlightParts() const;
    ComponentParts servicesParts() const;

  private:
    /// The shipped copy and those at the two levels.
    struct Places {
        std::string shipped;
        std::string user;
        std::string system;
    };
    Places spotlightPlaces() const;
    Places servicesPlaces() const;
    int found(const Places& places, std::string_view what);
    void copy(const Places& places, const controls::RadioMatrix& levels);
    void remove(const Places& places);
    void stopService();

    Needs m_needs;
};

} // namespace ec
