#include "platform/posix/StagedFile.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <random>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace posix {

namespace {

constexpr int kMostTries = 100;

// Hidden, and skipped by the desktop as what belongs to another file.
std::string nameBeside(const std::string& path) {
    std::random_device random;
    char name[32];
    std::snprintf(name, sizeof name, "._scrivel.%08x%08x", random(), random());
    return path.substr(0, path.rfind('/') + 1) + name;
}

int writeAll(int file, std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written >= 0)
            bytes = bytes.subspan(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            return errno;
    }
    while (::fsync(file) != 0)
        if (errno != EINTR)
            return errno == EINVAL ? 0 : errno; // a file system without anything to synchronise
    return 0;
}

// An administrator's run must not take the file away from its user.
void takeOwnerAndMode(int file, const std::string& from) {
    struct stat old{};
    if (::lstat(from.c_str(), &old) != 0 || !S_ISREG(old.st_mode))
        return;
    if (::fchown(file, old.st_uid, old.st_gid) == 0)
        ::fchmod(file, old.st_mode & 0777);
}

// The file under a second name. Where the file system has no hard links it is renamed, so that its
// own name is free for a moment.
int moveAside(const std::string& path, const std::string& backup) {
    if (::linkat(AT_FDCWD, path.c_str(), AT_FDCWD, backup.c_str(), 0) == 0)
        return 0;
    return ::rename(path.c_str(), backup.c_str()) == 0 ? 0 : errno;
}

void bringBack(const std::string& backup, const std::string& path) {
    ::rename(backup.c_str(), path.c_str());
    // Renaming does nothing when both names are links to one file.
    ::unlink(backup.c_str());
}

} // namespace

StagedFile::StagedFile(std::string path, mode_t newMode)
    : m_path(std::move(path)), m_newMode(newMode) {}

StagedFile::~StagedFile() {
    if (!m_temporary.empty())
        ::unlink(m_temporary.c_str());
    if (m_committed && !m_backup.empty())
        bringBack(m_backup, m_path);
    else if (m_committed)
        ::unlink(m_path.c_str());
}

int StagedFile::write(std::span<const std::byte> bytes) {
    int file = -1;
    for (int tries = 0; file < 0; ++tries) {
        m_temporary = nameBeside(m_path);
        file = ::open(m_temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                      m_newMode);
        if (file < 0 && errno != EINTR && (errno != EEXIST || tries == kMostTries)) {
            m_temporary.clear();
            return errno;
        }
    }
    takeOwnerAndMode(file, m_path);
    const int error = writeAll(file, bytes);
    // The descriptor is gone also when closing was interrupted.
    const int closed = ::close(file) == 0 || errno == EINTR ? 0 : errno;
    return error != 0 ? error : closed;
}

int StagedFile::commit() {
    struct stat old{};
    if (::lstat(m_path.c_str(), &old) == 0) {
        if (S_ISDIR(old.st_mode))
            return EISDIR;
        const std::string backup = nameBeside(m_path);
        if (const int error = moveAside(m_path, backup))
            return error;
        m_backup = backup;
    }
    if (::rename(m_temporary.c_str(), m_path.c_str()) != 0) {
        const int error = errno;
        if (!m_backup.empty())
            bringBack(std::exchange(m_backup, {}), m_path);
        return error;
    }
    m_temporary.clear();
    m_committed = true;
    return 0;
}

int StagedFile::replace() {
    if (::rename(m_temporary.c_str(), m_path.c_str()) != 0)
        return errno;
    m_temporary.clear();
    return 0;
}

void StagedFile::keep() {
    if (!m_backup.empty())
        ::unlink(std::exchange(m_backup, {}).c_str());
    m_committed = false;
}

} // namespace posix
