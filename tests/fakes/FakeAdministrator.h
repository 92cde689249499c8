// ports::Administrator without rights: grants or refuses as a test says, and remembers.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/ports/Administrator.h"
#include "tests/fakes/FakeTextStreams.h"

namespace fakes {

class FakeAdministrator final : public ports::Administrator {
  public:
    FakeAdministrator() = default;
    /// The readers of `start` find the output in `streams`.
    explicit FakeAdministrator(FakeTextStreams& streams) : m_streams(&streams) {}

    int sessionError = 0;
    int rightsError = 0;
    /// Tools that can't be started, by their paths.
    std::set<std::string> missing;
    std::string output;
    /// What a tool does when it is started.
    std::function<void(const ports::ToolCall&)> effect;

    int sessions = 0;
    int prompts = 0;
    bool sessionIsOpen = false;
    std::vector<ports::ToolCall> calls;

    int createSession() override {
        ++sessions;
        sessionIsOpen = sessionError == 0;
        return sessionError;
    }

    int requestRights() override {
        ++prompts;
        m_granted = rightsError == 0;
        return rightsError;
    }

    int start(const ports::ToolCall& call, const std::function<void(int)>& reader) override {
        if (!m_granted)
            return kDenied;
        calls.push_back(call);
        if (missing.contains(call.tool))
            return kToolExecuteFailure;
        if (effect)
            effect(call);
        reader(m_streams ? m_streams->feed(output) : -1);
        return 0;
    }

    void freeSession() override { sessionIsOpen = m_granted = false; }

  private:
    FakeTextStreams* m_streams = nullptr;
    bool m_granted = false;
};

} // namespace fakes
