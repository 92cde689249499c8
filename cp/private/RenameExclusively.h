// Renaming that never replaces anything.
#pragma once

#include <string>

namespace Corvaldine::CP::Private {

/// Renames an entry; links are not followed. False when `to` exists, unless both names are one
/// entry's (its name in other letters, where the file system doesn't tell them apart).
[[nodiscard]] bool rename_exclusively(const std::string& from, const std::string& to);

/// The system's own call for it: 0, or the error; ENOTSUP when the file system doesn't offer it.
[[nodiscard]] int rename_unless_taken(const char* from, const char* to);

} // namespace Corvaldine::CP::Private
