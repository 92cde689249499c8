// Launching an application (NSWorkspace). Used by WorkspaceApplications alone; plain C++, so that
// tests elsewhere can give an answer. Main thread or the background queue. Never throws.
#pragma once

#include <string>

namespace macoshost {

/// Starts the application bundle at the full path `bundle`, or brings it to the front where it runs
/// already, and does not wait for it. False when it can't be started.
bool launchApplication(const std::string& bundle);

} // namespace macoshost
