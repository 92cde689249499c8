#include "platform/macos/WorkspaceApplications.h"

#include <algorithm>

#include "platform/macos/ApplicationLauncher.h"
#include "platform/macos/LaunchServices.h"
#include "platform/macos/RunningApplications.h"

namespace macoshost {

bool WorkspaceApplications::isRunning(std::string_view bundleIdentifier) {
    return std::ranges::any_of(bundlesOfRunning(bundleIdentifier),
                               [&](const std::optional<std::string>& bundle) {
                                   return bundle ? m_root.holds(*bundle) : m_root.isEverywhere();
                               });
}

std::vector<std::string>
WorkspaceApplications::counted(const std::vector<std::string>& paths) const {
    std::vector<std::string> once;
    for (const std::string& path : paths)
        if (m_root.holds(path) && std::ranges::find(once, path) == once.end())
            once.push_back(path);
    return once;
}

std::vector<std::string> WorkspaceApplications::pathsFor(std::string_view bundleIdentifier) {
    return counted(
        applicationsWithIdentifier(bundleIdentifier).value_or(std::vector<std::string>{}));
}

std::optional<std::vector<std::string>>
WorkspaceApplications::pathsForDocument(std::string_view document) {
    const ApplicationPaths known = applicationsForDocument(document);
    if (!known)
        return std::nullopt;
    std::vector<std::string> paths = counted(*known);
    if (paths.empty() && !known->empty())
        return std::nullopt;
    return paths;
}

bool WorkspaceApplications::launch(const std::string& path) {
    return launchApplication(path);
}

} // namespace macoshost
