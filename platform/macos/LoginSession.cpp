#include "platform/macos/LoginSession.h"

#include <Security/AuthSession.h>

namespace macoshost {

bool hasGraphicSession() {
    SessionAttributeBits attributes{};
    return SessionGetInfo(callerSecuritySession, nullptr, &attributes) == errAuthorizationSuccess &&
           (attributes & sessionHasGraphicAccess) != 0;
}

} // namespace macoshost
