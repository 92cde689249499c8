// ports::Tools without processes: answers as a test has said, and remembers what was called.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/ports/PlatformError.h"
#include "platform/ports/Tools.h"
#include "tests/fakes/FakeTextStreams.h"

namespace fakes {

class FakeTools final : public ports::Tools {
  public:
    struct Answer {
        int status = 0;
        std::string output = {};
        bool cannotStart = false;
    };

    FakeTools() = default;
    /// The readers of `runThroughPipe` find the output in `streams`; without it they are handed a
    /// descriptor that gives nothing.
    explicit FakeTools(FakeTextStreams& streams) : m_streams(&streams) {}

    /// Every call in its order.
    std::vector<ports::ToolCall> calls;
    /// Answers to the next calls, in order; afterwards `handler`, and without one success.
    std::deque<Answer> answers;
    std::function<Answer(const ports::ToolCall&)> handler;

    int run(const ports::ToolCall& call) override {
        const Answer answer = next(call);
        return answer.cannotStart ? kCannotStart : answer.status;
    }

    Captured capture(const ports::ToolCall& call) override {
        Answer answer = next(call);
        if (answer.cannotStart)
            throw ports::PlatformError(call.tool + " can't be started");
        return {answer.status, std::move(answer.output)};
    }

    int runThroughPipe(const ports::ToolCall& call,
                       const std::function<void(int)>& reader) override {
        const Answer answer = next(call);
        if (answer.cannotStart)
            return kCannotStart;
        reader(m_streams ? m_streams->feed(answer.output) : -1);
        return answer.status;
    }

  private:
    Answer next(const ports::ToolCall& call) {
        calls.push_back(call);
        if (!answers.empty()) {
            Answer answer = std::move(answers.front());
            answers.pop_front();
            return answer;
        }
        return handler ? handler(call) : Answer{};
    }

    FakeTextStreams* m_streams = nullptr;
};

} // namespace fakes
