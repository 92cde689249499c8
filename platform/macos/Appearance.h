// How the window toolkit looks and which version it is. Used by the composition root, on the main
// thread.
#pragma once

namespace macoshost {

/// Has the application a dark appearance now, the user's or its own? False before there is an
/// application object.
bool isDark();

/// The toolkit's version as it counts them (1671 is macOS 10.14).
double toolkitVersion();

} // namespace macoshost
