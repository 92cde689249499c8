// What the program uses of the AppKit classes and selectors, for the compile check on Linux; see
// CoreFoundation.h.
#pragma once
#include <Foundation/Foundation.h>
#include <sys/types.h>
#ifdef __OBJC__
NS_ASSUME_NONNULL_BEGIN
@interface NSResponder : NSObject
@end
// NS_TYPED_EXTENSIBLE_ENUM in the SDK: a plain text
typedef NSString* NSAppearanceName;
@interface NSAppearance : NSObject
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:
    (NSArray<NSAppearanceName>*)appearances CHECK_AVAILABLE(introduced = 10.14);
@end
@interface NSApplication : NSResponder
@property(readonly, strong) NSAppearance* effectiveAppearance CHECK_AVAILABLE(introduced=10.14);
@end
typedef double NSAppKitVersion;
#if defined(__cplusplus)
extern "C" {
#endif
extern NSAppearanceName const NSAppearanceNameAqua CHECK_AVAILABLE(introduced = 10.9);
extern NSAppearanceName const NSAppearanceNameDarkAqua CHECK_AVAILABLE(introduced = 10.14);
extern const NSAppKitVersion NSAppKitVersionNumber;
extern __kindof NSApplication* _Null_unspecified NSApp;
#if defined(__cplusplus)
}
#endif
@interface NSImage : NSObject
- (nullable instancetype)initWithContentsOfFile:(NSString*)fileName;
@end
@interface NSRunningApplication : NSObject
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:
    (NSString*)bundleIdentifier;
@property(nullable, readonly, copy) NSURL* bundleURL;
@property(readonly) pid_t processIdentifier;
@end
typedef NSUInteger NSWorkspaceIconCreationOptions;
@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
- (BOOL)setIcon:(nullable NSImage*)image
        forFile:(NSString*)fullPath
        options:(NSWorkspaceIconCreationOptions)options;
- (BOOL)launchApplication:(NSString*)appName CHECK_AVAILABLE(introduced = 10.0, deprecated = 11.0);
@end
NS_ASSUME_NONNULL_END
#endif
