#include "platform/macos/ApplicationLauncher.h"

#include <AppKit/AppKit.h>

namespace macoshost {

bool launchApplication(const std::string& bundle) {
    @autoreleasepool {
        NSString* path = [NSString stringWithUTF8String:bundle.c_str()];
        if (!path)
            return false;
        // Deprecated since macOS 11; alone of its kind it answers at once whether it could.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
        return [NSWorkspace.sharedWorkspace launchApplication:path];
#pragma clang diagnostic pop
    }
}

} // namespace macoshost
