#include "platform/formats/AppleDouble.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

#include "platform/formats/BigEndian.h"

namespace formats {

namespace {

constexpr std::uint32_t kMagic = 0x00051607;
constexpr std::uint32_t kVersion = 0x00020000;
constexpr std::uint32_t kResourceForkEntry = 2;
constexpr std::uint32_t kFinderInformationEntry = 9;
constexpr std::uint64_t kHeaderLength = 26;
constexpr std::uint64_t kEntryLength = 12;
constexpr std::uint64_t kFinderInformationLength = 32;

// The attribute header, counted from the start of entry 9: two bytes of padding bring it to a
// multiple of four in the file.
constexpr std::uint64_t kAttributeHeader = 34;
constexpr std::uint64_t kAttributeHeaderLength = 36;
constexpr std::uint64_t kAttributeCountField = 34;   // within the attribute header
constexpr std::uint32_t kAttributeMark = 0x41545452; // 'ATTR'
constexpr std::uint64_t kAttributeNameField = 11;    // within an attribute's entry
constexpr std::size_t kLongestAttributeName = 254;
constexpr std::size_t kMostAttributes = 0xFFFF;

struct Extent {
    std::uint64_t offset = 0;
    std::uint64_t length = 0;
};

// Attribute entries follow one another at multiples of four.
constexpr std::uint64_t attributeEntryLength(std::uint64_t nameLength) {
    return (kAttributeNameField + nameLength + 3) & ~std::uint64_t{3};
}

// Offsets inside the attribute header count from the start of the file. Values that overlap would
// let a small file ask for any amount of memory, so their sum may not exceed the file.
bool readAttributes(BigEndianReader& in, std::uint64_t header,
                    std::vector<ExtendedAttribute>& attributes) {
    const std::uint16_t count = in.u16(header + kAttributeCountField);
    std::uint64_t at = header + kAttributeHeaderLength;
    std::uint64_t sum = 0;
    for (std::uint16_t i = 0; i < count && !in.failed(); ++i) {
        const Extent data{in.u32(at), in.u32(at + 4)};
        const std::uint8_t nameLength = in.u8(at + 10); // with the zero byte at its end
        const auto name = in.bytes(at + kAttributeNameField, nameLength);
        const auto value = in.bytes(data.offset, data.length);
        sum += data.length;
        if (in.failed() || sum > in.size())
            return false;
        const auto end = std::find(name.begin(), name.end(), std::byte{0});
        if (end == name.begin() || end == name.end())
            return false;
        attributes.push_back({textOf({name.begin(), end}), Bytes(value.begin(), value.end())});
        at += attributeEntryLength(nameLength);
    }
    return !in.failed();
}

bool readFinderInformation(BigEndianReader& in, const Extent& entry, AppleDouble& result) {
    if (entry.length < kFinderInformationLength)
        return false;
    std::ranges::copy(in.bytes(entry.offset, kFinderInformationLength),
                      result.finderInformation.begin());
    if (entry.length < kAttributeHeader + kAttributeHeaderLength ||
        in.u32(entry.offset + kAttributeHeader) != kAttributeMark)
        return true;
    return readAttributes(in, entry.offset + kAttributeHeader, result.attributes);
}

bool fits(const ExtendedAttribute& attribute) {
    return !attribute.name.empty() && attribute.name.size() <= kLongestAttributeName &&
           attribute.name.find('\0') == std::string::npos;
}

std::vector<const ExtendedAttribute*> attributesThatFit(const AppleDouble& value) {
    std::vector<const ExtendedAttribute*> fitting;
    for (const ExtendedAttribute& attribute : value.attributes)
        if (fits(attribute) && fitting.size() < kMostAttributes)
            fitting.push_back(&attribute);
    return fitting;
}

void writeAttributes(BigEndianWriter& out, const std::vector<const ExtendedAttribute*>& attributes,
                     std::uint64_t start, std::uint64_t end) {
    out.zeros(2);
    out.u32(kAttributeMark);
    out.u32(0); // debug tag
    out.u32(end);
    out.u32(start);
    out.u32(end - start);
    out.zeros(12);
    out.u16(0); // flags
    out.u16(attributes.size());
    std::uint64_t offset = start;
    for (const ExtendedAttribute* attribute : attributes) {
        out.u32(offset);
        out.u32(attribute->value.size());
        out.u16(0); // flags
        out.u8(attribute->name.size() + 1);
        out.text(attribute->name);
        out.u8(0);
        out.padTo(4);
        offset += attribute->value.size();
    }
    for (const ExtendedAttribute* attribute : attributes)
        out.bytes(attribute->value);
}

} // namespace

std::optional<AppleDouble> readAppleDouble(std::span<const std::byte> bytes) {
    BigEndianReader in(bytes);
    if (in.u32(0) != kMagic || in.u32(4) != kVersion)
        return std::nullopt;
    AppleDouble result;
    std::optional<Extent> finderInformation;
    std::optional<Extent> resourceFork;
    const std::uint16_t count = in.u16(24);
    for (std::uint16_t i = 0; i < count; ++i) {
        const std::uint64_t at = kHeaderLength + i * kEntryLength;
        const std::uint32_t kind = in.u32(at);
        const Extent extent{in.u32(at + 4), in.u32(at + 8)};
        in.bytes(extent.offset, extent.length);
        if (in.failed())
            return std::nullopt;
        if (kind != kFinderInformationEntry && kind != kResourceForkEntry)
            continue;
        auto& place = kind == kFinderInformationEntry ? finderInformation : resourceFork;
        if (place)
            return std::nullopt;
        place = extent;
    }
    if (finderInformation && !readFinderInformation(in, *finderInformation, result))
        return std::nullopt;
    if (resourceFork) {
        const auto fork = in.bytes(resourceFork->offset, resourceFork->length);
        result.resourceFork.assign(fork.begin(), fork.end());
    }
    if (in.failed())
        return std::nullopt;
    return result;
}

Bytes writeAppleDouble(const AppleDouble& value) {
    const auto attributes = attributesThatFit(value);
    // Both entries always, in this order: the desktop's own readers look for them there.
    const std::uint64_t start = kHeaderLength + 2 * kEntryLength;
    std::uint64_t attributeData = start + kAttributeHeader + kAttributeHeaderLength;
    std::uint64_t end = start + kFinderInformationLength;
    if (!attributes.empty()) {
        for (const ExtendedAttribute* attribute : attributes)
            attributeData += attributeEntryLength(attribute->name.size() + 1);
        end = attributeData;
        for (const ExtendedAttribute* attribute : attributes)
            end += attribute->value.size();
    }
    if (end + value.resourceFork.size() > 0xFFFFFFFF)
        throw std::length_error("more than an AppleDouble file can hold");

    BigEndianWriter out;
    out.u32(kMagic);
    out.u32(kVersion);
    out.zeros(16);
    out.u16(2);
    out.u32(kFinderInformationEntry);
    out.u32(start);
    out.u32(end - start);
    out.u32(kResourceForkEntry);
    out.u32(end);
    out.u32(value.resourceFork.size());
    out.bytes(value.finderInformation);
    if (!attributes.empty())
        writeAttributes(out, attributes, attributeData, end);
    out.bytes(value.resourceFork);
    return out.take();
}

} // namespace formats
