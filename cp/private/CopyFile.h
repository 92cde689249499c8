// Copying a file or a tree with everything that belongs to it.
#pragma once

#include <cstdint>
#include <string>

namespace Corvaldine::CP::Private {

/// Access control, permissions and times, extended attributes, data.
inline constexpr std::uint32_t kCopyAll = 15;
/// A folder with everything in it, links as links.
inline constexpr std::uint32_t kCopyRecursive = 32768;

/// Copies what `from` leads to; `to` must not exist. Links to `from` itself are followed. What the
/// target's file system can't hold or the user may not set (owner, access control) is left out.
/// False after any other failure, or when `to` would lie inside `from`; nothing is left at `to`
/// then. Pipes, sockets and devices can't be copied.
[[nodiscard]] bool copy_file(const std::string& from, const std::string& to, std::uint32_t flags);

} // namespace Corvaldine::CP::Private
