#include "cp/private/RunningProcess.h"

#include <filesystem>
#include <system_error>

namespace Corvaldine::CP::Private {

std::string process_executable(const ProcessSerialNumber& process) {
    std::error_code error;
    const auto path = std::filesystem::read_symlink(
        "/proc/" + std::to_string(process.lowLongOfPSN) + "/exe", error);
    return error ? std::string() : path.string();
}

} // namespace Corvaldine::CP::Private
