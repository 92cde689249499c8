// What the program uses of Authorization Services.
#pragma once
#include <CoreFoundation/CoreFoundation.h>
#include <stdio.h>
#if defined(__cplusplus)
extern "C" {
#endif
typedef const struct AuthorizationOpaqueRef* AuthorizationRef;
typedef const char* AuthorizationString;
typedef UInt32 AuthorizationFlags;
enum {
    kAuthorizationFlagDefaults = 0,
    kAuthorizationFlagInteractionAllowed = 1,
    kAuthorizationFlagExtendRights = 2,
    kAuthorizationFlagPartialRights = 4,
    kAuthorizationFlagDestroyRights = 8,
    kAuthorizationFlagPreAuthorize = 16
};
enum {
    errAuthorizationSuccess = 0,
    errAuthorizationInvalidRef = -60002,
    errAuthorizationDenied = -60005,
    errAuthorizationCanceled = -60006,
    errAuthorizationToolExecuteFailure = -60031
};
#define kAuthorizationEmptyEnvironment NULL
typedef struct {
    AuthorizationString name;
    size_t valueLength;
    void* value;
    UInt32 flags;
} AuthorizationItem;
typedef struct {
    UInt32 count;
    AuthorizationItem* items;
} AuthorizationItemSet;
typedef AuthorizationItemSet AuthorizationRights;
typedef AuthorizationItemSet AuthorizationEnvironment;
OSStatus AuthorizationCreate(const AuthorizationRights*, const AuthorizationEnvironment*,
                             AuthorizationFlags, AuthorizationRef*);
OSStatus AuthorizationFree(AuthorizationRef, AuthorizationFlags);
OSStatus AuthorizationCopyRights(AuthorizationRef, const AuthorizationRights*,
                                 const AuthorizationEnvironment*, AuthorizationFlags,
                                 AuthorizationRights**);
OSStatus AuthorizationExecuteWithPrivileges(AuthorizationRef, const char* pathToTool,
                                            AuthorizationFlags options, char* const* arguments,
                                            FILE** communicationsPipe)
    CHECK_AVAILABLE(introduced = 10.1, deprecated = 10.7);
#if defined(__cplusplus)
}
#endif
