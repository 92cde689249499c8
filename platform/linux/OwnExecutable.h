// Where this program's executable lies, for the composition root.
#pragma once

#include <string>

namespace linuxhost {

/// Absolute, links resolved, also when it was called by a relative name or has been replaced on
/// disk since. Empty when the system does not say.
std::string ownExecutable();

/// What the link at `path` ("/proc/1/exe", "/proc/1/cwd") says, without the mark of a file that was
/// deleted since; empty when it can't be read.
std::string readProcessLink(const std::string& path);

} // namespace linuxhost
