// Gives the unpacked bytes of an archive's members, checked against what the directory says of
// them. One for each thread that unpacks; it keeps its buffers between members.
//
// Small members are inflated whole by libdeflate, twice as fast as zlib; larger ones pass through
// ISA-L in pieces, about as fast, so that memory does not grow with a member's size. Bytes are read
// ahead by a window: members that are asked for in the archive's order cost few reads.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <stdexcept>
#include <vector>

#include "platform/formats/ZipDirectory.h"
#include "tools/ditto/ArchiveFile.h"

struct inflate_state;
struct libdeflate_decompressor;

namespace tools {

/// The archive's bytes of a member are not what its directory says.
class DamagedMember : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class MemberReader {
  public:
    /// Members of at most this size are best read whole.
    static constexpr std::uint64_t kSmall = std::uint64_t{1} << 20;

    explicit MemberReader(const ArchiveFile& archive);
    ~MemberReader();
    MemberReader(const MemberReader&) = delete;
    MemberReader& operator=(const MemberReader&) = delete;

    /// All bytes of the member, valid until the next call. Throws DamagedMember.
    std::span<const std::byte> read(const formats::ZipMember& member);

    /// Hands the member's bytes to `sink` in order, never more than the directory says. Throws
    /// DamagedMember, perhaps after all bytes were handed out; what the sink throws passes through.
    using Sink = std::function<void(std::span<const std::byte>)>;
    void stream(const formats::ZipMember& member, const Sink& sink);

  private:
    std::uint64_t dataOffset(const formats::ZipMember& member);
    std::span<const std::byte> window(std::uint64_t offset, std::size_t length);
    void streamStored(const formats::ZipMember& member, std::uint64_t at, const Sink& sink);
    void streamDeflated(const formats::ZipMember& member, std::uint64_t at, const Sink& sink);

    const ArchiveFile& m_archive;
    libdeflate_decompressor* m_decompressor;
    std::vector<std::byte> m_window;
    std::uint64_t m_windowStart = 0;
    std::size_t m_windowLength = 0;
    std::vector<std::byte> m_unpacked;
    std::unique_ptr<inflate_state> m_stream; // made for the first large member
};

} // namespace tools
