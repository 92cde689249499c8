// Starting a tool as administrator: the one deprecated call of Authorization Services, alone, so
// that what takes its place one day takes the place of this file. Used by AuthorizationServices
// only; docs/adr/0014 says why it is used. Keeps nothing and reads nothing.
#pragma once

#include <Security/Authorization.h>
#include <cstdio>

namespace macoshost {

/// Starts the tool at `tool`, with default flags, by the rights of `session`, which must have been
/// granted. `arguments` come after the tool's name and end with a null pointer. Answers
/// errAuthorizationSuccess exactly when the tool was started; `*stream` is then both its standard
/// output, to read, and its standard input, to write, and the caller's to close. Its standard error
/// is the program's. Returns without waiting for the tool, whose process stays unreaped until this
/// program ends: nobody is told its number.
[[nodiscard]] OSStatus executeWithPrivileges(AuthorizationRef session, const char* tool,
                                             char* const* arguments, std::FILE** stream);

} // namespace macoshost
