// What the composition root needs and each system provides in its own way. One source file a system:
// SystemParts.linux.cpp, SystemParts.macos.cpp.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ports/Administrator.h"
#include "platform/ports/Applications.h"
#include "platform/ports/Bundles.h"
#include "platform/ports/FinderFiles.h"
#include "platform/ports/SystemPlaces.h"

namespace app {

/// The running program's file, absolute, links resolved.
std::string ownExecutable();

/// The user's languages, the most wanted first, as "de-AT" or "de".
std::vector<std::string> preferredLanguages();

/// Can a window be shown?
bool hasDisplay();

std::unique_ptr<ports::Applications> makeApplications(const ports::SystemPlaces& places,
                                                      ports::Bundles& bundles);
std::unique_ptr<ports::FinderFiles> makeFinderFiles();

/// `askPass`: the program that asks for the password in a window; empty: the terminal does.
std::unique_ptr<ports::Administrator> makeAdministrator(const std::string& askPass);

} // namespace app
