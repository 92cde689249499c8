#include "platform/macos/RunningApplications.h"

#include <AppKit/AppKit.h>
#include <unistd.h>

namespace macoshost {

namespace {

constexpr int kMostTurns = 100; // a source that never falls silent must not hold the answer up

// What the system tells the process of other applications arrives with the turns of the main run
// loop. With a window the toolkit turns it; without one nobody else does, and somebody who asks
// again and again would get the same answer for ever.
void takeInWhatHasChanged() {
    if (NSApp)
        return;
    for (int turn = 0; turn < kMostTurns; ++turn)
        if (CFRunLoopRunInMode(kCFRunLoopDefaultMode, 0, true) != kCFRunLoopRunHandledSource)
            return;
}

} // namespace

std::vector<std::optional<std::string>> bundlesOfRunning(std::string_view bundleIdentifier) {
    std::vector<std::optional<std::string>> bundles;
    @autoreleasepool {
        NSString* identifier =
            [NSString stringWithUTF8String:std::string(bundleIdentifier).c_str()];
        if (!identifier)
            return bundles;
        takeInWhatHasChanged();
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
