#include "cp/private/RunningProcess.h"

#include <string_view>
#include <unistd.h>

namespace Corvaldine::CP::Private {

std::uint32_t process_number() {
    return static_cast<std::uint32_t>(::getpid());
}

std::string bundle_of_executable(const std::string& executable) {
    constexpr std::string_view kInside = ".app/Contents/MacOS/";
    const std::size_t at = executable.rfind(kInside);
    // The executable lies directly in the folder, and the bundle has a name.
    if (at == std::string::npos || at == 0 || executable[at - 1] == '/' ||
        at + kInside.size() == executable.size() ||
        executable.find('/', at + kInside.size()) != std::string::npos)
        return {};
    return executable.substr(0, at + std::string_view(".app").size());
}

} // namespace Corvaldine::CP::Private
