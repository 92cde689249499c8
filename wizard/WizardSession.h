// The facts that several facets share, each with this one owner: where the resources lie, and which
// home folder is meant. Filled by the controller's plain start and only read afterwards.
#pragma once

#include <string>

#include "platform/ports/Bundles.h"
#include "platform/ports/SystemPlaces.h"

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
};

} // namespace ec
