// An answers file: what an unattended run is to answer, choose and press. Read once, before
// anything is started. The format is in docs/command-line.md. Holds values only.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include <nlohmann/json.hpp>

namespace app {

/// One step of the file's "steps".
struct PressStep {
    std::string outlet;
};
/// A component as a click would set it: toggled, or set to `state`, 0 or 1.
struct ComponentStep {
    std::string component;
    std::optional<int> state;
};
/// A row of a radio matrix.
struct SelectStep {
    std::string outlet;
    int row = 0;
};
/// A row of a table; -1: none.
struct SelectRowStep {
    std::string outlet;
    int row = 0;
};
struct CallStep {
    std::string action;
};
/// Waits for an event that has all of these members.
struct WaitStep {
    nlohmann::ordered_json members;
};
struct SnapshotStep {
    std::string name;
};
using Step = std::variant<PressStep, ComponentStep, SelectStep, SelectRowStep, CallStep, WaitStep,
                          SnapshotStep>;

/// The file can't be read or says something that it can't say. The text names the file, the place
/// and the remedy.
class AnswersFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct AnswersFile {
    std::string name; ///< what errors call it; empty: there is none
    std::vector<std::string> answers;
    std::vector<std::optional<std::string>> choices;
    std::optional<bool> authorize;
    /// None: the front end goes on by itself. An empty list presses nothing.
    std::optional<std::vector<Step>> steps;

    /// Throws AnswersFileError.
    static AnswersFile read(const std::string& path);
    /// The same for a text; `name` stands for the file in errors.
    static AnswersFile parse(const std::string& text, const std::string& name);
};

} // namespace app
