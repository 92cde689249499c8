// ports::AlertSheets without a screen: remembers each alert and answers when a test asks for it.
#pragma once

#include <deque>
#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "platform/ports/FrontEnd.h"

namespace fakes {

class FakeAlertSheets final : public ports::AlertSheets {
  public:
    /// Every alert in its order, and the codes that `deliver` will answer with.
    std::vector<ports::Alert> alerts;
    std::deque<int> answers;

    void beginSheet(const ports::Alert& alert, controls::Window&,
                    std::function<void(int)> completion) override {
        alerts.push_back(alert);
        m_waiting.push_back(std::move(completion));
    }

    bool isShown() const { return !m_waiting.empty(); }

    /// Answers the sheet that was shown first. The sheet is gone when its completion runs.
    void answer(int code) {
        if (m_waiting.empty())
            throw std::logic_error("No sheet is shown");
        const std::function<void(int)> completion = std::move(m_waiting.front());
        m_waiting.pop_front();
        completion(code);
    }

    /// Answers it with the next of `answers`; false when no sheet is shown or no answer is left.
    bool deliver() {
        if (m_waiting.empty() || answers.empty())
            return false;
        const int code = answers.front();
        answers.pop_front();
        answer(code);
        return true;
    }

  private:
    std::deque<std::function<void(int)>> m_waiting;
};

} // namespace fakes
