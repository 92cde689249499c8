#include "platform/macos/MainBundle.h"

#include <Foundation/Foundation.h>

namespace macoshost {

namespace {

std::string textOf(NSString* text, const std::string& otherwise) {
    const char* utf8 = text.UTF8String;
    return utf8 && *utf8 ? utf8 : otherwise;
}

std::string executable() {
    @autoreleasepool {
        return textOf(NSBundle.mainBundle.executablePath, "");
    }
}

} // namespace

MainBundle::MainBundle() : m_onDisk(executable()) {
    @autoreleasepool {
        // Of a program in no bundle these are the folder that it lies in.
        NSBundle* bundle = NSBundle.mainBundle;
        m_bundle = textOf(bundle.bundlePath, m_onDisk.mainBundle());
        m_resourceFolder = textOf(bundle.resourcePath, m_onDisk.mainResourceFolder());
    }
}

} // namespace macoshost
