#include "platform/formats/IconFamily.h"

#include "platform/formats/BigEndian.h"
#include "platform/formats/ResourceFork.h"

namespace formats {

std::optional<std::vector<std::uint32_t>> iconFamilyElements(std::span<const std::byte> family) {
    constexpr std::uint64_t kHeaderLength = 8;
    BigEndianReader header(family);
    BigEndianReader in(header.bytes(0, header.u32(4)));
    if (header.u32(0) != fourCharacters("icns") || header.failed())
        return std::nullopt;
    std::vector<std::uint32_t> types;
    for (std::uint64_t at = kHeaderLength; at < in.size();) {
        const std::uint32_t type = in.u32(at);
        const std::uint32_t length = in.u32(at + 4);
        in.bytes(at, length);
        if (in.failed() || length < kHeaderLength)
            return std::nullopt;
        types.push_back(type);
        at += length;
    }
    if (types.empty())
        return std::nullopt;
    return types;
}

} // namespace formats
