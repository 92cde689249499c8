#include "tools/files/NewFile.h"

#include <atomic>
#include <cstdint>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>

namespace tools {

namespace {

constexpr int kCreate = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;

} // namespace

NewFile::NewFile(int folder, const char* name, mode_t mode) : m_folder(folder), m_name(name) {
    m_file = Descriptor(::openat(folder, name, kCreate, mode));
    static std::atomic<std::uint32_t> number = 0;
    while (!m_file.isOpen() && errno == EEXIST) {
        m_temporaryName = ".ditto-" + std::to_string(::getpid()) + "-" + std::to_string(number++);
        m_file = Descriptor(::openat(folder, m_temporaryName.c_str(), kCreate, mode));
    }
    checked(m_file.number());
}

NewFile::~NewFile() {
    if (!m_kept && m_file.isOpen())
        ::unlinkat(m_folder, m_temporaryName.empty() ? m_name : m_temporaryName.c_str(), 0);
}

void NewFile::write(std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_file.number(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        bytes = bytes.subspan(static_cast<std::size_t>(checked(written)));
    }
}

void NewFile::setMode(mode_t mode) {
    // Asking costs a fraction of setting, and mostly there is nothing to set.
    struct stat status{};
    checked(::fstat(m_file.number(), &status));
    if ((status.st_mode & 07777) != mode)
        checked(::fchmod(m_file.number(), mode));
}

void NewFile::setTimes(const timespec& accessed, const timespec& modified) {
    const timespec times[2] = {accessed, modified};
    checked(::futimens(m_file.number(), times));
}

void NewFile::keep() {
    if (!m_temporaryName.empty())
        checked(::renameat(m_folder, m_temporaryName.c_str(), m_folder, m_name));
    m_kept = true;
}

} // namespace tools
