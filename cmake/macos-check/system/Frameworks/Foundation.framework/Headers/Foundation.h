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
@class NSString, NSArray<ObjectType>, NSDictionary<KeyType, ObjectType>, NSURL, NSError;
typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding { NSUTF8StringEncoding = 4, NSISOLatin1StringEncoding = 5 };
@interface NSString : NSObject
- (nullable instancetype)initWithBytes:(const void*)bytes
                                length:(NSUInteger)len
                              encoding:(NSStringEncoding)encoding;
- (BOOL)isEqualToString:(NSString*)aString;
+ (nullable instancetype)stringWithUTF8String:(const char*)s;
@property(nullable, readonly) const char* UTF8String;
@property(readonly, copy) NSString* stringByDeletingLastPathComponent;
@end
@interface NSArray<__covariant ObjectType> : NSObject
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nonnull])objects count:(NSUInteger)cnt;
@property(readonly) NSUInteger count;
- (ObjectType)objectAtIndex:(NSUInteger)i;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)i;
@end
@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject
- (nullable ObjectType)objectForKey:(KeyType)k;
- (nullable ObjectType)objectForKeyedSubscript:(KeyType)k;
@end
@interface NSURL : NSObject
+ (instancetype)fileURLWithPath:(NSString*)path;
@property(nullable, readonly, copy) NSString* path;
@end
@interface NSError : NSObject
@property(readonly, copy) NSString* localizedDescription;
@end
@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
- (nullable instancetype)initWithPath:(NSString*)path;
@property(nullable, readonly, copy) NSDictionary<NSString*, id>* infoDictionary;
@property(nullable, readonly, copy) NSString* resourcePath;
@property(readonly, copy) NSString* bundlePath;
@property(nullable, readonly, copy) NSString* executablePath;
@end
// NS_ENUM in the SDK: a real enumeration, so C++ refuses a bare integer
typedef enum NSSearchPathDirectory : NSUInteger NSSearchPathDirectory;
enum NSSearchPathDirectory : NSUInteger {
    NSApplicationDirectory = 1,
    NSLibraryDirectory = 5,
    NSDocumentDirectory = 9,
    NSDesktopDirectory = 12,
    NSApplicationSupportDirectory = 14
};
typedef NSUInteger NSSearchPathDomainMask;
enum : NSUInteger { NSUserDomainMask = 1, NSLocalDomainMask = 2 };
#if defined(__cplusplus)
extern "C"
#endif
    NSArray<NSString*>*
    NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory, NSSearchPathDomainMask,
                                        BOOL expandTilde);
#if defined(__cplusplus)
extern "C"
#endif
    NSString*
    NSTemporaryDirectory(void);
#if defined(__cplusplus)
extern "C"
#endif
    void
    NSLog(NSString* format, ...) __attribute__((format(__NSString__, 1, 2)));
NS_ASSUME_NONNULL_END
#endif
