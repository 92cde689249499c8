// Starting command-line tools with the user's rights. Used by engine/CommandRunner alone.
// Arguments go element by element, never through a shell. Every call blocks until the tool is over,
// on the thread that calls; calls from several threads at once are allowed.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace ports {

struct ToolCall {
    /// Absolute path of the tool under its standard name ("/usr/bin/ditto"). A host that has no
    /// such tool may start one of the program's own in its place.
    std::string tool;
    std::vector<std::string> arguments;

    bool operator==(const ToolCall&) const = default;
};

/// What one of our own tools reports while it unpacks or copies: bytes and files.
struct ToolProgress {
    std::uint64_t done = 0;
    std::uint64_t total = 0;
    std::uint64_t files = 0;

    bool operator==(const ToolProgress&) const = default;
};

class Tools {
  public:
    virtual ~Tools() = default;

    /// The status of a tool that could not be started, as a shell gives it.
    static constexpr int kCannotStart = 127;

    struct Captured {
        int status = 0;
        std::string output;
    };

    /// Runs the tool with the program's own standard output and error. Answers its exit status:
    /// 0 to 255 as the tool gave it, 128 + N after death by signal N, `kCannotStart` when it could
    /// not be started.
    virtual int run(const ToolCall& call) = 0;

    /// Runs the tool and collects all of its standard output, however much; its standard error is
    /// the program's own. Throws PlatformError when the tool can't be started.
    virtual Captured capture(const ToolCall& call) = 0;

    /// Runs the tool with standard output and error in one pipe. `reader` gets the reading end,
    /// must read it to its end and must not close it; it is not called when the tool can't be
    /// started. Answers as `run` does.
    virtual int runThroughPipe(const ToolCall& call, const std::function<void(int)>& reader) = 0;
};

} // namespace ports
