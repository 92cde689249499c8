// Appending lines to files and reading descriptors (ports::TextStreams). No state; any thread.
#pragma once

#include "platform/ports/TextStreams.h"

namespace posix {

class FileTextStreams final : public ports::TextStreams {
  public:
    bool append(const std::string& path, std::string_view bytes) override;
    std::size_t read(int descriptor, std::span<char> buffer) override;
};

} // namespace posix
