#include "app/SystemParts.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "platform/linux/OwnExecutable.h"
#include "platform/linux/PreferredLanguages.h"
#include "platform/linux/ProcApplications.h"
#include "platform/ports/FrontEnd.h"
#include "platform/posix/FinderFileStore.h"
#include "platform/posix/PlistBundles.h"
#include "platform/posix/StandardSystemLog.h"
#include "platform/posix/SudoAdministrator.h"
#include "platform/posix/ThreadQueues.h"

namespace app {

std::vector<std::string> preferredLanguages() {
    return linuxhost::preferredLanguages();
}

bool hasDisplay() {
    // The last one chooses a platform that may need no display at all.
    constexpr std::array kVariables{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::ranges::any_of(kVariables, [](const char* name) {
        const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe)
        return value && *value;
    });
}

std::optional<bool> desktopIsDark() {
    return std::nullopt;
}

double toolkitVersion() {
    return ports::Appearance::kOwnToolkitVersion;
}

std::unique_ptr<ports::Bundles> makeBundles() {
    return std::make_unique<posix::PlistBundles>(linuxhost::ownExecutable());
}

std::unique_ptr<ports::SystemLog> makeSystemLog() {
    return std::make_unique<posix::StandardSystemLog>();
}

std::unique_ptr<ports::BackgroundQueue> makeBackgroundQueue() {
    return std::make_unique<posix::BackgroundQueue>();
}

std::unique_ptr<ports::Applications> makeApplications(const ports::SystemPlaces& places,
                                                      ports::Bundles& bundles) {
    return std::make_unique<linuxhost::ProcApplications>(linuxhost::ProcApplications::Needs{
        .bundles = bundles, .root = places.root, .home = places.home});
}

std::unique_ptr<ports::FinderFiles> makeFinderFiles() {
    return std::make_unique<posix::FinderFileStore>(
        posix::FinderFileStore::Needs{.calls = posix::finderFileCalls()});
}

std::unique_ptr<ports::Administrator> makeAdministrator(const std::string& ownToolsFolder,
                                                        const std::string& askPass,
                                                        std::function<void()> whileWaiting) {
    return std::make_unique<posix::SudoAdministrator>(posix::SudoAdministrator::Needs{
        .ownToolsFolder = ownToolsFolder,
        .askpass = askPass.empty() ? "" : ownToolsFolder + "/" + askPass,
        .whileWaiting = std::move(whileWaiting)});
}

} // namespace app
