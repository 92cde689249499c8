// The classic 'vers' resource: an application's version number, the state of its development, its
// region and two texts. Number 1 is the file's own, number 2 that of the product it belongs to.
//
// Format: Inside Macintosh: Macintosh Toolbox Essentials, "The Version Resource". Pure functions
// over bytes: no disk, no state, any thread. Input may be hostile.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/formats/AppleDouble.h"

namespace formats {

struct VersionResource {
    std::uint8_t major = 0;       ///< two decimal digits, binary coded: 0x16 is 16
    std::uint8_t minorAndBug = 0; ///< one digit each: 0x21 is .2.1
    std::uint8_t stage = 0;       ///< 0x20 development, 0x40 alpha, 0x60 beta, 0x80 release
    std::uint8_t nonRelease = 0;
    std::uint16_t region = 0;
    std::string shortVersion; ///< bytes as they stand, Mac Roman by custom; at most 255
    std::string longVersion;  ///< likewise

    bool operator==(const VersionResource&) const = default;
};

/// None when a field or a text reaches past the end.
std::optional<VersionResource> readVersionResource(std::span<const std::byte> resource);

/// The four bytes of the version number as they stand in the resource, also where the rest is cut
/// off; none when there are fewer. For a reader that decides itself which of them means what.
std::optional<std::array<std::uint8_t, 4>> versionBytes(std::span<const std::byte> resource);

/// The resource that says so. Texts are cut to 255 bytes.
Bytes writeVersionResource(const VersionResource& version);

} // namespace formats
