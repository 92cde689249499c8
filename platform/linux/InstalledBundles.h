// The application bundles in a folder for applications, as a registry of applications would know
// them. Used by ProcApplications.
#pragma once

#include <string>
#include <vector>

namespace linuxhost {

/// The paths of all folders "X.app" below `folder`, sorted; empty when there is no such folder.
/// Bundles are never looked into, and links to folders not followed, but one called "X.app" counts.
/// Folders that can't be read are passed over.
std::vector<std::string> installedBundles(const std::string& folder);

} // namespace linuxhost
