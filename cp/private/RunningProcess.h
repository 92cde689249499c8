// The running process and its executable.
#pragma once

#include <cstdint>
#include <string>

#include "cp/cpprocess.h"

namespace Corvaldine::CP::Private {

/// The system's number of the running process.
[[nodiscard]] std::uint32_t process_number();

/// The file that a process runs, absolute, with links resolved; empty when it can't be told.
[[nodiscard]] std::string process_executable(const ProcessSerialNumber& process);

/// The application bundle that an executable belongs to: the nearest folder above it of the form
/// "X.app/Contents/MacOS/executable"; empty outside a bundle. Looks at the text only.
[[nodiscard]] std::string bundle_of_executable(const std::string& executable);

} // namespace Corvaldine::CP::Private
