#include "platform/posix/FilledPipe.h"

#include <cerrno>
#include <csignal>
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

/// Waits for a thread on every way out, an exception included.
class Joined {
  public:
    explicit Joined(std::thread& thread) : m_thread(thread) {}
    Joined(const Joined&) = delete;
    Joined& operator=(const Joined&) = delete;
    ~Joined() { m_thread.join(); }

  private:
    std::thread& m_thread;
};

} // namespace

void FilledPipe::write(std::string_view bytes) {
    while (!bytes.empty() && m_pipe.writing.isOpen()) {
        const ssize_t count = ::write(m_pipe.writing.number(), bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            m_pipe.writing.close();
    }
}

void FilledPipe::read(const std::function<void(int)>& reader, const std::function<void()>& fill) {
    std::thread filling;
    {
        const SignalsBlocked blocked;
        filling = std::thread([this, &fill] {
            fill();
            m_pipe.writing.close();
        });
    }
    const Joined joined(filling);
    const RestThrownAway rest(m_pipe.reading.number());
    reader(m_pipe.reading.number());
}

} // namespace posix
