#include "platform/posix/ChildStreams.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <poll.h>
#include <sys/ioctl.h>
#include <vector>

#include "platform/posix/ProcessSystem.h"

namespace posix {

namespace {

/// Where the system can't tell when a child ends, it is asked this often (milliseconds).
constexpr int kPollInterval = 20;

/// A window that is drawn this often seems alive.
constexpr int kMeanwhileInterval = 15;

using Clock = std::chrono::steady_clock;
using Buffer = std::array<char, 65536>;

/// Calls somebody as often as a window has to be drawn.
class Heartbeat {
  public:
    explicit Heartbeat(const std::function<void()>& beat) : m_beat(beat) {}

    void beatWhenDue() {
        if (!m_beat || Clock::now() < m_next)
            return;
        m_beat();
        m_next = Clock::now() + std::chrono::milliseconds(kMeanwhileInterval);
    }

  private:
    const std::function<void()>& m_beat;
    Clock::time_point m_next = Clock::now();
};

/// One read of at most `limit` bytes; 0 at the end and after an error.
std::size_t readSome(int descriptor, Buffer& buffer, std::size_t limit) {
    ssize_t count = 0;
    do
        count = ::read(descriptor, buffer.data(), std::min(limit, buffer.size()));
    while (count < 0 && errno == EINTR);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

/// One read of at most `limit` bytes; closes the stream at its end.
std::size_t takeSome(ChildStream& stream, Buffer& buffer, std::size_t limit) {
    const std::size_t count = readSome(stream.reading.number(), buffer, limit);
    if (count > 0)
        stream.take({buffer.data(), count});
    else
        stream.reading.close();
    return count;
}

/// What stands in the pipe now and no more: a process left behind may go on writing for ever.
void takeTheRest(ChildStream& stream, Buffer& buffer) {
    int present = 0;
    if (!stream.reading.isOpen() || ::ioctl(stream.reading.number(), FIONREAD, &present) != 0)
        return;
    auto left = static_cast<std::size_t>(std::max(present, 0));
    while (left > 0 && stream.reading.isOpen())
        left -= takeSome(stream, buffer, left);
}

} // namespace

int waitTakingIn(ChildProcess& child, std::span<ChildStream> streams,
                 const std::function<void()>& meanwhile) {
    Buffer buffer;
    const auto open = [](const ChildStream& stream) { return stream.reading.isOpen(); };
    const auto watches = [&] { return meanwhile || std::ranges::any_of(streams, open); };
    const Descriptor end = watches() ? watchEnd(child.pid()) : Descriptor();
    std::vector<pollfd> waiting(streams.size() + 1);
    Heartbeat heartbeat(meanwhile);
    while (watches()) {
        heartbeat.beatWhenDue();
        for (std::size_t i = 0; i < streams.size(); ++i)
            waiting[i] = {streams[i].reading.number(), POLLIN, 0};
        waiting.back() = {end.number(), POLLIN, 0};
        const int timeout = meanwhile ? kMeanwhileInterval : end.isOpen() ? -1 : kPollInterval;
        if (::poll(waiting.data(), waiting.size(), timeout) < 0) {
            if (errno == EINTR)
                continue;
            break;
        }
        if (end.isOpen() ? waiting.back().revents != 0 : child.hasEnded())
            break;
        for (std::size_t i = 0; i < streams.size(); ++i)
            if (waiting[i].revents != 0)
                takeSome(streams[i], buffer, buffer.size());
    }
    const int status = child.wait();
    for (ChildStream& stream : streams) {
        takeTheRest(stream, buffer);
        stream.reading.close();
    }
    if (meanwhile)
        meanwhile();
    return status;
}

void takeInToTheEnd(int descriptor, const std::function<void(std::string_view)>& take,
                    const std::function<void()>& meanwhile) {
    Buffer buffer;
    Heartbeat heartbeat(meanwhile);
    pollfd waiting{descriptor, POLLIN, 0};
    for (;;) {
        heartbeat.beatWhenDue();
        // Only an answer of 0 says that nothing is there yet; after an error the read tells.
        if (meanwhile && ::poll(&waiting, 1, kMeanwhileInterval) == 0)
            continue;
        const std::size_t count = readSome(descriptor, buffer, buffer.size());
        if (count == 0)
            break;
        if (take)
            take({buffer.data(), count});
    }
    if (meanwhile)
        meanwhile();
}

} // namespace posix
