// Takes in what a child process writes. With the process at hand the end comes when the child
// itself has ended, even if a process that it left behind still holds its pipes; without it, when
// nobody holds the pipe any more.
#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "platform/posix/ChildProcess.h"
#include "platform/posix/Descriptor.h"

namespace posix {

/// The reading end of a pipe of the child's, and who gets the bytes.
struct ChildStream {
    Descriptor reading;
    std::function<void(std::string_view)> take;
};

/// Hands over what arrives on `streams` until the child has ended, and then what it had written
/// before. Calls `take` on this thread; what it throws leaves here. Answers as
/// `ChildProcess::wait` does; the streams are closed then. `meanwhile`, if there is one, is called
/// on this thread every 15 ms or so, and once more when the child has ended.
int waitTakingIn(ChildProcess& child, std::span<ChildStream> streams,
                 const std::function<void()>& meanwhile = nullptr);

/// Hands over what arrives on `descriptor` until its end or an error, and closes nothing. Calls
/// `take`, which may be empty, on this thread; what it throws leaves here. `meanwhile` is called as
/// above, and once more at the end.
void takeInToTheEnd(int descriptor, const std::function<void(std::string_view)>& take,
                    const std::function<void()>& meanwhile = nullptr);

/// Reads and throws away what is left on a descriptor, to its end, on every way out of its scope.
class RestThrownAway {
  public:
    explicit RestThrownAway(int descriptor) : m_descriptor(descriptor) {}
    RestThrownAway(const RestThrownAway&) = delete;
    RestThrownAway& operator=(const RestThrownAway&) = delete;
    ~RestThrownAway() { takeInToTheEnd(m_descriptor, nullptr); }

  private:
    const int m_descriptor;
};

} // namespace posix
