// The few Core Foundation names that the program uses, declared for the compile check on Linux:
// names, types and constants alone. On a Mac the system's own header of this name is found; this
// folder is on no path there. A name is added when the program first uses it, as the system
// declares it: the kind of an enumeration and a deprecation count.
#pragma once
#include <Availability.h>
#include <MacTypes.h>
#include <TargetConditionals.h>
#include <stdint.h>
#ifdef __clang__
#define CHECK_AVAILABLE(...) __attribute__((availability(macos, __VA_ARGS__)))
#define CHECK_BRIDGED(t) __attribute__((objc_bridge(t)))
#else
#define CHECK_AVAILABLE(...)
#define CHECK_BRIDGED(t)
#endif
#if defined(__cplusplus)
extern "C" {
#endif
typedef const void* CFTypeRef;
typedef signed long CFIndex;
typedef struct {
    CFIndex location;
    CFIndex length;
} CFRange;
typedef const struct CHECK_BRIDGED(id) __CFAllocator* CFAllocatorRef;
typedef const struct CHECK_BRIDGED(NSString) __CFString* CFStringRef;
typedef const struct CHECK_BRIDGED(NSArray) __CFArray* CFArrayRef;
typedef const struct CHECK_BRIDGED(NSURL) __CFURL* CFURLRef;
typedef struct CHECK_BRIDGED(NSError) __CFError* CFErrorRef;
typedef UInt32 CFStringEncoding;
enum { kCFStringEncodingUTF8 = 0x08000100 };
enum CFURLPathStyle : CFIndex { kCFURLPOSIXPathStyle = 0, kCFURLHFSPathStyle = 1 };
typedef double CFTimeInterval;
// CF_TYPED_EXTENSIBLE_ENUM in the SDK: a plain text
typedef CFStringRef CFRunLoopMode;
enum CFRunLoopRunResult : SInt32 {
    kCFRunLoopRunFinished = 1,
    kCFRunLoopRunStopped = 2,
    kCFRunLoopRunTimedOut = 3,
    kCFRunLoopRunHandledSource = 4
};
extern const CFAllocatorRef kCFAllocatorDefault;
extern const CFRunLoopMode kCFRunLoopDefaultMode;
void CFRelease(CFTypeRef cf);
CFTypeRef CFRetain(CFTypeRef cf);
CFIndex CFArrayGetCount(CFArrayRef a);
const void* CFArrayGetValueAtIndex(CFArrayRef a, CFIndex i);
CFStringRef CFStringCreateWithBytes(CFAllocatorRef, const UInt8* bytes, CFIndex n, CFStringEncoding,
                                    Boolean external);
CFIndex CFStringGetLength(CFStringRef);
CFIndex CFStringGetBytes(CFStringRef, CFRange, CFStringEncoding, UInt8 lossByte, Boolean external,
                         UInt8* buffer, CFIndex max, CFIndex* used);
CFArrayRef CFLocaleCopyPreferredLanguages(void) CHECK_AVAILABLE(introduced = 10.5);
CFRunLoopRunResult CFRunLoopRunInMode(CFRunLoopMode mode, CFTimeInterval seconds,
                                      Boolean returnAfterSourceHandled);
CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef, const UInt8* buf, CFIndex n,
                                                 Boolean isDirectory);
CFStringRef CFURLCopyFileSystemPath(CFURLRef, CFURLPathStyle);
#if defined(__cplusplus)
}
#endif
