// A pipe whose contents come from the program itself, for readers that want a descriptor. Used by
// OutputRelay and by adapters that take a tool's output in before anybody may read it.
#pragma once

#include <functional>
#include <string_view>

#include "platform/posix/ProcessSystem.h"

namespace posix {

class FilledPipe {
  public:
    FilledPipe() : m_pipe(makePipe()) {}

    /// False when the process has no descriptors left.
    bool isOpen() const { return m_pipe.isOpen(); }

    /// Calls `reader` on this thread with the reading end, while `fill` runs on a thread of its own
    /// and calls `write`; the end comes when `fill` returns. What `reader` leaves unread is thrown
    /// away. `fill` throws nothing; what `reader` throws leaves here. Once for each object.
    void read(const std::function<void(int)>& reader, const std::function<void()>& fill);

    /// For `fill`: writes all of it; nothing any more once nobody reads.
    void write(std::string_view bytes);

  private:
    Pipe m_pipe;
};

} // namespace posix
