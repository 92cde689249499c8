// Icon families (".icns" files): one icon in several sizes, as the desktop takes it for a folder.
// Looks only at the outer structure; the pictures themselves are the desktop's business.
//
// Format: Icons.h of the Icon Services ('icns', total length, elements of type, length and data;
// lengths count their own eight bytes). Pure functions over bytes: no disk, no state, any thread.
// Input may be hostile.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace formats {

/// The types of all elements in their order (four characters each, big-endian packed); none when
/// the bytes are not an icon family: wrong mark, no element, an element that reaches past the end.
/// Bytes after the family's stated length are passed over.
std::optional<std::vector<std::uint32_t>> iconFamilyElements(std::span<const std::byte> family);

} // namespace formats
