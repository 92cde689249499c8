// AppleDouble files ("._name"): the Finder information, resource fork and extended attributes of a
// file, kept beside it where the file system can't hold them.
//
// Format: RFC 1740, appendix B (version 2, magic number 0x00051607, entry 2 the resource fork,
// entry 9 the Finder information). Extended attributes follow the Finder information inside entry 9
// under the mark 'ATTR', as the comments of xnu's vfs_xattr.c describe them. Everything is
// big-endian. Pure functions over bytes: no disk, no state, any thread. Input may be hostile.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace formats {

using Bytes = std::vector<std::byte>;

struct ExtendedAttribute {
    std::string name; ///< 1 to 254 bytes without a zero byte, as the format holds them
    Bytes value;
    bool operator==(const ExtendedAttribute&) const = default;
};

struct AppleDouble {
    /// Sixteen bytes of FileInfo or FolderInfo and sixteen of the extended one; all zero for none.
    std::array<std::byte, 32> finderInformation{};
    Bytes resourceFork;
    std::vector<ExtendedAttribute> attributes;

    bool hasFinderInformation() const { return finderInformation != decltype(finderInformation){}; }
    bool operator==(const AppleDouble&) const = default;
};

/// None when `bytes` is not a well-formed AppleDouble file: wrong magic number or version, an entry
/// or an attribute that reaches past the end, Finder information of less than 32 bytes, one of the
/// two entries twice, attributes that are together longer than the file. Bytes after the last
/// entry and entries of other kinds are passed over. A resource fork that the desktop wrote to say
/// "none" (286 bytes, no resources) is given as it stands.
std::optional<AppleDouble> readAppleDouble(std::span<const std::byte> bytes);

/// The AppleDouble file that says so; `readAppleDouble` gives the same value back. An attribute
/// with a name that the format can't hold is left out, and so are those after the 65535th. Throws
/// std::length_error when the file would be longer than 4 GiB.
Bytes writeAppleDouble(const AppleDouble& value);

} // namespace formats
