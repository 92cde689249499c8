#include "tests/macos/FakeCoreFoundation.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace fakes {

namespace {

struct Object {
    int references = 1;
    std::optional<std::string> text = {}; ///< a string's text, a URL's path
    bool broken = false;
    std::vector<const void*> members = {};
};

Object& objectOf(const void* reference) {
    return *static_cast<Object*>(const_cast<void*>(reference));
}

template <class Ref>
Ref made(Object object) {
    ++coreFoundation().living;
    return reinterpret_cast<Ref>(new Object(std::move(object)));
}

/// Units of UTF-16, as Core Foundation counts.
CFIndex unitsOf(const std::string& utf8) {
    return std::ranges::count_if(utf8, [](char byte) { return (byte & 0xC0) != 0x80; }) +
           std::ranges::count_if(utf8, [](char byte) { return (byte & 0xF8) == 0xF0; });
}

std::string textFrom(const UInt8* bytes, CFIndex size) {
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

} // namespace

CoreFoundation& coreFoundation() {
    static CoreFoundation one;
    return one;
}

CFStringRef CoreFoundation::newString(const std::string& utf8, bool broken) {
    return made<CFStringRef>({.text = utf8, .broken = broken});
}

CFURLRef CoreFoundation::newUrl(const std::optional<std::string>& path, bool broken) {
    return made<CFURLRef>({.text = path, .broken = broken});
}

CFArrayRef CoreFoundation::newList(const std::vector<CFURLRef>& urls) {
    return made<CFArrayRef>({.members = {urls.begin(), urls.end()}});
}

CFArrayRef CoreFoundation::newTextList(const std::vector<CFStringRef>& strings) {
    return made<CFArrayRef>({.members = {strings.begin(), strings.end()}});
}

std::string CoreFoundation::textOf(CFStringRef string) const {
    return objectOf(string).text.value();
}

std::string CoreFoundation::pathOf(CFURLRef url) const {
    return objectOf(url).text.value();
}

} // namespace fakes

using fakes::coreFoundation;
using fakes::objectOf;

extern "C" {

const CFAllocatorRef kCFAllocatorDefault = nullptr;

CFTypeRef CFRetain(CFTypeRef cf) {
    ++coreFoundation().retains;
    ++objectOf(cf).references;
    return cf;
}

void CFRelease(CFTypeRef cf) {
    ++coreFoundation().releases;
    fakes::Object& object = objectOf(cf);
    if (--object.references > 0)
        return;
    for (const void* member : object.members)
        CFRelease(member);
    --coreFoundation().living;
    delete &object;
}

CFIndex CFArrayGetCount(CFArrayRef a) {
    return static_cast<CFIndex>(objectOf(a).members.size());
}

const void* CFArrayGetValueAtIndex(CFArrayRef a, CFIndex i) {
    return objectOf(a).members.at(static_cast<std::size_t>(i));
}

// Bytes of 0xFF are in no text in UTF-8.
CFStringRef CFStringCreateWithBytes(CFAllocatorRef, const UInt8* bytes, CFIndex n,
                                    CFStringEncoding encoding, Boolean external) {
    EXPECT_EQ(encoding, kCFStringEncodingUTF8);
    EXPECT_FALSE(external);
    const std::string text = fakes::textFrom(bytes, n);
    return text.find('\xFF') == std::string::npos ? coreFoundation().newString(text) : nullptr;
}

CFIndex CFStringGetLength(CFStringRef string) {
    return fakes::unitsOf(coreFoundation().textOf(string));
}

CFIndex CFStringGetBytes(CFStringRef string, CFRange range, CFStringEncoding encoding, UInt8,
                         Boolean external, UInt8* buffer, CFIndex max, CFIndex* used) {
    EXPECT_EQ(encoding, kCFStringEncodingUTF8);
    EXPECT_FALSE(external);
    EXPECT_EQ(range.location, 0);
    EXPECT_EQ(range.length, CFStringGetLength(string));
    const std::string text = coreFoundation().textOf(string);
    if (buffer && max < static_cast<CFIndex>(text.size()))
        return 0;
    if (buffer)
        std::ranges::copy(text, buffer);
    *used = static_cast<CFIndex>(text.size());
    return objectOf(string).broken ? range.length - 1 : range.length;
}

CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef, const UInt8* buf, CFIndex n,
                                                 Boolean isDirectory) {
    EXPECT_FALSE(isDirectory);
    return n > 0 ? coreFoundation().newUrl(fakes::textFrom(buf, n)) : nullptr;
}

CFStringRef CFURLCopyFileSystemPath(CFURLRef url, CFURLPathStyle style) {
    EXPECT_EQ(style, kCFURLPOSIXPathStyle);
    const fakes::Object& object = objectOf(url);
    return object.text ? coreFoundation().newString(*object.text, object.broken) : nullptr;
}

} // extern "C"
