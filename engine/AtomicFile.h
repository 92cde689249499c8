// A small file written so that it is there whole or not at all. For files of the program's own;
// what is installed goes through FileOperations. Any thread.
#pragma once

#include <string>
#include <string_view>

namespace ec {

/// Writes the bytes to `path`, over a file or link that may be there. False when that failed;
/// nothing is left behind then, and what was there stays.
[[nodiscard]] bool writeAtomically(const std::string& path, std::string_view bytes);

} // namespace ec
