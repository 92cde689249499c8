// Those who look on: told what the core does as it does it, and never asked. The composition root
// fills them to make events; each may be empty.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ports {

/// A row of the wizard's steps that has come into sight.
struct RowShown {
    int page = 0;  ///< the page selected
    int state = 0; ///< the row's number
    std::string title;
    std::vector<std::string> outline;
    int current = 0; ///< the outline's current entry
    std::string identity;
};

/// A question of the wizard that has been answered.
struct QuestionAnswered {
    std::string title;
    std::string message;
    std::vector<std::string> buttons; ///< default, alternate, other: those there are
    std::string answer;               ///< the title of one of them
    int code = 1;
};

struct Watchers {
    /// Each message of the install log as it is written, on the thread that writes.
    std::function<void(std::string_view)> logged = {};
    /// After the row's page is selected and before its actions run.
    std::function<void(const RowShown&)> rowShown = {};
    std::function<void(const QuestionAnswered&)> answered = {};
};

} // namespace ports
