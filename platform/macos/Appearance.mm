#include "platform/macos/Appearance.h"

#include <AppKit/AppKit.h>

namespace macoshost {

bool isDark() {
    @autoreleasepool {
        // The nearest of the two: there are others, for more contrast among them.
        NSAppearanceName name = [NSApp.effectiveAppearance
            bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
        return [name isEqualToString:NSAppearanceNameDarkAqua];
    }
}

double toolkitVersion() {
    return NSAppKitVersionNumber;
}

} // namespace macoshost
