// Copies the bytes of an open file into another, by the cheapest means that both file systems know:
// shared blocks, a copy inside the kernel, reading and writing. Holes stay holes. Implemented once
// for each system by the file of the same name in its folder.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>

#include <sys/stat.h>

namespace tools {

/// Shared by the threads that work on one tree, so that a means is tried in vain once only.
class ContentCopier {
  public:
    /// Bytes that were copied just now.
    using Told = std::function<void(std::uint64_t bytes)>;

    /// Copies the plain file `from`, which has `status`, into the new, empty file `to`. Throws
    /// std::system_error.
    void copy(int from, const struct stat& status, int to, const Told& told);

  private:
    bool clone(int from, int to);
    void copyRange(int from, int to, std::uint64_t at, std::uint64_t length, const Told& told);

    std::atomic<bool> m_canClone = true;
    std::atomic<bool> m_canCopyInKernel = true;
};

} // namespace tools
