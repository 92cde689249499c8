#include "platform/posix/ToolResolver.h"

#include <unistd.h>

namespace posix {

ResolvedTool resolveTool(const std::string& tool, const std::string& ownToolsFolder) {
    if (ownToolsFolder.empty() || ::access(tool.c_str(), F_OK) == 0)
        return {tool};
    std::string own = ownToolsFolder + "/" + tool.substr(tool.rfind('/') + 1);
    if (::access(own.c_str(), X_OK) != 0)
        return {tool};
    return {std::move(own), true};
}

} // namespace posix
