// Administrator rights through Authorization Services (ports::Administrator): the system's own
// prompt asks for the password, and tools are started with the rights that it gave. Made by the
// composition root. Never asks of itself and remembers no refusal: CommandRunner does.
//
// Threads: any, but one call at a time, and a session belongs to all of them. `requestRights`
// blocks for as long as the prompt is on the screen, `start` until the tool's output ends.
#pragma once

#include <Security/Authorization.h>
#include <cstddef>
#include <cstdio>
#include <deque>
#include <functional>
#include <memory>
#include <utility>

#include "platform/ports/Administrator.h"

namespace macoshost {

class AuthorizationServices final : public ports::Administrator {
  public:
    struct Needs {
        /// Called every 15 ms or so on the thread that waits for a tool; empty: nobody. With it a
        /// tool's output is kept until the tool is over, and the reader gets it then: it would hold
        /// the thread up.
        std::function<void()> whileWaiting = nullptr;
    };

    /// The tools' streams that are left open at a time, at most.
    static constexpr std::size_t kStreamsKept = 32;

    explicit AuthorizationServices(Needs needs) : m_needs(std::move(needs)) {}
    AuthorizationServices(const AuthorizationServices&) = delete;
    AuthorizationServices& operator=(const AuthorizationServices&) = delete;
    ~AuthorizationServices() override { freeSession(); }

    /// AuthorizationCreate: a session without rights. Ends the one that stands open. Answers the
    /// system's status.
    int createSession() override;

    /// AuthorizationCopyRights: the right "system.privilege.admin". The session stays open whatever
    /// the answer is. Answers the system's status (errAuthorizationCanceled when the user gave up),
    /// errAuthorizationInvalidRef without a session.
    int requestRights() override;

    /// The pipe carries the tool's standard output; its standard error is the program's. Answers 0
    /// exactly when the tool was started, kDenied without rights, kToolExecuteFailure when the
    /// process has no descriptors left, else the system's status. Returns when nobody holds the
    /// tool's output any more, and reads to that end whatever `reader` leaves. Where the system
    /// gives no pipe for a started tool, `reader` is not called.
    ///
    /// The pipe is the tool's standard input as well, so it is not closed at once but when the
    /// session ends, or when `kStreamsKept` more tools have been started: a long run must not use
    /// up the process's descriptors.
    int start(const ports::ToolCall& call, const std::function<void(int)>& reader) override;

    /// AuthorizationFree, once for each session, and closes what the tools left open. Does nothing
    /// without a session.
    void freeSession() override;

  private:
    struct Close {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };
    using Stream = std::unique_ptr<std::FILE, Close>;

    Needs m_needs;
    AuthorizationRef m_session = nullptr;
    bool m_granted = false;
    std::deque<Stream> m_streams;
};

} // namespace macoshost
