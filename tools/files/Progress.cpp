#include "tools/files/Progress.h"

#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

namespace tools {

namespace {

constexpr std::chrono::steady_clock::duration kBetweenLines = std::chrono::milliseconds(50);

/// -1 without a usable one. Standard output and error belong to others.
int descriptorFromEnvironment() {
    const char* value = std::getenv("SCRIVEL_PROGRESS_FD"); // NOLINT(concurrency-mt-unsafe)
    if (value == nullptr)
        return -1;
    const std::string_view text = value;
    int number = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size() || number <= STDERR_FILENO)
        return -1;
    return number;
}

} // namespace

Progress::Progress() : m_descriptor(descriptorFromEnvironment()) {
    if (m_descriptor < 0)
        return;
    const int flags = ::fcntl(m_descriptor, F_GETFL);
    if (flags < 0 || ::fcntl(m_descriptor, F_SETFL, flags | O_NONBLOCK) < 0) {
        m_descriptor = -1;
        return;
    }
    std::signal(SIGPIPE, SIG_IGN);
}

void Progress::add(std::uint64_t bytes, std::uint64_t files) {
    if (!isWanted())
        return;
    m_done += bytes;
    m_files += files;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::int64_t next = m_nextLine;
    // Only the thread that moves the time on writes.
    if (now.count() >= next &&
        m_nextLine.compare_exchange_strong(next, (now + kBetweenLines).count()))
        tell();
}

void Progress::finish() {
    if (isWanted())
        tell();
}

void Progress::tell() {
    const std::string line = std::to_string(m_done) + ' ' + std::to_string(m_total) + ' ' +
                             std::to_string(m_files) + '\n';
    // A line that finds no room is lost; the next one tells more.
    [[maybe_unused]] const ssize_t written = ::write(m_descriptor, line.data(), line.size());
}

} // namespace tools
