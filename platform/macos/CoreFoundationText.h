// Core Foundation's texts as ours. Used by the adapters of this folder.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <optional>
#include <string>

namespace macoshost {

/// None for what has no form in UTF-8, as a half of a surrogate pair.
inline std::optional<std::string> utf8Of(CFStringRef text) {
    const CFRange all{.location = 0, .length = CFStringGetLength(text)};
    const auto convert = [&](UInt8* buffer, CFIndex size, CFIndex& used) {
        return CFStringGetBytes(text, all, kCFStringEncodingUTF8, 0, false, buffer, size, &used) ==
               all.length;
    };
    CFIndex size = 0;
    if (!convert(nullptr, 0, size))
        return std::nullopt;
    std::string utf8(static_cast<std::size_t>(size), '\0');
    if (!convert(reinterpret_cast<UInt8*>(utf8.data()), size, size))
        return std::nullopt;
    return utf8;
}

} // namespace macoshost
