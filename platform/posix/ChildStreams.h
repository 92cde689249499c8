// Waits for a child process and takes in what it writes meanwhile. Ends when the child itself has
// ended, even if a process that it left behind still holds its pipes.
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

} // namespace posix
