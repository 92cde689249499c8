#include "platform/macos/RunningApplications.h"

#include <AppKit/AppKit.h>
#include <unistd.h>

namespace macoshost {

std::vector<std::optional<std::string>> bundlesOfRunning(std::string_view bundleIdentifier) {
    std::vector<std::optional<std::string>> bundles;
    @autoreleasepool {
        NSString* identifier =
            [NSString stringWithUTF8String:std::string(bundleIdentifier).c_str()];
        if (!identifier)
            return bundles;
        NSArray<NSRunningApplication*>* applications =
            [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier];
        for (NSUInteger i = 0; i < applications.count; ++i) {
            if (applications[i].processIdentifier == ::getpid())
                continue;
            NSString* path = applications[i].bundleURL.path;
            bundles.push_back(path ? std::optional<std::string>(path.UTF8String) : std::nullopt);
        }
    }
    return bundles;
}

} // namespace macoshost
