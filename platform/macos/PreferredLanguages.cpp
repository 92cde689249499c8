#include "platform/macos/PreferredLanguages.h"

#include <CoreFoundation/CoreFoundation.h>
#include <utility>

#include "platform/macos/CoreFoundationObject.h"
#include "platform/macos/CoreFoundationText.h"

namespace macoshost {

std::vector<std::string> preferredLanguages() {
    const CoreFoundationObject<CFArrayRef> list(CFLocaleCopyPreferredLanguages());
    std::vector<std::string> languages;
    const CFIndex count = list ? CFArrayGetCount(list.get()) : 0;
    for (CFIndex i = 0; i < count; ++i) {
        const auto* tag = static_cast<CFStringRef>(CFArrayGetValueAtIndex(list.get(), i));
        if (auto language = utf8Of(tag))
            languages.push_back(std::move(*language));
    }
    return languages;
}

} // namespace macoshost
