#include "platform/posix/RegularFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

#include "platform/posix/Descriptor.h"

namespace posix {

FileBytes readRegularFile(const std::string& path, std::size_t longest) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status{};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0)
        return {.error = errno, .bytes = {}};
    if (!S_ISREG(status.st_mode))
        return {.error = EINVAL, .bytes = {}};
    if (status.st_size > static_cast<off_t>(longest))
        return {.error = EFBIG, .bytes = {}};
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t have = 0;
    while (have < bytes.size()) {
        const ssize_t count = ::read(file.number(), bytes.data() + have, bytes.size() - have);
        if (count > 0)
            have += static_cast<std::size_t>(count);
        else if (count == 0) // cut short since it was opened
            break;
        else if (errno != EINTR)
            return {.error = errno, .bytes = {}};
    }
    bytes.resize(have);
    return {.error = 0, .bytes = std::move(bytes)};
}

} // namespace posix
