// Authorization Services for tests on another system: answers as it is told to, notes each call
// with everything it was given, and plays the tools that are started. A tool's stream is a real
// one, both ways, as the system's is.
#pragma once

#include <Security/Authorization.h>
#include <cstddef>
#include <deque>
#include <string>
#include <thread>
#include <vector>

#include "platform/posix/Descriptor.h"

namespace fakes {

/// A tool that was started, seen from its own side.
class StartedTool {
  public:
    /// `toolsEnd` is the tool's input and output in one. Writes the output on a thread of its own,
    /// and then `endsByItself` or waits for `end`.
    StartedTool(posix::Descriptor toolsEnd, std::string output, bool endsByItself);
    ~StartedTool();

    /// Closes its output.
    void end();

    /// Does the program still hold the other end of its input?
    bool inputIsOpen() const;
    /// Waits until the output is written; false when it could not be written whole.
    bool wroteAll();

  private:
    posix::Descriptor m_end;
    bool m_wroteAll = false;
    std::thread m_writing;
};

class Authorization {
  public:
    /// From now on, and for as long as it lives, the functions work on this one.
    Authorization();
    Authorization(const Authorization&) = delete;
    Authorization& operator=(const Authorization&) = delete;
    ~Authorization();

    // What the functions answer.
    OSStatus createStatus = 0;
    OSStatus rightsStatus = 0;
    OSStatus startStatus = 0;
    bool givesStream = true;
    bool toolsEndByThemselves = true;
    std::string output;

    /// The calls in their order, one line each: "create 19", "rights 1 NAME 19", "start 1
    /// TOOL|A|B|0", "free 1 0". The number before the name is the session's, counted from 1.
    std::vector<std::string> calls;
    std::deque<StartedTool> tools;
    /// Our ends of the streams that were given.
    std::vector<int> streams;
    int sessions = 0;
};

/// The one that the functions work on.
Authorization& authorization();

} // namespace fakes
