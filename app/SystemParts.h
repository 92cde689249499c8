// What the composition root needs and each system provides in its own way. One source file a
// system: SystemParts.linux.cpp, SystemParts.macos.cpp.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports/Administrator.h"
#include "platform/ports/Applications.h"
#include "platform/ports/Bundles.h"
#include "platform/ports/FinderFiles.h"
#include "platform/ports/Queues.h"
#include "platform/ports/SystemLog.h"
#include "platform/ports/SystemPlaces.h"

namespace app {

/// The user's languages, the dearest first, as the system writes them: locale names
/// ("de_AT.UTF-8") or language tags ("de-AT"); empty: English.
std::vector<std::string> preferredLanguages();

/// Can a window be shown?
bool hasDisplay();

/// Has the desktop a dark appearance? None: the window's toolkit knows as well. Asked when the
/// toolkit's application object is there.
std::optional<bool> desktopIsDark();

/// The version number of the toolkit that windows are shown with; see ports::Appearance.
double toolkitVersion();

std::unique_ptr<ports::Bundles> makeBundles();
/// At most one at a time.
std::unique_ptr<ports::SystemLog> makeSystemLog();
std::unique_ptr<ports::BackgroundQueue> makeBackgroundQueue();
std::unique_ptr<ports::Applications> makeApplications(const ports::SystemPlaces& places,
                                                      ports::Bundles& bundles);
std::unique_ptr<ports::FinderFiles> makeFinderFiles();

/// `ownToolsFolder` holds the program's own tools, and among them `askPass`, which asks for the
/// password in a window; empty: the terminal asks. `whileWaiting` is called every 15 ms or so while
/// somebody is asked or a tool runs, and may be empty.
std::unique_ptr<ports::Administrator> makeAdministrator(const std::string& ownToolsFolder,
                                                        const std::string& askPass,
                                                        std::function<void()> whileWaiting);

} // namespace app
