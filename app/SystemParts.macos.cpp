#include "app/SystemParts.h"

#include <utility>

#include "cp/private/Volume.h"
#include "platform/macos/Appearance.h"
#include "platform/macos/AuthorizationServices.h"
#include "platform/macos/FolderIcon.h"
#include "platform/macos/ForkedFinderFiles.h"
#include "platform/macos/GlobalQueue.h"
#include "platform/macos/LoginSession.h"
#include "platform/macos/MainBundle.h"
#include "platform/macos/PreferredLanguages.h"
#include "platform/macos/ResourceForkWriter.h"
#include "platform/macos/UnifiedLog.h"
#include "platform/macos/WorkspaceApplications.h"

namespace app {

namespace {

posix::AliasVolume volumeOf(const std::string& path) {
    const auto volume = Corvaldine::CP::Private::volume_of(path);
    return {.mountPoint = volume.mount_point, .name = volume.name};
}

} // namespace

std::vector<std::string> preferredLanguages() {
    return macoshost::preferredLanguages();
}

bool hasDisplay() {
    return macoshost::hasGraphicSession();
}

std::optional<bool> desktopIsDark() {
    return macoshost::isDark();
}

double toolkitVersion() {
    return macoshost::toolkitVersion();
}

std::unique_ptr<ports::Bundles> makeBundles() {
    return std::make_unique<macoshost::MainBundle>();
}

std::unique_ptr<ports::SystemLog> makeSystemLog() {
    return std::make_unique<macoshost::UnifiedLog>();
}

std::unique_ptr<ports::BackgroundQueue> makeBackgroundQueue() {
    return std::make_unique<macoshost::GlobalQueue>();
}

std::unique_ptr<ports::Applications> makeApplications(const ports::SystemPlaces& places,
                                                      ports::Bundles&) {
    return std::make_unique<macoshost::WorkspaceApplications>(
        macoshost::WorkspaceApplications::Needs{.root = places.root});
}

std::unique_ptr<ports::FinderFiles> makeFinderFiles() {
    return std::make_unique<macoshost::ForkedFinderFiles>(
        macoshost::ForkedFinderFiles::Needs{.calls = posix::finderFileCalls(),
                                            .writeFork = macoshost::writeResourceFork,
                                            .volume = volumeOf,
                                            .setFolderIcon = macoshost::setFolderIcon});
}

// The system asks for the password itself and has all the tools.
std::unique_ptr<ports::Administrator> makeAdministrator(const std::string&, const std::string&,
                                                        std::function<void()> whileWaiting) {
    return std::make_unique<macoshost::AuthorizationServices>(
        macoshost::AuthorizationServices::Needs{.whileWaiting = std::move(whileWaiting)});
}

} // namespace app
