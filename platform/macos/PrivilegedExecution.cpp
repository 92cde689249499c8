#include "platform/macos/PrivilegedExecution.h"

namespace macoshost {

OSStatus executeWithPrivileges(AuthorizationRef session, const char* tool, char* const* arguments,
                               std::FILE** stream) {
    // Deprecated since macOS 10.7 and exported to this day. What is meant to replace it, a service
    // of its own with administrator rights, has to be signed by a developer whom the system knows.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    return AuthorizationExecuteWithPrivileges(session, tool, kAuthorizationFlagDefaults, arguments,
                                              stream);
#pragma GCC diagnostic pop
}

} // namespace macoshost
