// What the program uses of the Launch Services and Folder Manager calls, for the compile check on
// Linux; see CoreFoundation.h.
#pragma once
#include <CoreFoundation/CoreFoundation.h>
#if defined(__cplusplus)
extern "C" {
#endif
typedef OptionBits LSRolesMask;
enum { kLSRolesNone = 1, kLSRolesViewer = 2, kLSRolesEditor = 4, kLSRolesShell = 8 };
static const LSRolesMask kLSRolesAll = 0xFFFFFFFF;
CFArrayRef LSCopyApplicationURLsForBundleIdentifier(CFStringRef bundleId, CFErrorRef* outError)
    CHECK_AVAILABLE(introduced = 10.10);
CFArrayRef LSCopyApplicationURLsForURL(CFURLRef url, LSRolesMask roles)
    CHECK_AVAILABLE(introduced = 10.3);
OSStatus LSRegisterURL(CFURLRef url, Boolean update) CHECK_AVAILABLE(introduced = 10.3);
struct FSRef {
    UInt8 hidden[80];
};
typedef struct FSRef FSRef;
typedef SInt16 FSVolumeRefNum;
enum { kUserDomain = -32763, kLocalDomain = -32765 };
enum { pathTooLongErr = -2110 };
OSErr FSFindFolder(FSVolumeRefNum, OSType folderType, Boolean create, FSRef* found)
    CHECK_AVAILABLE(introduced = 10.0, deprecated = 10.8);
OSStatus FSRefMakePath(const FSRef*, UInt8* path, UInt32 size)
    CHECK_AVAILABLE(introduced = 10.0, deprecated = 10.8);
#if defined(__cplusplus)
}
#endif
