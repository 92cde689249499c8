// Which application bundle a process runs from, by what /proc shows of it. Used by
// ProcApplications.
#pragma once

#include <string>

namespace linuxhost {

/// The "X.app" folder in whose "Contents/MacOS" the executable of the process lies, absolute; empty
/// when it runs from none or has ended. A script counts as its interpreter's executable when the
/// interpreter is the one that its first line names. `process` is its folder ("/proc/123").
std::string bundleOfProcess(const std::string& process);

} // namespace linuxhost
