// What the program uses of the security sessions.
#pragma once
#include <Security/Authorization.h>
#if defined(__cplusplus)
extern "C" {
#endif
typedef UInt32 SecuritySessionId;
enum : SecuritySessionId { noSecuritySession = 0, callerSecuritySession = (SecuritySessionId)-1 };
// CF_OPTIONS in the SDK: for C++ a plain integer beside an unnamed enumeration
typedef UInt32 SessionAttributeBits;
enum : SessionAttributeBits {
    sessionIsRoot = 0x0001,
    sessionHasGraphicAccess = 0x0010,
    sessionHasTTY = 0x0020,
    sessionIsRemote = 0x1000
};
OSStatus SessionGetInfo(SecuritySessionId session, SecuritySessionId* sessionId,
                        SessionAttributeBits* attributes);
#if defined(__cplusplus)
}
#endif
