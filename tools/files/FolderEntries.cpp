#include "tools/files/FolderEntries.h"

#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>

#include "tools/files/Descriptor.h"

namespace tools {

FolderEntries::FolderEntries(int folder) {
    Descriptor own(checked(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    m_stream.reset(::fdopendir(own.number()));
    if (!m_stream)
        throwErrno();
    own.release();
}

std::optional<FolderEntries::Entry> FolderEntries::next() {
    for (;;) {
        errno = 0;
        // The stream is this object's own, so no other thread reads it.
        const dirent* entry = ::readdir(m_stream.get()); // NOLINT(concurrency-mt-unsafe)
        if (entry == nullptr) {
            if (errno != 0)
                throwErrno();
            return std::nullopt;
        }
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0)
            continue;
        if (entry->d_type != DT_UNKNOWN)
            return Entry{entry->d_name, entry->d_type};
        struct stat status{};
        checked(::fstatat(descriptor(), entry->d_name, &status, AT_SYMLINK_NOFOLLOW));
        return Entry{entry->d_name, static_cast<unsigned char>(IFTODT(status.st_mode))};
    }
}

} // namespace tools
