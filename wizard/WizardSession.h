// The facts that several facets share, each with this one owner: where the resources lie, which
// mode the wizard runs in and how it ended, what was decided on the way. Filled and cleared by the
// controller's plain start. Holds facts only.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/ports/Bundles.h"
#include "platform/ports/SystemPlaces.h"
#include "wizard/ComponentOutcome.h"
#include "wizard/CopyOutcome.h"

namespace ec {

struct WizardSession {
    WizardSession(const ports::Bundles& bundles, ports::SystemPlaces systemPlaces)
        : m_custResourceDir(bundles.mainResourceFolder()), m_appResourceDir(m_custResourceDir),
          m_execPath(bundles.mainExecutable()), places(std::move(systemPlaces)) {}

    /// Resource folder of the bundle that holds the wizard: pictures, rules, scripts and tools.
    std::string m_custResourceDir;
    /// Resource folder of the main bundle. The same folder, as the program is one bundle.
    std::string m_appResourceDir;
    /// The main bundle's executable.
    std::string m_execPath;
    ports::SystemPlaces places;
    /// The text about the product; empty where there is none.
    std::string m_aboutFileString;

    /// The launch mode, and the wizard's result.
    std::uint32_t m_mode = 0;
    std::int32_t mResultCode = 0;

    /// A location was added by hand to those where Word's add-in goes.
    bool m_bPMRK_path_added = false;
    /// The wizard uninstalls.
    bool m_bUninstall = false;
    /// The user wants the add-in in Word.
    bool m_bCustomizeMSWord = false;

    /// What was done since the wizard was opened, in order.
    std::vector<ComponentOutcome> outcomes;
    /// The copies that the updater has found since then, in order.
    std::vector<CopyOutcome> copies;
};

} // namespace ec
