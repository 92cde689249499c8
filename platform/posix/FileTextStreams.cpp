#include "platform/posix/FileTextStreams.h"

#include <cerrno>
#include <fcntl.h>

#include "platform/posix/Descriptor.h"

namespace posix {

namespace {

/// A signal that arrives meanwhile is no failure.
auto untilNotInterrupted(auto call) {
    auto answer = call();
    while (answer < 0 && errno == EINTR)
        answer = call();
    return answer;
}

} // namespace

bool FileTextStreams::append(const std::string& path, std::string_view bytes) {
    const Descriptor file(untilNotInterrupted(
        [&] { return ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666); }));
    if (!file.isOpen())
        return false;
    const auto written =
        untilNotInterrupted([&] { return ::write(file.number(), bytes.data(), bytes.size()); });
    return written == static_cast<ssize_t>(bytes.size());
}

std::size_t FileTextStreams::read(int descriptor, std::span<char> buffer) {
    const auto count =
        untilNotInterrupted([&] { return ::read(descriptor, buffer.data(), buffer.size()); });
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

} // namespace posix
