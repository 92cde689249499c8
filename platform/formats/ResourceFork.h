// Classic resource forks: resources by four-character type and 16-bit number.
//
// Format: Inside Macintosh: More Macintosh Toolbox, "Resource File Format" (header of four 32-bit
// offsets and lengths, data with 32-bit lengths, map with type list, reference lists and names).
// Pure functions over bytes: no disk, no state, any thread. Input may be hostile.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/formats/AppleDouble.h"

namespace formats {

/// Four characters packed big-endian, as resource and file types are: 'icns' is 0x69636E73.
constexpr std::uint32_t fourCharacters(const char (&text)[5]) {
    std::uint32_t code = 0;
    for (int i = 0; i < 4; ++i)
        code = code << 8 | static_cast<unsigned char>(text[i]);
    return code;
}

struct Resource {
    std::uint32_t type = 0;
    std::int16_t number = 0;
    std::string name; ///< bytes as they stand, Mac Roman by custom; at most 255
    Bytes data;
    bool operator==(const Resource&) const = default;
};

/// All resources in the order of the map; none when `fork` is not a well-formed resource fork: a
/// part or a resource that reaches past the end of what holds it, resources that share their bytes.
/// No bytes at all are not a fork; a fork without resources is one.
std::optional<std::vector<Resource>> readResourceFork(std::span<const std::byte> fork);

/// One resource's data, without copying the others; none when it is not there, or when the map is
/// not well formed up to it.
std::optional<Bytes> findResource(std::span<const std::byte> fork, std::uint32_t type,
                                  std::int16_t number);

/// The fork that holds these resources: types in the order of their first resource, resources of a
/// type in the given order. Throws std::length_error when the format can't hold them: a name of
/// more than 255 bytes, a map of more than 64 KiB (some five thousand resources), a resource that
/// would begin beyond 16 MiB.
Bytes writeResourceFork(const std::vector<Resource>& resources);

} // namespace formats
