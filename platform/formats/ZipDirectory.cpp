#include "platform/formats/ZipDirectory.h"

#include <algorithm>
#include <cstring>

#include <libdeflate.h>

#include "platform/formats/ZipLayout.h"
#include "platform/formats/ZipNames.h"
#include "platform/formats/ZipRecords.h"

namespace formats {

using namespace zip;

namespace {

constexpr std::uint64_t kMostMembers = 4'000'000;

// Deflate's densest code is one bit for a length of 258 and one for its distance: 1032 bytes from
// one. A member that claims more can't be true.
constexpr std::uint64_t kMostBytesFromOne = 1032;

// Larger than any record of the directory: three fields of 65535 bytes behind the fixed part.
constexpr std::size_t kWindow = 256 * 1024;

constexpr std::uint16_t kFull16 = 0xFFFF;
constexpr std::uint32_t kFull32 = 0xFFFFFFFF;

using Span = std::span<const std::byte>;

std::string_view text(Span bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// Days since 1970 of a day in the Gregorian calendar, months from 1 (the usual reckoning with
/// years that begin in March).
std::int64_t daysSince1970(int year, int month, int day) {
    year -= month <= 2;
    const int era = year / 400;
    const int yearOfEra = year - era * 400;
    const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return std::int64_t{era} * 146097 + dayOfEra - 719468;
}

std::int64_t secondsOfDosTime(std::uint16_t time, std::uint16_t date) {
    const int month = std::clamp(date >> 5 & 15, 1, 12);
    const int day = std::max(date & 31, 1);
    return daysSince1970(1980 + (date >> 9), month, day) * 86400 + (time >> 11) * 3600 +
           (time >> 5 & 63) * 60 + (time & 31) * 2;
}

} // namespace

class ZipDirectoryReader {
  public:
    ZipDirectoryReader(std::uint64_t size, const ZipReadAt& readAt)
        : m_size(size), m_readAt(readAt) {}

    ZipDirectory read() {
        findEnd();
        if (m_count > kMostMembers)
            throw ZipRefusal{"it holds more than 4,000,000 members"};
        // Also keeps an invented count from reserving memory.
        if (m_count > m_length / kCentralLength)
            throw ZipRefusal{"its directory is damaged"};
        m_directory.m_members.reserve(static_cast<std::size_t>(m_count));
        m_stretches.reserve(static_cast<std::size_t>(m_count));
        for (std::uint64_t i = 0; i < m_count; ++i)
            readMember();
        if (m_at != m_start + m_length)
            throw ZipRefusal{"its directory is damaged"};
        m_window = {};
        ZipLayout::refuseOverlaps(m_stretches);
        m_stretches = {};
        ZipLayout(m_directory).arrange();
        return std::move(m_directory);
    }

  private:
    void fill(std::uint64_t offset, std::span<std::byte> into) const {
        if (offset > m_size || into.size() > m_size - offset || !m_readAt(offset, into))
            throw ZipRefusal{"it can't be read"};
    }

    void findEnd();
    void readEnd64(std::uint64_t end);
    Span next(std::size_t length);
    void readMember();
    void readExtra(Span extra, Span rawName, ZipMember& member, std::uint32_t& disk,
                   std::string& name);
    void readPath(Span rawName, std::uint16_t flags, std::uint8_t system, std::string& name);
    std::string_view keep(const std::string& name);
    void setKind(ZipMember& member, std::uint32_t attributes, std::uint8_t system);

    std::uint64_t m_size;
    const ZipReadAt& m_readAt;
    std::uint64_t m_start = 0;  // of the directory
    std::uint64_t m_length = 0; // of the directory
    std::uint64_t m_count = 0;
    std::uint64_t m_at = 0;
    std::vector<std::byte> m_window;
    std::uint64_t m_windowStart = 0;
    std::string m_name;
    std::size_t m_nameRoom = 0;
    char* m_nameEnd = nullptr;
    std::vector<std::pair<std::uint64_t, std::uint64_t>> m_stretches;
    ZipDirectory m_directory;
};

void ZipDirectoryReader::findEnd() {
    if (m_size == 0)
        throw ZipRefusal{"it is empty"};
    if (m_size < kEndLength)
        throw ZipRefusal{"it is not a zip archive"};
    // The end record is followed by a comment of up to 65535 bytes and nothing else.
    const auto length =
        static_cast<std::size_t>(std::min<std::uint64_t>(m_size, kEndLength + kFull16));
    std::vector<std::byte> tail(length);
    fill(m_size - length, tail);
    std::size_t at = length - kEndLength;
    while (field32(&tail[at]) != kEndMark || field16(&tail[at + 20]) != length - at - kEndLength)
        if (at-- == 0) {
            std::byte first[4]{};
            fill(0, first);
            throw ZipRefusal{field32(first) == kLocalMark ? "it is cut off or damaged at its end"
                                                          : "it is not a zip archive"};
        }
    const std::byte* record = &tail[at];
    std::uint64_t end = m_size - length + at;
    const bool onOneDisk = (field16(record + 4) == 0 || field16(record + 4) == kFull16) &&
                           (field16(record + 6) == 0 || field16(record + 6) == kFull16) &&
                           field16(record + 8) == field16(record + 10);
    m_count = field16(record + 10);
    m_length = field32(record + 12);
    m_start = field32(record + 16);
    if (!onOneDisk)
        throw ZipRefusal{"it is part of an archive of several files"};
    readEnd64(end);
    end = m_at;
    if (m_start > end || end - m_start != m_length)
        throw ZipRefusal{"its directory is not where its end says: bytes are missing or added"};
    m_at = m_start;
}

// Leaves in m_at where the directory must end.
void ZipDirectoryReader::readEnd64(std::uint64_t end) {
    m_at = end;
    std::byte locator[kLocator64Length]{};
    if (end < kLocator64Length)
        return;
    fill(end - kLocator64Length, locator);
    if (field32(locator) != kLocator64Mark)
        return; // even numbers at their limit are meant as they stand
    if (field32(locator + 4) != 0 || field32(locator + 16) > 1)
        throw ZipRefusal{"it is part of an archive of several files"};
    const std::uint64_t at = field64(locator + 8);
    std::byte record[kEnd64Length]{};
    fill(at, record);
    if (field32(record) != kEnd64Mark || at > end - kLocator64Length ||
        field64(record + 4) != end - kLocator64Length - at - 12)
        throw ZipRefusal{"its Zip64 end record is damaged"};
    if (field32(record + 16) != 0 || field32(record + 20) != 0 ||
        field64(record + 24) != field64(record + 32))
        throw ZipRefusal{"it is part of an archive of several files"};
    // Some packers write this record where nobody needs it; the old one must agree then.
    const auto replace = [](std::uint64_t& old, std::uint64_t full, std::uint64_t by) {
        if (old != full && old != by)
            throw ZipRefusal{"its two end records disagree"};
        old = by;
    };
    replace(m_count, kFull16, field64(record + 32));
    replace(m_length, kFull32, field64(record + 40));
    replace(m_start, kFull32, field64(record + 48));
    m_at = at;
}

/// The next `length` bytes of the directory, valid until the next call.
Span ZipDirectoryReader::next(std::size_t length) {
    const std::uint64_t end = m_start + m_length;
    if (length > end - m_at)
        throw ZipRefusal{"its directory is damaged"};
    if (m_at < m_windowStart || m_at + length > m_windowStart + m_window.size()) {
        m_window.resize(static_cast<std::size_t>(std::min<std::uint64_t>(kWindow, end - m_at)));
        m_windowStart = m_at;
        fill(m_at, m_window);
    }
    const Span bytes(m_window.data() + (m_at - m_windowStart), length);
    m_at += length;
    return bytes;
}

void ZipDirectoryReader::readMember() {
    const Span fixed = next(kCentralLength);
    const std::byte* record = fixed.data();
    if (field32(record) != kCentralMark)
        throw ZipRefusal{"its directory is damaged"};
    const auto system = static_cast<std::uint8_t>(record[5]);
    const std::uint16_t flags = field16(record + 8);
    const std::uint16_t method = field16(record + 10);
    const std::uint16_t time = field16(record + 12);
    const std::uint16_t date = field16(record + 14);
    ZipMember member;
    member.crc = field32(record + 16);
    member.packedSize = field32(record + 20);
    member.size = field32(record + 24);
    const std::size_t nameLength = field16(record + 28);
    const std::size_t extraLength = field16(record + 30);
    const std::size_t commentLength = field16(record + 32);
    std::uint32_t disk = field16(record + 34);
    const std::uint32_t attributes = field32(record + 38);
    member.headerOffset = field32(record + 42);
    member.modified = secondsOfDosTime(time, date);
    member.timeIsLocal = true;
    member.deflated = method == kDeflated;

    const Span rest = next(nameLength + extraLength + commentLength);
    const Span rawName = rest.first(nameLength);
    m_name.clear();
    readExtra(rest.subspan(nameLength, extraLength), rawName, member, disk, m_name);
    if (m_name.empty())
        readPath(rawName, flags, system, m_name);
    const auto refuse = [this](const std::string& why) { throw ZipRefusal{m_name + ": " + why}; };
    if (!isUtf8(m_name))
        throw ZipRefusal{"a member's name is not UTF-8"};
    const bool endsWithSlash = m_name.ends_with('/');
    if (const char* unusable = tidyPath(m_name))
        refuse(unusable);
    if ((flags & (kEncrypted | kStronglyEncrypted | kHeaderEncrypted)) != 0)
        refuse("it is encrypted");
    if (method != kStored && method != kDeflated)
        refuse("it is packed by method " + std::to_string(method) + ", which is not supported");
    if (disk != 0)
        refuse("it lies in another file of the archive");
    const std::uint64_t leastPacked =
        member.size / kMostBytesFromOne + (member.size % kMostBytesFromOne != 0);
    if (member.deflated ? member.packedSize < leastPacked : member.size != member.packedSize)
        refuse("it claims a size that its data can't have");
    const std::uint64_t beforeData = member.headerOffset + kZipLocalHeaderLength + nameLength;
    if (member.headerOffset > m_start || beforeData > m_start ||
        member.packedSize > m_start - beforeData)
        refuse("its data would lie outside the archive");
    m_stretches.emplace_back(member.headerOffset, beforeData + member.packedSize);

    setKind(member, attributes, system);
    if (endsWithSlash)
        member.kind = ZipKind::folder;
    if (m_name.empty() && member.kind != ZipKind::folder)
        throw ZipRefusal{"a member has no name"};
    if (m_name.empty())
        return; // the top folder itself
    if (member.kind != ZipKind::folder)
        m_directory.m_totalSize += member.size;
    member.path = keep(m_name);
    m_directory.m_members.push_back(member);
}

void ZipDirectoryReader::readExtra(Span extra, Span rawName, ZipMember& member, std::uint32_t& disk,
                                   std::string& name) {
    const bool sizeIsBig = member.size == kFull32;
    const bool packedSizeIsBig = member.packedSize == kFull32;
    const bool offsetIsBig = member.headerOffset == kFull32;
    bool haveBig = false;
    while (extra.size() >= 4) {
        const std::uint16_t kind = field16(extra.data());
        const std::size_t length = field16(extra.data() + 2);
        if (length > extra.size() - 4)
            break; // some writers leave padding here
        Span value = extra.subspan(4, length);
        extra = extra.subspan(4 + length);
        if (kind == kZip64Extra) {
            const auto take = [&value](bool wanted, std::uint64_t& into) {
                if (!wanted)
                    return true;
                if (value.size() < 8)
                    return false;
                into = field64(value.data());
                value = value.subspan(8);
                return true;
            };
            haveBig = take(sizeIsBig, member.size) && take(packedSizeIsBig, member.packedSize) &&
                      take(offsetIsBig, member.headerOffset);
            if (disk == kFull16 && value.size() >= 4)
                disk = field32(value.data());
        } else if (kind == kTimesExtra && length >= 5 && (value[0] & std::byte{1}) != std::byte{}) {
            member.modified = static_cast<std::int32_t>(field32(value.data() + 1));
            member.timeIsLocal = false;
        } else if (kind == kOldUnixExtra && length >= 8 && member.timeIsLocal) {
            member.modified = static_cast<std::int32_t>(field32(value.data() + 4));
            member.timeIsLocal = false;
        } else if (kind == kUnicodePathExtra && length > 5 && value[0] == std::byte{1} &&
                   field32(value.data() + 1) ==
                       libdeflate_crc32(0, rawName.data(), rawName.size())) {
            name = text(value.subspan(5));
        }
    }
    if ((sizeIsBig || packedSizeIsBig || offsetIsBig) && !haveBig)
        throw ZipRefusal{"a member's Zip64 field is missing or damaged"};
}

void ZipDirectoryReader::readPath(Span rawName, std::uint16_t flags, std::uint8_t system,
                                  std::string& name) {
    const std::string_view raw = text(rawName);
    // Unix tools write names as the file system has them and mostly don't say so.
    const bool onUnix = system == kMadeOnUnix || system == kMadeOnDarwin;
    if ((flags & kNamesAreUtf8) != 0 || (onUnix && isUtf8(raw)))
        name = raw;
    else
        appendFromCodePage437(raw, name);
}

void ZipDirectoryReader::setKind(ZipMember& member, std::uint32_t attributes, std::uint8_t system) {
    constexpr std::uint32_t kDosFolder = 0x10;
    const auto mode = static_cast<std::uint16_t>(attributes >> 16);
    const bool onUnix = system == kMadeOnUnix || system == kMadeOnDarwin;
    if (!onUnix || mode == 0) {
        member.kind = (attributes & kDosFolder) != 0 ? ZipKind::folder : ZipKind::file;
        return;
    }
    member.hasMode = true;
    member.mode = mode & 0777;
    switch (mode & kKindMask) {
    case 0:
    case kFileKind:
        member.kind = ZipKind::file;
        break;
    case kFolderKind:
        member.kind = ZipKind::folder;
        break;
    case kLinkKind:
        member.kind = ZipKind::link;
        break;
    default:
        member.kind = ZipKind::other;
    }
}

// Names stand one behind the other in blocks, which never move.
std::string_view ZipDirectoryReader::keep(const std::string& name) {
    constexpr std::size_t kBlock = 64 * 1024;
    const std::size_t length = name.size() + 1;
    if (length > m_nameRoom) {
        m_directory.m_names.push_back(std::make_unique_for_overwrite<char[]>(kBlock));
        m_nameEnd = m_directory.m_names.back().get();
        m_nameRoom = kBlock;
    }
    char* kept = m_nameEnd;
    std::memcpy(kept, name.c_str(), length);
    m_nameEnd += length;
    m_nameRoom -= length;
    return {kept, name.size()};
}

ZipReading readZipDirectory(std::uint64_t size, const ZipReadAt& readAt) {
    try {
        return {ZipDirectoryReader(size, readAt).read(), {}};
    } catch (ZipRefusal& refusal) {
        return {std::nullopt, std::move(refusal.reason)};
    }
}

ZipReading readZipDirectory(std::span<const std::byte> archive) {
    return readZipDirectory(archive.size(), [archive](std::uint64_t at, std::span<std::byte> into) {
        std::ranges::copy(archive.subspan(static_cast<std::size_t>(at), into.size()), into.begin());
        return true;
    });
}

std::optional<std::size_t>
zipDataStart(std::span<const std::byte, kZipLocalHeaderLength> localHeader,
             const ZipMember& member) {
    const std::byte* record = localHeader.data();
    const std::uint16_t method = field16(record + 8);
    if (field32(record) != kLocalMark || method != (member.deflated ? kDeflated : kStored) ||
        (field16(record + 6) & kEncrypted) != 0)
        return std::nullopt;
    return kZipLocalHeaderLength + field16(record + 26) + field16(record + 28);
}

} // namespace formats
