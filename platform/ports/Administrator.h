// The host's facility for running a tool with administrator rights. Used by engine/CommandRunner
// alone, which keeps the session's rules (one prompt, a remembered refusal); an adapter only does
// what it is told. Blocks on the calling thread.
#pragma once

#include <functional>

#include "platform/ports/Tools.h"

namespace ports {

class Administrator {
  public:
    virtual ~Administrator() = default;

    /// Errors that every adapter uses in these cases, numbered as Authorization Services does:
    /// the rights were refused or the prompt was cancelled; the tool could not be started.
    static constexpr int kDenied = -60005;
    static constexpr int kToolExecuteFailure = -60031;

    /// Opens an authorization session without any rights. 0, or the platform's error.
    virtual int createSession() = 0;

    /// Asks, with the platform's own prompt, for the right to act as administrator in the session
    /// that stands open. 0 when it was granted, else the platform's error.
    virtual int requestRights() = 0;

    /// Starts the tool as administrator. When it started, `reader` gets the reading end of a pipe
    /// that carries the tool's output and must read it to its end and not close it.
    /// Answers 0 when the tool was started, whatever became of it, else the platform's error.
    virtual int start(const ToolCall& call, const std::function<void(int)>& reader) = 0;

    /// Ends the session and drops its rights.
    virtual void freeSession() = 0;
};

} // namespace ports
