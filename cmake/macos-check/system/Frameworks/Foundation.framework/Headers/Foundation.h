// What the program uses of the Foundation classes and selectors, for the compile check on Linux;
// see CoreFoundation.h.
#pragma once
#include <CoreFoundation/CoreFoundation.h>
#include <objc/NSObject.h>
#include <objc/objc.h>
#ifdef __OBJC__
#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
NS_ASSUME_NONNULL_BEGIN
@class NSString, NSArray<ObjectType>, NSURL;
typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding { NSUTF8StringEncoding = 4, NSISOLatin1StringEncoding = 5 };
@interface NSString : NSObject
- (nullable instancetype)initWithBytes:(const void*)bytes
                                length:(NSUInteger)len
                              encoding:(NSStringEncoding)encoding;
- (BOOL)isEqualToString:(NSString*)aString;
+ (nullable instancetype)stringWithUTF8String:(const char*)s;
@property(nullable, readonly) const char* UTF8String;
@end
@interface NSArray<__covariant ObjectType> : NSObject
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nonnull])objects count:(NSUInteger)cnt;
@property(readonly) NSUInteger count;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)i;
@end
@interface NSURL : NSObject
@property(nullable, readonly, copy) NSString* path;
@end
@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(nullable, readonly, copy) NSString* resourcePath;
@property(readonly, copy) NSString* bundlePath;
@property(nullable, readonly, copy) NSString* executablePath;
@end
#if defined(__cplusplus)
extern "C"
#endif
    void
    NSLog(NSString* format, ...) __attribute__((format(__NSString__, 1, 2)));
NS_ASSUME_NONNULL_END
#endif
