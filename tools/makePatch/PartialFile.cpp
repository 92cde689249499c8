#include "tools/makePatch/PartialFile.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tools/files/FileError.h"

namespace tools {

namespace {

// What a signal removes. Filled before the handler is set, and empty again before it is taken back.
std::array<char, 8192> s_partial{};
constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};

extern "C" void removePartial(int signal) {
    ::unlink(s_partial.data());
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

void onSignals(void (*handler)(int)) {
    for (const int signal : kSignals) {
        struct sigaction action{};
        ::sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_IGN)
            continue;
        action.sa_handler = handler;
        ::sigaction(signal, &action, nullptr);
    }
}

/// Held back while a file exists whose name the handler does not know yet.
class SignalsHeldBack {
  public:
    SignalsHeldBack() {
        sigset_t held;
        sigemptyset(&held); // a macro on some systems
        for (const int signal : kSignals)
            sigaddset(&held, signal);
        ::pthread_sigmask(SIG_BLOCK, &held, &m_before);
    }
    ~SignalsHeldBack() { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    SignalsHeldBack(const SignalsHeldBack&) = delete;
    SignalsHeldBack& operator=(const SignalsHeldBack&) = delete;

  private:
    sigset_t m_before{};
};

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

void writeAll(int file, const std::string& path, std::uint64_t offset, patch::View bytes) {
    while (!bytes.empty()) {
        const ssize_t written =
            ::pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            throw FileError(path, errno);
        offset += static_cast<std::uint64_t>(written);
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
}

} // namespace

PartialFile::PartialFile(std::string path) : m_path(std::move(path)) {
    struct stat status{};
    if (::stat(m_path.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
        throw FileError(m_path, S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
    m_partial = folderOf(m_path) + ".makePatch-" + std::to_string(::getpid()) + ".partial";
    if (m_partial.size() >= s_partial.size())
        throw FileError(m_path, ENAMETOOLONG);
    const SignalsHeldBack held;
    m_file = Descriptor(::open(m_partial.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!m_file.isOpen())
        throw FileError(m_path, errno);
    std::memcpy(s_partial.data(), m_partial.c_str(), m_partial.size() + 1);
    onSignals(removePartial);
    std::signal(SIGXFSZ, SIG_IGN); // an error of the call instead
}

PartialFile::~PartialFile() {
    const SignalsHeldBack held;
    if (m_file.isOpen())
        ::unlink(m_partial.c_str());
    onSignals(SIG_DFL);
}

void PartialFile::write(std::uint64_t offset, patch::View bytes) {
    writeAll(m_file.number(), m_path, offset, bytes);
}

void PartialFile::keep() {
    const SignalsHeldBack held;
    if (::fsync(m_file.number()) != 0 || ::rename(m_partial.c_str(), m_path.c_str()) != 0)
        throw FileError(m_path, errno);
    m_file.close();
}

Spool::Spool(const std::string& path) : m_path(path) {
    std::string name = folderOf(path) + ".makePatch-XXXXXX";
    const SignalsHeldBack held;
    m_file = Descriptor(::mkostemp(name.data(), O_CLOEXEC));
    if (!m_file.isOpen())
        throw FileError(path, errno);
    ::unlink(name.c_str());
}

std::uint64_t Spool::add(patch::View bytes) {
    std::uint64_t offset = 0;
    {
        const std::lock_guard lock(m_mutex);
        offset = m_size;
        m_size += bytes.size();
    }
    writeAll(m_file.number(), m_path, offset, bytes);
    return offset;
}

} // namespace tools
