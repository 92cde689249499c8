// Zip archives put together field by field, so that any of them can be wrong. Used by the tests of
// the reader and of ditto.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <libdeflate.h>

#include "platform/formats/ZipDirectory.h"
#include "platform/formats/ZipRecords.h"

namespace formats::testing {

/// `value` as `bytes` bytes, least significant first.
inline std::string little(std::uint64_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> (8 * i));
    return text;
}

inline std::string extraField(std::uint16_t kind, const std::string& value) {
    return little(kind, 2) + little(value.size(), 2) + value;
}

inline std::uint32_t crcOf(std::string_view text) {
    return libdeflate_crc32(0, text.data(), text.size());
}

/// `text` packed by deflate.
inline std::string deflated(std::string_view text) {
    libdeflate_compressor* compressor = libdeflate_alloc_compressor(6);
    std::string packed(libdeflate_deflate_compress_bound(compressor, text.size()), '\0');
    packed.resize(libdeflate_deflate_compress(compressor, text.data(), text.size(), packed.data(),
                                              packed.size()));
    libdeflate_free_compressor(compressor);
    return packed;
}

/// A member as it will stand in the archive; what is not said is consistent.
struct RawMember {
    std::string name;
    std::string data; ///< as packed
    std::uint16_t mode = 0100644;
    std::uint16_t method = 0;
    std::uint16_t flags = 0;
    std::uint8_t system = 3;
    std::uint64_t size = 0; ///< unpacked; that of `data` when it is stored
    std::uint32_t crc = 0;  ///< that of `data` when it is stored
    std::string centralExtra = {};
    std::string localExtra = {};
    std::uint16_t dosTime = 0;
    std::uint16_t dosDate = 0x21;
    bool crcIsWrong = false;
    bool sizesFollow = false; ///< a data descriptor instead of sizes in the local header
};

inline RawMember file(const std::string& name, const std::string& text) {
    return {.name = name, .data = text, .centralExtra = {}};
}
inline RawMember packedFile(const std::string& name, const std::string& text) {
    RawMember member = file(name, deflated(text));
    member.method = 8;
    member.size = text.size();
    member.crc = crcOf(text);
    return member;
}
inline RawMember folder(const std::string& name) {
    RawMember member = file(name + "/", "");
    member.mode = 0040755;
    return member;
}
inline RawMember linkTo(const std::string& name, const std::string& target) {
    RawMember member = file(name, target);
    member.mode = 0120777;
    return member;
}

/// What the end record says in place of the truth.
struct RawEnd {
    std::uint16_t disk = 0;
    int countMore = 0;
    int lengthMore = 0;
    int startMore = 0;
    std::string comment = {};
};

inline std::string rawArchive(std::vector<RawMember> members, const RawEnd& end = {}) {
    using namespace formats::zip;
    std::string archive;
    std::string directory;
    for (RawMember& member : members) {
        if (member.method == 0) {
            member.size = member.size == 0 ? member.data.size() : member.size;
            member.crc = crcOf(member.data);
        }
        if (member.crcIsWrong)
            ++member.crc;
        if (member.sizesFollow)
            member.flags |= kSizesFollow;
        const std::string sums =
            little(member.crc, 4) + little(member.data.size(), 4) + little(member.size, 4);
        const std::string times = little(member.dosTime, 2) + little(member.dosDate, 2);
        const std::string common =
            little(20, 2) + little(member.flags, 2) + little(member.method, 2) + times;
        const std::size_t offset = archive.size();
        archive += little(kLocalMark, 4) + common +
                   (member.sizesFollow ? std::string(12, '\0') : sums) +
                   little(member.name.size(), 2) + little(member.localExtra.size(), 2) +
                   member.name + member.localExtra + member.data;
        if (member.sizesFollow)
            archive += little(kDescriptorMark, 4) + sums;
        directory += little(kCentralMark, 4) + little(20, 1) + little(member.system, 1) + common +
                     sums + little(member.name.size(), 2) + little(member.centralExtra.size(), 2) +
                     little(0, 6) + little(std::uint32_t{member.mode} << 16, 4) +
                     little(offset, 4) + member.name + member.centralExtra;
    }
    const auto moved = [](std::size_t value, int by) {
        return static_cast<std::uint64_t>(static_cast<std::int64_t>(value) + by);
    };
    const std::size_t start = archive.size();
    archive += directory + little(kEndMark, 4) + little(end.disk, 2) + little(end.disk, 2) +
               little(moved(members.size(), end.countMore), 2) +
               little(moved(members.size(), end.countMore), 2) +
               little(moved(directory.size(), end.lengthMore), 4) +
               little(moved(start, end.startMore), 4) + little(end.comment.size(), 2) + end.comment;
    return archive;
}

inline formats::ZipReading readArchive(std::string_view archive) {
    return formats::readZipDirectory(std::as_bytes(std::span(archive)));
}

inline void writeArchive(const std::string& path, std::string_view archive) {
    std::ofstream(path, std::ios::binary)
        .write(archive.data(), static_cast<std::streamsize>(archive.size()));
}

} // namespace formats::testing
