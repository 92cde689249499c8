// The command line as values. Parsed once by main; starts nothing.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace app {

/// A component that the command line turns on or off.
struct ComponentChoice {
    std::string name;
    bool on = true;
    bool operator==(const ComponentChoice&) const = default;
};

struct CommandLine {
    std::string command = "install";
    std::string root; ///< absolute, without a trailing "/"; empty: this machine
    std::string home; ///< absolute
    bool unattended = false;
    std::optional<std::string> answers;
    bool yes = false;
    std::chrono::seconds waitForApps{0};
    bool noLaunch = false;
    bool events = false;
    /// --select and --deselect, in the order given.
    std::vector<ComponentChoice> choices;
    bool shortSequence = false;
    std::optional<std::uint32_t> launchMode;
    bool json = false;
};

/// What parsing came to: either options to run with, or a text and an exit status to leave with.
struct ParsedCommandLine {
    std::optional<CommandLine> options;
    std::string output; ///< for standard output: --help, --version
    std::string error;  ///< for standard error: what is wrong and how to go on
    int exitStatus = 0;
};

/// `arguments` without the program's name; `homeDefault` where --home is not given.
ParsedCommandLine parseCommandLine(std::vector<std::string> arguments,
                                   const std::string& homeDefault);

} // namespace app
