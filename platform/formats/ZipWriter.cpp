#include "platform/formats/ZipWriter.h"

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <new>
#include <string_view>
#include <utility>

#include <libdeflate.h>

#include "platform/formats/ZipRecords.h"

namespace formats {

using namespace zip;

namespace {

constexpr std::uint16_t kVersion = 20;   // folders and deflate
constexpr std::uint16_t kVersion64 = 45; // Zip64
constexpr std::uint32_t kFull32 = 0xFFFFFFFF;
constexpr std::uint16_t kFull16 = 0xFFFF;

class Record {
  public:
    template <std::unsigned_integral T>
    Record& add(T value) {
        for (std::size_t i = 0; i < sizeof(T); ++i)
            m_bytes += static_cast<char>(value >> (8 * i));
        return *this;
    }
    Record& add(std::string_view text) {
        m_bytes += text;
        return *this;
    }
    Record& add(const Record& other) {
        m_bytes += other.m_bytes;
        return *this;
    }
    std::size_t size() const { return m_bytes.size(); }
    const std::string& text() const { return m_bytes; }

  private:
    std::string m_bytes;
};

struct DosTime {
    std::uint16_t time = 0;
    std::uint16_t date = 1 << 5 | 1; // 1 January 1980
};

/// UTC in place of the local time that readers expect, so that the bytes don't depend on the time
/// zone; readers of our archives use the "UT" field.
DosTime dosTime(std::int64_t seconds) {
    constexpr std::int64_t kFirst = 315532800; // 1980
    constexpr std::int64_t kLast = 4354819198; // 2107
    seconds = std::clamp(seconds, kFirst, kLast);
    // The inverse of the usual reckoning with years that begin in March.
    const std::int64_t days = seconds / 86400 + 719468;
    const std::int64_t era = days / 146097;
    const std::int64_t dayOfEra = days % 146097;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t march = (5 * dayOfYear + 2) / 153;
    const std::int64_t month = march < 10 ? march + 3 : march - 9;
    const std::int64_t year = era * 400 + yearOfEra + (month <= 2);
    const std::int64_t day = dayOfYear - (153 * march + 2) / 5 + 1;
    const std::int64_t second = seconds % 86400;
    return {
        static_cast<std::uint16_t>(second / 3600 << 11 | second / 60 % 60 << 5 | second % 60 / 2),
        static_cast<std::uint16_t>((year - 1980) << 9 | month << 5 | day)};
}

std::uint16_t kindBits(ZipKind kind) {
    switch (kind) {
    case ZipKind::folder:
        return kFolderKind;
    case ZipKind::link:
        return kLinkKind;
    default:
        return kFileKind;
    }
}

Record timesExtra(std::int64_t modified) {
    const auto time = static_cast<std::int32_t>(
        std::clamp<std::int64_t>(modified, std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max()));
    Record extra;
    extra.add(kTimesExtra).add(std::uint16_t{5}).add(std::uint8_t{1}); // the modification alone
    extra.add(static_cast<std::uint32_t>(time));
    return extra;
}

/// A Zip64 field with those of the values that don't fit; they are replaced by the full number.
Record zip64Extra(bool always, std::initializer_list<std::uint64_t*> values) {
    Record numbers;
    for (std::uint64_t* value : values)
        if (always || *value >= kFull32) {
            numbers.add(*value);
            *value = kFull32;
        }
    Record extra;
    if (numbers.size() > 0)
        extra.add(kZip64Extra).add(static_cast<std::uint16_t>(numbers.size())).add(numbers);
    return extra;
}

} // namespace

ZipWriter::ZipWriter(Sink sink, Options options) : m_sink(std::move(sink)), m_options(options) {
    if (m_options.level > 0) {
        m_compressor = libdeflate_alloc_compressor(m_options.level);
        if (m_compressor == nullptr)
            throw std::bad_alloc();
    }
}

ZipWriter::~ZipWriter() {
    libdeflate_free_compressor(m_compressor);
}

void ZipWriter::write(std::span<const std::byte> bytes) {
    m_sink(bytes);
    m_written += bytes.size();
}

void ZipWriter::add(const ZipEntry& entry, std::span<const std::byte> contents) {
    std::span<const std::byte> packed = contents;
    if (m_compressor != nullptr && entry.kind == ZipKind::file && contents.size() > 1) {
        // Room for less than the contents only: what doesn't become smaller is stored.
        m_packed.resize(std::max(m_packed.size(), contents.size() - 1));
        const std::size_t length = libdeflate_deflate_compress(
            m_compressor, contents.data(), contents.size(), m_packed.data(), contents.size() - 1);
        if (length > 0)
            packed = std::span(m_packed).first(length);
    }
    const bool deflated = packed.data() != contents.data();
    const auto crc = libdeflate_crc32(0, contents.data(), contents.size());
    const DosTime time = dosTime(entry.modified);
    const std::string path = entry.kind == ZipKind::folder ? entry.path + '/' : entry.path;
    const Record times = timesExtra(entry.modified);

    std::uint64_t size = contents.size();
    std::uint64_t packedSize = packed.size();
    // In a local header both sizes stand in the Zip64 field or none.
    const bool isBig = m_options.alwaysZip64 || size >= kFull32 || packedSize >= kFull32;
    const Record localZip64 = zip64Extra(isBig, {&size, &packedSize});
    const auto addCommon = [&](Record& record, const Record& zip64) {
        record.add(zip64.size() > 0 ? kVersion64 : kVersion).add(kNamesAreUtf8);
        record.add(deflated ? kDeflated : kStored).add(time.time).add(time.date).add(crc);
        record.add(static_cast<std::uint32_t>(packedSize)).add(static_cast<std::uint32_t>(size));
        record.add(static_cast<std::uint16_t>(path.size()));
        record.add(static_cast<std::uint16_t>(zip64.size() + times.size()));
    };
    Record local;
    local.add(kLocalMark);
    addCommon(local, localZip64);
    local.add(path).add(localZip64).add(times);

    std::uint64_t offset = m_written;
    size = contents.size();
    packedSize = packed.size();
    const Record centralZip64 = zip64Extra(m_options.alwaysZip64, {&size, &packedSize, &offset});
    Record central;
    central.add(kCentralMark).add(static_cast<std::uint16_t>(kMadeOnUnix << 8 | kVersion64));
    addCommon(central, centralZip64);
    central.add(std::uint16_t{0})
        .add(std::uint16_t{0})
        .add(std::uint16_t{0}); // comment, disk, text
    const std::uint32_t dosFolder = entry.kind == ZipKind::folder ? 0x10 : 0;
    central.add(static_cast<std::uint32_t>(kindBits(entry.kind) | (entry.mode & 07777u)) << 16 |
                dosFolder);
    central.add(static_cast<std::uint32_t>(offset));
    central.add(path).add(centralZip64).add(times);

    write(std::as_bytes(std::span(local.text())));
    write(packed);
    m_directory += central.text();
    ++m_count;
}

void ZipWriter::finish() {
    const std::uint64_t start = m_written;
    const std::uint64_t length = m_directory.size();
    write(std::as_bytes(std::span(m_directory)));
    Record end;
    if (m_options.alwaysZip64 || m_count >= kFull16 || start >= kFull32 || length >= kFull32) {
        end.add(kEnd64Mark).add(std::uint64_t{kEnd64Length - 12});
        end.add(static_cast<std::uint16_t>(kMadeOnUnix << 8 | kVersion64)).add(kVersion64);
        end.add(std::uint32_t{0}).add(std::uint32_t{0}).add(m_count).add(m_count);
        end.add(length).add(start);
        end.add(kLocator64Mark).add(std::uint32_t{0}).add(start + length).add(std::uint32_t{1});
    }
    const bool full = m_options.alwaysZip64;
    const auto count =
        full ? kFull16 : static_cast<std::uint16_t>(std::min<std::uint64_t>(m_count, kFull16));
    const auto shortened = [full](std::uint64_t value) {
        return full ? kFull32 : static_cast<std::uint32_t>(std::min<std::uint64_t>(value, kFull32));
    };
    end.add(kEndMark).add(std::uint16_t{0}).add(std::uint16_t{0}).add(count).add(count);
    end.add(shortened(length)).add(shortened(start)).add(std::uint16_t{0});
    write(std::as_bytes(std::span(end.text())));
}

} // namespace formats
