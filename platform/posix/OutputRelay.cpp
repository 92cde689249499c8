#include "platform/posix/OutputRelay.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <string>
#include <string_view>
#include <thread>

#include "platform/posix/ChildStreams.h"

namespace posix {

namespace {

/// Holds back every signal on this thread and on those it makes meanwhile: the signals belong to
/// the program's other threads.
class SignalsBlocked {
  public:
    SignalsBlocked() {
        sigset_t all;
        sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    SignalsBlocked(const SignalsBlocked&) = delete;
    SignalsBlocked& operator=(const SignalsBlocked&) = delete;
    ~SignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

  private:
    sigset_t m_before{};
};

/// Writes all of it; closes the descriptor when nobody reads any more.
void pass(Descriptor& writing, std::string_view bytes) {
    while (!bytes.empty() && writing.isOpen()) {
        const ssize_t count = ::write(writing.number(), bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            writing.close();
    }
}

/// Reads what the reader left and joins the thread, on every way out, an exception included.
class ToTheEnd {
  public:
    ToTheEnd(const Descriptor& reading, std::thread& thread)
        : m_reading(reading), m_thread(thread) {}
    ToTheEnd(const ToTheEnd&) = delete;
    ToTheEnd& operator=(const ToTheEnd&) = delete;
    ~ToTheEnd() {
        std::array<char, 4096> rest{};
        ssize_t count = 0;
        do
            count = ::read(m_reading.number(), rest.data(), rest.size());
        while (count > 0 || (count < 0 && errno == EINTR));
        m_thread.join();
    }

  private:
    const Descriptor& m_reading;
    std::thread& m_thread;
};

} // namespace

/// Calls `reader`, while a thread of its own fills the pipe that it reads.
void OutputRelay::read(const std::function<void(int)>& reader, const std::function<void()>& fill) {
    std::thread pump;
    {
        const SignalsBlocked blocked;
        pump = std::thread([this, &fill] {
            fill();
            m_toReader.writing.close();
        });
    }
    const ToTheEnd toTheEnd(m_toReader.reading, pump);
    reader(m_toReader.reading.number());
}

int OutputRelay::relay(ChildProcess& child, const std::function<void(int)>& reader,
                       const std::function<void()>& meanwhile) {
    m_fromChild.writing.close();
    std::string kept;
    std::array streams{ChildStream{std::move(m_fromChild.reading), [&](std::string_view bytes) {
                                       if (meanwhile)
                                           kept += bytes;
                                       else
                                           pass(m_toReader.writing, bytes);
                                   }}};
    if (meanwhile) {
        waitTakingIn(child, streams, meanwhile);
        read(reader, [&] { pass(m_toReader.writing, kept); });
    } else {
        read(reader, [&] { waitTakingIn(child, streams); });
    }
    return child.wait();
}

} // namespace posix
