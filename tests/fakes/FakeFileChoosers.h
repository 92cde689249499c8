// ports::FileChoosers that answers what a test has laid ready.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports/FrontEnd.h"

namespace fakes {

class FakeFileChoosers final : public ports::FileChoosers {
  public:
    /// The answers, in order; when they are used up every chooser is cancelled.
    std::deque<std::optional<std::string>> answers;
    std::vector<ports::Chooser> asked;

    std::optional<std::string> choose(const ports::Chooser& chooser) override {
        asked.push_back(chooser);
        if (answers.empty())
            return std::nullopt;
        auto answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

} // namespace fakes
