// A zip archive on disk, read by position: an archive that is cut off meanwhile gives an error and
// no signal, as a mapped one would. Any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "tools/files/Descriptor.h"

namespace tools {

class ArchiveFile {
  public:
    /// Throws std::system_error; also for anything but a plain file, as there is nothing to read
    /// by position.
    explicit ArchiveFile(const std::string& path);

    std::uint64_t size() const { return m_size; }

    /// Fills `into` from `offset` on. False at the end of the file or on an error.
    bool readAt(std::uint64_t offset, std::span<std::byte> into) const;

  private:
    Descriptor m_file;
    std::uint64_t m_size = 0;
};

} // namespace tools
