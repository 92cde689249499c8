// Finds the program behind a tool's standard name. A system without "/usr/bin/ditto" or
// "/usr/bin/chflags" gets the program's own, which lie in one folder beside the executable.
// Used by the adapters that start tools. Looks at the disk each time; holds no state.
#pragma once

#include <string>

namespace posix {

struct ResolvedTool {
    std::string path;
    /// One of our own, which can report its progress.
    bool isOwn = false;
};

/// `tool` itself where it exists; else the file of the same name in `ownToolsFolder` where that
/// exists; else `tool` again, which then can't be started. An empty folder: none of our own.
ResolvedTool resolveTool(const std::string& tool, const std::string& ownToolsFolder);

} // namespace posix
