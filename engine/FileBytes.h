// A whole file read at once: what the wizard shows (a picture, a text, the log), the interface
// files of a run without a window, a file that is compared with what it should hold. Any thread.
#pragma once

#include <string>

namespace ec {

/// The bytes of the file at `path`; none when it is no regular file (a folder, a pipe) or can't be
/// read. Never throws but for want of memory.
std::string bytesOfFile(const std::string& path);

} // namespace ec
