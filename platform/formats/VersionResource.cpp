#include "platform/formats/VersionResource.h"

#include "platform/formats/BigEndian.h"

namespace formats {

namespace {

constexpr std::uint64_t kTexts = 6;
constexpr std::size_t kLongestText = 255;

void writeText(BigEndianWriter& out, std::string_view text) {
    text = text.substr(0, kLongestText);
    out.u8(text.size());
    out.text(text);
}

} // namespace

std::optional<VersionResource> readVersionResource(std::span<const std::byte> resource) {
    BigEndianReader in(resource);
    VersionResource version;
    version.major = in.u8(0);
    version.minorAndBug = in.u8(1);
    version.stage = in.u8(2);
    version.nonRelease = in.u8(3);
    version.region = in.u16(4);
    const std::uint64_t longText = kTexts + 1 + in.u8(kTexts);
    version.shortVersion = textOf(in.bytes(kTexts + 1, in.u8(kTexts)));
    version.longVersion = textOf(in.bytes(longText + 1, in.u8(longText)));
    if (in.failed())
        return std::nullopt;
    return version;
}

std::optional<std::array<std::uint8_t, 4>> versionBytes(std::span<const std::byte> resource) {
    BigEndianReader in(resource);
    const std::array<std::uint8_t, 4> bytes{in.u8(0), in.u8(1), in.u8(2), in.u8(3)};
    if (in.failed())
        return std::nullopt;
    return bytes;
}

Bytes writeVersionResource(const VersionResource& version) {
    BigEndianWriter out;
    out.u8(version.major);
    out.u8(version.minorAndBug);
    out.u8(version.stage);
    out.u8(version.nonRelease);
    out.u16(version.region);
    writeText(out, version.shortVersion);
    writeText(out, version.longVersion);
    return out.take();
}

} // namespace formats
