// Raw text in and out: appending to a file that is opened for one line only, and reading a
// descriptor. Used by the install log; callable from any thread.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace ports {

class TextStreams {
  public:
    virtual ~TextStreams() = default;

    /// Opens `path` for appending (made when missing, its folder is not), writes all of `bytes`
    /// with one write and closes it again. False when the file can't be opened or written.
    virtual bool append(const std::string& path, std::string_view bytes) = 0;

    /// Reads what is there into `buffer`, waiting for at least one byte. Answers how many bytes
    /// were read; 0 at the end or on an error. The descriptor stays open.
    virtual std::size_t read(int descriptor, std::span<char> buffer) = 0;
};

} // namespace ports
