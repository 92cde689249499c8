// What the program uses of the AppKit classes and selectors, for the compile check on Linux; see
// CoreFoundation.h.
#pragma once
#include <Foundation/Foundation.h>
#include <sys/types.h>
#ifdef __OBJC__
NS_ASSUME_NONNULL_BEGIN
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
@interface NSWorkspaceOpenConfiguration : NSObject
+ (instancetype)configuration;
@property BOOL activates;
@end
@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
- (BOOL)setIcon:(nullable NSImage*)image
        forFile:(NSString*)fullPath
        options:(NSWorkspaceIconCreationOptions)options;
- (BOOL)launchApplication:(NSString*)appName CHECK_AVAILABLE(introduced = 10.0, deprecated = 11.0);
- (void)openApplicationAtURL:(NSURL*)applicationURL
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^_Nullable)(NSRunningApplication* _Nullable app,
                                                NSError* _Nullable error))completionHandler
    CHECK_AVAILABLE(introduced = 10.15);
@end
NS_ASSUME_NONNULL_END
#endif
