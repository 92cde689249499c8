#include "tools/ditto/ArchiveFile.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace tools {

ArchiveFile::ArchiveFile(const std::string& path)
    // A pipe without a writer would block the opening for ever.
    : m_file(checked(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))) {
    struct stat status{};
    checked(::fstat(m_file.number(), &status));
    if (S_ISDIR(status.st_mode))
        throw std::system_error(EISDIR, std::generic_category());
    if (!S_ISREG(status.st_mode))
        throw std::system_error(ESPIPE, std::generic_category());
    m_size = static_cast<std::uint64_t>(status.st_size);
}

bool ArchiveFile::readAt(std::uint64_t offset, std::span<std::byte> into) const {
    while (!into.empty()) {
        const ssize_t got =
            ::pread(m_file.number(), into.data(), into.size(), static_cast<off_t>(offset));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        offset += static_cast<std::uint64_t>(got);
        into = into.subspan(static_cast<std::size_t>(got));
    }
    return true;
}

} // namespace tools
