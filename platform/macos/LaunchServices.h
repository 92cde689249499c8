// What Launch Services, the system's registry of applications, knows. Used by WorkspaceApplications
// alone. Changes nothing there. Main thread. Never throws.
//
// Paths come in the registry's order, as it spells them and of any length; one of an application
// that has vanished since is among them. What has no path, or one that can't be written as UTF-8,
// is passed over.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace macoshost {

using ApplicationPaths = std::optional<std::vector<std::string>>;

/// The applications with this bundle identifier
/// (LSCopyApplicationURLsForBundleIdentifier). None when the registry answers no list, and for
/// an identifier that is not UTF-8.
ApplicationPaths applicationsWithIdentifier(std::string_view bundleIdentifier);

/// The applications that open the document at this path in whatever role
/// (LSCopyApplicationURLsForURL). The document should exist: the registry may look at it. None when
/// the registry answers no list, and for a path that no URL can be made of.
ApplicationPaths applicationsForDocument(std::string_view document);

} // namespace macoshost
