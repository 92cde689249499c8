#include "platform/linux/OwnExecutable.h"

#include <climits>
#include <string_view>
#include <unistd.h>

namespace linuxhost {

std::string ownExecutable() {
    return readProcessLink("/proc/self/exe");
}

std::string readProcessLink(const std::string& path) {
    constexpr std::string_view kDeleted = " (deleted)";
    std::string target(PATH_MAX, '\0');
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    target.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    if (target.ends_with(kDeleted))
        target.resize(target.size() - kDeleted.size());
    return target;
}

} // namespace linuxhost
