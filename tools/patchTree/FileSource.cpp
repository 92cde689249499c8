#include "tools/patchTree/FileSource.h"

#include <sys/stat.h>

#include "tools/files/Descriptor.h"

namespace tools {

FileSource::FileSource(int file) : m_file(file) {
    struct stat status{};
    checked(::fstat(file, &status));
    if (!S_ISREG(status.st_mode))
        throw std::system_error(S_ISDIR(status.st_mode) ? EISDIR : EINVAL, std::generic_category());
    m_size = static_cast<std::uint64_t>(status.st_size);
}

void FileSource::read(std::uint64_t offset, std::span<std::byte> into) const {
    while (!into.empty()) {
        const ssize_t got = ::pread(m_file, into.data(), into.size(), static_cast<off_t>(offset));
        if (got < 0 && errno == EINTR)
            continue;
        if (checked(got) == 0)
            throw patch::FormatError("The file ends too early.");
        offset += static_cast<std::uint64_t>(got);
        into = into.subspan(static_cast<std::size_t>(got));
    }
}

} // namespace tools
