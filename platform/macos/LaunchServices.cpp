#include "platform/macos/LaunchServices.h"

#include <CoreServices/CoreServices.h>

#include "platform/macos/CoreFoundationObject.h"
#include "platform/macos/CoreFoundationText.h"

namespace macoshost {

namespace {

using String = CoreFoundationObject<CFStringRef>;
using Url = CoreFoundationObject<CFURLRef>;
using UrlList = CoreFoundationObject<CFArrayRef>;

const UInt8* bytesOf(std::string_view text) {
    return reinterpret_cast<const UInt8*>(text.data());
}

CFIndex sizeOf(std::string_view text) {
    return static_cast<CFIndex>(text.size());
}

std::optional<std::string> pathOf(CFURLRef url) {
    const String path(CFURLCopyFileSystemPath(url, kCFURLPOSIXPathStyle));
    return path ? utf8Of(path.get()) : std::nullopt;
}

/// Takes the list over.
ApplicationPaths pathsOf(UrlList urls) {
    if (!urls)
        return std::nullopt;
    std::vector<std::string> paths;
    const CFIndex count = CFArrayGetCount(urls.get());
    for (CFIndex i = 0; i < count; ++i)
        if (auto path = pathOf(static_cast<CFURLRef>(CFArrayGetValueAtIndex(urls.get(), i))))
            paths.push_back(std::move(*path));
    return paths;
}

} // namespace

// Both calls are deprecated by newer systems in favour of NSWorkspace's, which answer an empty list
// where these answer none: the difference between a kind of document that nobody opens and a list
// that happens to be empty would be lost.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

ApplicationPaths applicationsWithIdentifier(std::string_view bundleIdentifier) {
    const String identifier(CFStringCreateWithBytes(kCFAllocatorDefault, bytesOf(bundleIdentifier),
                                                    sizeOf(bundleIdentifier), kCFStringEncodingUTF8,
                                                    false));
    if (!identifier)
        return std::nullopt;
    return pathsOf(UrlList(LSCopyApplicationURLsForBundleIdentifier(identifier.get(), nullptr)));
}

ApplicationPaths applicationsForDocument(std::string_view document) {
    const Url url(CFURLCreateFromFileSystemRepresentation(kCFAllocatorDefault, bytesOf(document),
                                                          sizeOf(document), false));
    if (!url)
        return std::nullopt;
    return pathsOf(UrlList(LSCopyApplicationURLsForURL(url.get(), kLSRolesAll)));
}

#pragma GCC diagnostic pop

} // namespace macoshost
