// The records of a zip archive as the reader and the writer both know them: marks, lengths, flag
// bits, extra fields. Everything is little-endian.
//
// Format: APPNOTE.TXT 6.3.10 (PKWARE) and, for the extra fields marked so, Info-ZIP's
// proginfo/extrafld.txt. Pure functions over bytes; used by the Zip files of this folder.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>

namespace formats::zip {

inline constexpr std::uint32_t kLocalMark = 0x04034B50;
inline constexpr std::uint32_t kCentralMark = 0x02014B50;
inline constexpr std::uint32_t kEndMark = 0x06054B50;
inline constexpr std::uint32_t kEnd64Mark = 0x06064B50;
inline constexpr std::uint32_t kLocator64Mark = 0x07064B50;
inline constexpr std::uint32_t kDescriptorMark = 0x08074B50;

inline constexpr std::size_t kCentralLength = 46;
inline constexpr std::size_t kEndLength = 22;
inline constexpr std::size_t kEnd64Length = 56;
inline constexpr std::size_t kLocator64Length = 20;

inline constexpr std::uint16_t kEncrypted = 1u << 0;
inline constexpr std::uint16_t kSizesFollow = 1u << 3;
inline constexpr std::uint16_t kStronglyEncrypted = 1u << 6;
inline constexpr std::uint16_t kNamesAreUtf8 = 1u << 11;
inline constexpr std::uint16_t kHeaderEncrypted = 1u << 13;

inline constexpr std::uint16_t kStored = 0;
inline constexpr std::uint16_t kDeflated = 8;

inline constexpr std::uint16_t kZip64Extra = 0x0001;
inline constexpr std::uint16_t kTimesExtra = 0x5455;       // Info-ZIP, "UT"
inline constexpr std::uint16_t kOldUnixExtra = 0x5855;     // Info-ZIP, "UX"; macOS writes it
inline constexpr std::uint16_t kUnicodePathExtra = 0x7075; // Info-ZIP, "up"

inline constexpr std::uint8_t kMadeOnUnix = 3;
inline constexpr std::uint8_t kMadeOnDarwin = 19;

// The file kinds of a Unix mode, as every Unix has them.
inline constexpr std::uint16_t kKindMask = 0170000;
inline constexpr std::uint16_t kFolderKind = 0040000;
inline constexpr std::uint16_t kFileKind = 0100000;
inline constexpr std::uint16_t kLinkKind = 0120000;

/// The value of a field at `at`, which must have room for it.
template <std::unsigned_integral T>
T field(const std::byte* at) {
    T value = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i)
        value = static_cast<T>(value | static_cast<T>(static_cast<T>(at[i]) << (8 * i)));
    return value;
}

inline std::uint16_t field16(const std::byte* at) {
    return field<std::uint16_t>(at);
}
inline std::uint32_t field32(const std::byte* at) {
    return field<std::uint32_t>(at);
}
inline std::uint64_t field64(const std::byte* at) {
    return field<std::uint64_t>(at);
}

} // namespace formats::zip
