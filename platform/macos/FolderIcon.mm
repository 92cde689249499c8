#include "platform/macos/FolderIcon.h"

#include <AppKit/AppKit.h>

namespace macoshost {

bool setFolderIcon(const std::string& folder, const std::string& icnsFile) {
    @autoreleasepool {
        NSString* path = [NSString stringWithUTF8String:folder.c_str()];
        NSString* file = [NSString stringWithUTF8String:icnsFile.c_str()];
        NSImage* image = file ? [[NSImage alloc] initWithContentsOfFile:file] : nil;
        return path && image && [NSWorkspace.sharedWorkspace setIcon:image forFile:path options:0];
    }
}

} // namespace macoshost
