// Classic alias records, version 2: what a Finder alias file keeps as resource 'alis' 0 to find its
// target again.
//
// Format: 150 bytes of fixed fields that begin with the public header of Inside Macintosh: Files
// (user type and size), then tagged extras, each at an even offset, up to the tag 0xFFFF. All but
// the header was never published; the descriptions in circulation differ on which of type and
// creator comes first: type does here. Everything is big-endian. Names in the record are Carbon
// names: where a path has ':' they have '/'. Pure functions over bytes: no disk, no state, any
// thread. Input may be hostile.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/formats/AppleDouble.h"

namespace formats {

/// Where an alias leads. Names and paths are UTF-8 as the file system has them.
struct AliasTarget {
    enum class Kind : std::uint16_t { file = 0, folder = 1 };

    Kind kind = Kind::file;
    std::string volumeName;
    std::uint32_t volumeCreated = 0; ///< seconds since 1904-01-01, UTC
    std::uint32_t folderNumber = 0;  ///< of the folder that holds the target
    std::string name;
    std::uint32_t number = 0;
    std::uint32_t created = 0; ///< seconds since 1904-01-01, UTC
    std::uint32_t type = 0;    ///< four characters, big-endian packed
    std::uint32_t creator = 0; ///< four characters, big-endian packed
    std::string folderName;    ///< kept in Mac Roman only
    /// The target's path without the characters of the mount point: "Users/me" on the volume "/",
    /// but "/me" on the volume "/Volumes/Disk".
    std::string path;
    std::string mountPoint;

    bool operator==(const AliasTarget&) const = default;
};

/// Seconds since 1970 as seconds since 1904, at the nearer end of the range when they are outside.
std::uint32_t secondsSince1904(std::int64_t secondsSince1970);

/// The record. Its fixed fields hold names in Mac Roman, cut to 27 (volume) and 31 bytes (target);
/// the full names stand in the extras. Throws std::length_error when it would be longer than 64
/// KiB.
Bytes writeAliasRecord(const AliasTarget& target);

/// What the record says; none when it is not a well-formed record of version 2. Extras of other
/// kinds are passed over, and where the Unicode names are missing the Mac Roman ones are given.
std::optional<AliasTarget> readAliasRecord(std::span<const std::byte> record);

} // namespace formats
