#include "tools/ditto/MemberReader.h"

#include <algorithm>
#include <new>

#include <isa-l/igzip_lib.h>
#include <libdeflate.h>

namespace tools {

namespace {

constexpr std::size_t kWindow = 256 * 1024;
constexpr std::size_t kPiece = 256 * 1024;

[[noreturn]] void damaged() {
    throw DamagedMember("the archive is damaged here: the data does not match its check sum");
}

[[noreturn]] void unreadable() {
    throw DamagedMember("the archive can't be read here");
}

} // namespace

MemberReader::MemberReader(const ArchiveFile& archive)
    : m_archive(archive), m_decompressor(libdeflate_alloc_decompressor()) {
    if (m_decompressor == nullptr)
        throw std::bad_alloc();
}

MemberReader::~MemberReader() {
    libdeflate_free_decompressor(m_decompressor);
}

std::span<const std::byte> MemberReader::window(std::uint64_t offset, std::size_t length) {
    if (offset < m_windowStart || offset + length > m_windowStart + m_windowLength) {
        if (offset > m_archive.size() || length > m_archive.size() - offset)
            unreadable();
        const auto ahead = static_cast<std::size_t>(
            std::min<std::uint64_t>(std::max(kWindow, length), m_archive.size() - offset));
        if (m_window.size() < ahead)
            m_window.resize(ahead);
        m_windowLength = 0;
        if (!m_archive.readAt(offset, std::span(m_window).first(ahead)))
            unreadable();
        m_windowStart = offset;
        m_windowLength = ahead;
    }
    return std::span(m_window).subspan(static_cast<std::size_t>(offset - m_windowStart), length);
}

std::uint64_t MemberReader::dataOffset(const formats::ZipMember& member) {
    const auto header = window(member.headerOffset, formats::kZipLocalHeaderLength);
    const auto start =
        formats::zipDataStart(header.first<formats::kZipLocalHeaderLength>(), member);
    if (!start)
        throw DamagedMember("the archive is damaged here: no header stands before the data");
    return member.headerOffset + *start;
}

std::span<const std::byte> MemberReader::read(const formats::ZipMember& member) {
    const auto packed = window(dataOffset(member), static_cast<std::size_t>(member.packedSize));
    const auto size = static_cast<std::size_t>(member.size);
    std::span<const std::byte> bytes = packed;
    if (member.deflated) {
        if (m_unpacked.size() < size)
            m_unpacked.resize(size);
        if (libdeflate_deflate_decompress(m_decompressor, packed.data(), packed.size(),
                                          m_unpacked.data(), size, nullptr) != LIBDEFLATE_SUCCESS)
            damaged();
        bytes = std::span(m_unpacked).first(size);
    }
    if (libdeflate_crc32(0, bytes.data(), bytes.size()) != member.crc)
        damaged();
    return bytes;
}

void MemberReader::stream(const formats::ZipMember& member, const Sink& sink) {
    const std::uint64_t at = dataOffset(member);
    if (member.deflated)
        streamDeflated(member, at, sink);
    else
        streamStored(member, at, sink);
}

void MemberReader::streamStored(const formats::ZipMember& member, std::uint64_t at,
                                const Sink& sink) {
    std::uint32_t crc = 0;
    for (std::uint64_t left = member.size; left > 0;) {
        const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(left, kPiece));
        const auto bytes = window(at, length);
        crc = libdeflate_crc32(crc, bytes.data(), length);
        sink(bytes);
        at += length;
        left -= length;
    }
    if (crc != member.crc)
        damaged();
}

void MemberReader::streamDeflated(const formats::ZipMember& member, std::uint64_t at,
                                  const Sink& sink) {
    if (!m_stream)
        m_stream = std::make_unique<inflate_state>();
    inflate_state& stream = *m_stream;
    isal_inflate_init(&stream);
    if (m_unpacked.size() < kPiece)
        m_unpacked.resize(kPiece);
    std::uint64_t packedLeft = member.packedSize;
    std::uint64_t left = member.size;
    std::uint32_t crc = 0;
    while (stream.block_state != ISAL_BLOCK_FINISH) {
        if (stream.avail_in == 0 && packedLeft > 0) {
            const auto length =
                static_cast<std::size_t>(std::min<std::uint64_t>(packedLeft, kWindow));
            const auto packed = window(at, length);
            // The library only reads there.
            stream.next_in = reinterpret_cast<std::uint8_t*>(const_cast<std::byte*>(packed.data()));
            stream.avail_in = static_cast<std::uint32_t>(length);
            at += length;
            packedLeft -= length;
        }
        stream.next_out = reinterpret_cast<std::uint8_t*>(m_unpacked.data());
        stream.avail_out = kPiece;
        const std::uint32_t before = stream.avail_in;
        const int result = isal_inflate(&stream);
        const std::size_t got = kPiece - stream.avail_out;
        const bool isStuck = got == 0 && stream.avail_in == before;
        if (result != ISAL_DECOMP_OK || got > left ||
            (isStuck && stream.block_state != ISAL_BLOCK_FINISH))
            damaged();
        const auto bytes = std::span<const std::byte>(m_unpacked).first(got);
        crc = libdeflate_crc32(crc, bytes.data(), got);
        left -= got;
        if (got > 0)
            sink(bytes);
    }
    if (left > 0 || crc != member.crc)
        damaged();
}

} // namespace tools
