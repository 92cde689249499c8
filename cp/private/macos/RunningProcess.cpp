#include "cp/private/RunningProcess.h"

#include <filesystem>
#include <libproc.h>
#include <system_error>

namespace Corvaldine::CP::Private {

std::string process_executable(const ProcessSerialNumber& process) {
    char path[PROC_PIDPATHINFO_MAXSIZE];
    const int length = proc_pidpath(static_cast<int>(process.lowLongOfPSN), path, sizeof path);
    if (length <= 0)
        return {};
    std::error_code error;
    const auto resolved =
        std::filesystem::canonical(std::string(path, static_cast<std::size_t>(length)), error);
    return error ? std::string() : resolved.string();
}

} // namespace Corvaldine::CP::Private
