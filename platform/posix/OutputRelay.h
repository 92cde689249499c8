// Lets somebody read a child's output from a descriptor, to an end that comes when the child itself
// has ended. A process that the child leaves behind may hold the child's own pipe for ever; the
// reader here sees a second pipe, which a thread fills from the first.
#pragma once

#include <functional>
#include <utility>

#include "platform/posix/ChildProcess.h"
#include "platform/posix/FilledPipe.h"
#include "platform/posix/ProcessSystem.h"

namespace posix {

class OutputRelay {
  public:
    /// Makes both pipes.
    OutputRelay() : m_fromChild(makePipe()) {}

    bool isOpen() const { return m_fromChild.isOpen() && m_toReader.isOpen(); }

    /// The end that the child must get as its output.
    int childsEnd() const { return m_fromChild.writing.number(); }

    /// After the child was started: calls `reader` on this thread with the reading end, then waits
    /// for the child. Answers as `ChildProcess::wait` does. Output that `reader` leaves unread is
    /// thrown away, and the child goes on undisturbed. Once for each object.
    ///
    /// With `meanwhile`, which is called on this thread as `waitTakingIn` does, the output is kept
    /// until the child has ended, and `reader` is called then: it would hold the thread up.
    int relay(ChildProcess& child, const std::function<void(int)>& reader,
              const std::function<void()>& meanwhile = nullptr);

  private:
    Pipe m_fromChild;
    FilledPipe m_toReader;
};

} // namespace posix
