#include "platform/formats/AliasRecord.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "platform/formats/BigEndian.h"
#include "platform/formats/MacRoman.h"

namespace formats {

namespace {

constexpr std::uint16_t kVersion = 2;
constexpr std::uint16_t kHfsPlusVolume = 0x482B; // 'H+'
constexpr std::uint16_t kFixedDisk = 0;
constexpr std::uint16_t kNoLevels = 0xFFFF; // made without a file to start from
constexpr std::uint64_t kFixedLength = 150;
constexpr std::size_t kVolumeNameField = 28;
constexpr std::size_t kNameField = 64;
constexpr std::size_t kLongestVolumeName = 27;
constexpr std::size_t kLongestName = 31;

enum Extra : std::uint16_t {
    kFolderName = 0,
    kUnicodeName = 14,
    kUnicodeVolumeName = 15,
    kPath = 18,
    kMountPoint = 19,
    kEnd = 0xFFFF
};

// ':' separates folders in Carbon, '/' in POSIX; each is a plain character on the other side.
std::string swapSeparators(std::string name) {
    for (char& c : name)
        c = c == ':' ? '/' : c == '/' ? ':' : c;
    return name;
}

void writePascalText(BigEndianWriter& out, const std::string& text, std::size_t field) {
    out.u8(text.size());
    out.text(text);
    out.zeros(field - 1 - text.size());
}

std::string readPascalText(BigEndianReader& in, std::uint64_t at, std::size_t field) {
    // A length beyond its field is as wrong as one beyond the record.
    const std::uint8_t length = in.u8(at);
    return textOf(in.bytes(at + 1, length < field ? length : in.size()));
}

void writeExtra(BigEndianWriter& out, std::uint16_t tag, std::span<const std::byte> value) {
    out.u16(tag);
    out.u16(value.size());
    out.bytes(value);
    out.padTo(2);
}

void writeTextExtra(BigEndianWriter& out, std::uint16_t tag, std::string_view text) {
    writeExtra(out, tag, std::as_bytes(std::span(text)));
}

void writeUnicodeExtra(BigEndianWriter& out, std::uint16_t tag, const std::string& name) {
    const std::u16string units = utf16Of(swapSeparators(name));
    BigEndianWriter value;
    value.u16(units.size());
    for (const char16_t unit : units)
        value.u16(unit);
    writeExtra(out, tag, value.take());
}

std::optional<std::string> readUnicodeName(std::span<const std::byte> value) {
    BigEndianReader in(value);
    const std::size_t count = in.u16(0);
    if (in.failed() || 2 + count * 2 > value.size())
        return std::nullopt;
    std::u16string units(count, u'\0');
    for (std::size_t i = 0; i < units.size(); ++i)
        units[i] = in.u16(2 + i * 2);
    return swapSeparators(utf8Of(units));
}

std::string carbonName(std::string_view macRoman) {
    return swapSeparators(utf8OfMacRoman(macRoman));
}

// False when the value is not what its tag promises.
bool takeExtra(AliasTarget& target, std::uint16_t tag, std::span<const std::byte> value) {
    switch (tag) {
    case kFolderName:
        target.folderName = carbonName(textOf(value));
        return true;
    case kUnicodeName:
    case kUnicodeVolumeName: {
        auto name = readUnicodeName(value);
        if (name)
            (tag == kUnicodeName ? target.name : target.volumeName) = std::move(*name);
        return name.has_value();
    }
    case kPath:
        target.path = textOf(value);
        return true;
    case kMountPoint:
        target.mountPoint = textOf(value);
        return true;
    default:
        return true;
    }
}

bool readExtras(BigEndianReader& in, AliasTarget& target) {
    std::uint64_t at = kFixedLength;
    while (!in.failed()) {
        const std::uint16_t tag = in.u16(at);
        const std::uint16_t length = in.u16(at + 2);
        const auto value = in.bytes(at + 4, length);
        if (in.failed())
            return false;
        if (tag == kEnd)
            return true;
        if (!takeExtra(target, tag, value))
            return false;
        at += 4 + ((length + 1u) & ~1u);
    }
    return false;
}

} // namespace

std::uint32_t secondsSince1904(std::int64_t secondsSince1970) {
    constexpr std::int64_t kDistance = 2082844800; // 66 years, 17 of them leap years
    constexpr std::int64_t kLatest = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(
        std::clamp(secondsSince1970, -kDistance, kLatest - kDistance) + kDistance);
}

Bytes writeAliasRecord(const AliasTarget& target) {
    constexpr std::size_t kMost = std::numeric_limits<std::uint16_t>::max();
    BigEndianWriter extras;
    // The longest extras; the others are as short as names are.
    if (target.path.size() + target.mountPoint.size() + target.folderName.size() +
            2 * (target.name.size() + target.volumeName.size()) >
        kMost)
        throw std::length_error("more than an alias record can hold");
    writeTextExtra(extras, kFolderName, macRomanOf(swapSeparators(target.folderName), kMost));
    writeUnicodeExtra(extras, kUnicodeName, target.name);
    writeUnicodeExtra(extras, kUnicodeVolumeName, target.volumeName);
    writeTextExtra(extras, kPath, target.path);
    writeTextExtra(extras, kMountPoint, target.mountPoint);
    writeExtra(extras, kEnd, {});
    if (kFixedLength + extras.size() > kMost)
        throw std::length_error("more than an alias record can hold");

    BigEndianWriter out;
    out.u32(0); // user type
    out.u16(kFixedLength + extras.size());
    out.u16(kVersion);
    out.u16(static_cast<std::uint16_t>(target.kind));
    writePascalText(out, macRomanOf(swapSeparators(target.volumeName), kLongestVolumeName),
                    kVolumeNameField);
    out.u32(target.volumeCreated);
    out.u16(kHfsPlusVolume);
    out.u16(kFixedDisk);
    out.u32(target.folderNumber);
    writePascalText(out, macRomanOf(swapSeparators(target.name), kLongestName), kNameField);
    out.u32(target.number);
    out.u32(target.created);
    out.u32(target.type);
    out.u32(target.creator);
    out.u16(kNoLevels); // up from the alias
    out.u16(kNoLevels); // down to the target
    out.u32(0);         // volume attributes
    out.u16(0);         // file system id
    out.zeros(10);
    out.bytes(extras.take());
    return out.take();
}

std::optional<AliasTarget> readAliasRecord(std::span<const std::byte> record) {
    BigEndianReader header(record);
    const std::uint16_t size = header.u16(4);
    BigEndianReader in(header.bytes(0, size));
    if (header.failed() || size < kFixedLength || in.u16(6) != kVersion)
        return std::nullopt;
    AliasTarget target;
    target.kind = AliasTarget::Kind{in.u16(8)};
    target.volumeName = carbonName(readPascalText(in, 10, kVolumeNameField));
    target.volumeCreated = in.u32(38);
    target.folderNumber = in.u32(46);
    target.name = carbonName(readPascalText(in, 50, kNameField));
    target.number = in.u32(114);
    target.created = in.u32(118);
    target.type = in.u32(122);
    target.creator = in.u32(126);
    if (in.failed() || !readExtras(in, target))
        return std::nullopt;
    return target;
}

} // namespace formats
