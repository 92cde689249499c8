// Core Foundation's objects for tests on another system: strings, URLs and lists that count their
// references. What is used after its last release is found by AddressSanitizer.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <optional>
#include <string>
#include <vector>

namespace fakes {

class CoreFoundation {
  public:
    /// Objects with one reference, the caller's. A string that is `broken` has no form in UTF-8; a
    /// URL may have no path; a list takes over its members.
    CFStringRef newString(const std::string& utf8, bool broken = false);
    CFURLRef newUrl(const std::optional<std::string>& path, bool broken = false);
    CFArrayRef newList(const std::vector<CFURLRef>& urls);
    CFArrayRef newTextList(const std::vector<CFStringRef>& strings);

    std::string textOf(CFStringRef string) const;
    std::string pathOf(CFURLRef url) const;

    /// Objects that somebody still holds; calls of CFRetain and CFRelease so far.
    int living = 0;
    int retains = 0;
    int releases = 0;
};

/// The one that the functions work on. A test that uses it begins with a fresh one.
CoreFoundation& coreFoundation();

} // namespace fakes
