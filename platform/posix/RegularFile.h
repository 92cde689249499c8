// Reads whole small files that may be anything. Used where property lists are read.
#pragma once

#include <cstddef>
#include <string>

namespace posix {

struct FileBytes {
    int error = 0; ///< 0 or an errno value
    std::string bytes;
};

/// The regular file at `path`, or what a symbolic link there leads to. EFBIG when it is longer than
/// `longest` bytes, EINVAL for anything else than a file: that is not even opened for reading, as a
/// pipe would never end.
FileBytes readRegularFile(const std::string& path, std::size_t longest);

} // namespace posix
