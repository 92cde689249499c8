#include "tools/files/ExtendedAttributes.h"

#include <cerrno>

#include <sys/stat.h>

namespace tools {

// Systems ask whether the file may be written, not whether it was opened for writing: a
// write-protected one is opened up for as long as it takes.
int setAttribute(int file, const std::string& name, std::span<const std::byte> value) {
    const int error = putAttribute(file, name, value);
    struct stat status{};
    if (error != EACCES || ::fstat(file, &status) != 0 || (status.st_mode & S_IWUSR) != 0)
        return error;
    const mode_t mode = status.st_mode & 07777;
    if (::fchmod(file, mode | S_IWUSR) != 0)
        return error;
    const int second = putAttribute(file, name, value);
    ::fchmod(file, mode);
    return second;
}

} // namespace tools
