// Administrator rights as an answers file decided them (ports::Administrator): refused to
// everybody, root included, or left to the host's own facility. Made by the composition root for
// unattended runs whose answers say so.
#pragma once

#include "platform/ports/Administrator.h"

namespace posix {

class DecidedAdministrator final : public ports::Administrator {
  public:
    struct Needs {
        /// The host's facility; it grants a root process its rights unasked.
        ports::Administrator& inner;
        /// False: every request is answered with kDenied, and `inner` hears of none.
        bool authorize = false;
    };

    explicit DecidedAdministrator(Needs needs) : m_needs(needs) {}

    int createSession() override { return m_needs.authorize ? m_needs.inner.createSession() : 0; }
    int requestRights() override {
        return m_needs.authorize ? m_needs.inner.requestRights() : kDenied;
    }
    int start(const ports::ToolCall& call, const std::function<void(int)>& reader) override {
        return m_needs.authorize ? m_needs.inner.start(call, reader) : kDenied;
    }
    void freeSession() override {
        if (m_needs.authorize)
            m_needs.inner.freeSession();
    }

  private:
    Needs m_needs;
};

} // namespace posix
