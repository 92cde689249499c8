// An open file as the patch format reads it. By position, so that several threads may, and a file
// that is cut off meanwhile gives an error and no signal.
#pragma once

#include <cstdint>
#include <span>

#include "patcher/format/Bytes.h"

namespace tools {

class FileSource : public patch::Source {
  public:
    /// `file` stays open while this is used and is not closed by it. Throws std::system_error, also
    /// for what is no plain file.
    explicit FileSource(int file);

    std::uint64_t size() const override { return m_size; }
    void read(std::uint64_t offset, std::span<std::byte> into) const override;

  private:
    int m_file;
    std::uint64_t m_size;
};

} // namespace tools
