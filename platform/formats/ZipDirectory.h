// The table of contents of a zip archive, read once and checked whole, so that whoever unpacks or
// compares by it needs no suspicion of its own. Used by tools/ditto to unpack, and by the installer
// to compare an installed tree with the archive.
//
// Format: APPNOTE.TXT 6.3.10 with Zip64, stored and deflated members; Info-ZIP's extra fields for
// times and Unicode names. Pure functions over bytes: no disk, no state, any thread. Input may be
// hostile; nothing of the members' data is read.
//
// What a directory that was read promises:
//  - no path is absolute, empty, longer than 4096 bytes or holds "..", ".", an empty component, a
//    component of more than 255 bytes, a backslash or a NUL;
//  - no two paths are the same in any letter case or Unicode form, no file is also a folder;
//  - members lie inside the archive, do not overlap, and claim no size beyond what their packed
//    bytes can reach;
//  - nothing is encrypted, spread over several disks, or packed by an unknown method.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace formats {

enum class ZipKind : std::uint8_t {
    file,
    folder,
    link, ///< a symbolic link; its data is the target
    other ///< a device, a named pipe, a socket: nothing that an archive should bring
};

struct ZipMember {
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    /// UTF-8, folders without the slash at the end. A NUL stands after its last byte.
    std::string_view path;
    std::uint64_t size = 0;
    std::uint64_t packedSize = 0;
    std::uint64_t headerOffset = 0; ///< of the local header, from the archive's start
    std::int64_t modified = 0;      ///< seconds since 1970; see `timeIsLocal`
    std::uint32_t crc = 0;
    std::uint32_t folder = 0; ///< the folder it lies in, an index of `ZipDirectory::folders`
    /// For an AppleDouble file below "__MACOSX": the member whose attributes it holds, else kNone.
    /// It is not a file of its own unless its content turns out to be something else.
    std::uint32_t describes = kNone;
    std::uint16_t mode = 0; ///< permissions, at most 0777; without meaning unless `hasMode`
    ZipKind kind = ZipKind::file;
    bool hasMode = false;
    bool deflated = false;
    /// `modified` counts a clock on the wall (a DOS time, steps of two seconds), not UTC.
    bool timeIsLocal = false;

    /// The path's last component; a NUL stands after it.
    std::string_view name() const { return path.substr(path.rfind('/') + 1); }
};

/// A folder that the archive names, itself or as part of a longer path.
struct ZipFolder {
    std::string_view path; ///< empty for the first one, the folder that is unpacked into
    std::uint32_t parent = 0;
    std::uint32_t member = ZipMember::kNone; ///< its own member, when it has one

    std::string_view name() const { return path.substr(path.rfind('/') + 1); }
};

class ZipDirectory {
  public:
    /// In the archive's order.
    const std::vector<ZipMember>& members() const { return m_members; }
    /// Each after its parent; the first is the folder that is unpacked into.
    const std::vector<ZipFolder>& folders() const { return m_folders; }
    /// Sizes of all files and links together, unpacked.
    std::uint64_t totalSize() const { return m_totalSize; }

  private:
    friend class ZipDirectoryReader;
    friend class ZipLayout;

    std::vector<ZipMember> m_members;
    std::vector<ZipFolder> m_folders;
    std::vector<std::unique_ptr<char[]>> m_names; // what the paths point into
    std::uint64_t m_totalSize = 0;
};

struct ZipReading {
    std::optional<ZipDirectory> directory; ///< none when the archive was refused
    std::string error;                     ///< why, in one line without the archive's name
};

/// Fills `into` with the archive's bytes from `offset` on; false when they can't be read.
using ZipReadAt = std::function<bool(std::uint64_t offset, std::span<std::byte> into)>;

/// Reads the directory of an archive of `size` bytes, a piece at a time.
ZipReading readZipDirectory(std::uint64_t size, const ZipReadAt& readAt);

/// The same for an archive in memory, mapped or not.
ZipReading readZipDirectory(std::span<const std::byte> archive);

/// How many bytes of a member's local header at `headerOffset` stand before its data, told by the
/// header's first `kZipLocalHeaderLength` bytes; none when that is no header or it disagrees with
/// the directory about how the member is packed.
inline constexpr std::size_t kZipLocalHeaderLength = 30;
std::optional<std::size_t>
zipDataStart(std::span<const std::byte, kZipLocalHeaderLength> localHeader,
             const ZipMember& member);

} // namespace formats
