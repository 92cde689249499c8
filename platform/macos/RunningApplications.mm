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
            const char* utf8 = path.UTF8String;
            bundles.push_back(utf8 ? std::optional<std::string>(utf8) : std::nullopt);
        }
    }
    return bundles;
}

} // namespace macoshost
