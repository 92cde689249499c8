// Paths on their way to the operating system, which takes UTF-8.
#pragma once

#include <optional>
#include <string>

#include "cp/CPath.h"

namespace Corvaldine::CP::Private {

/// The path in UTF-8; none when it isn't valid UTF-32 or holds a NUL, behind which the system
/// wouldn't look.
[[nodiscard]] std::optional<std::string> system_path(const std::wstring& path);
[[nodiscard]] std::optional<std::string> system_path(const CPath& path);

} // namespace Corvaldine::CP::Private
