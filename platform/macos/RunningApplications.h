// The applications that run now (NSRunningApplication). Used by WorkspaceApplications alone; plain
// C++, so that tests elsewhere can give an answer. Main thread. Never throws.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace macoshost {

/// The bundles of the running applications with this bundle identifier, one entry for each of them;
/// none in the place of a bundle that the system can't name. This process itself is left out. Where
/// the program has no window it turns the main run loop, which nobody else does there.
std::vector<std::optional<std::string>> bundlesOfRunning(std::string_view bundleIdentifier);

} // namespace macoshost
