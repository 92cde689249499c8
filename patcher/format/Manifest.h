// What a patch says of the two versions: every entry of the old tree and of the new one, and how
// each new file comes about. makePatch fills it, applyPatch works by it. Knows no files of its own.
//
// Paths are those from the tree's top on, "a/b/c", UTF-8 or whatever bytes the file system has:
// never empty, no component empty, "." or "..", no NUL. Lists are sorted by path as `pathOrder`
// says, a folder stands before what is in it, and every parent is listed as a folder.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "patcher/format/Bytes.h"
#include "patcher/format/Digest.h"

namespace patch {

/// Bounds of the format's version 1; what goes beyond is refused, by maker and reader alike.
inline constexpr std::size_t kMostEntries = 1 << 20; ///< of each tree
inline constexpr std::size_t kLongestPath = 4096;    ///< bytes
inline constexpr std::size_t kLongestName = 255;     ///< bytes of one component
inline constexpr std::uint64_t kLargestFile = std::uint64_t{1} << 40;
inline constexpr std::uint64_t kLargestManifest = std::uint64_t{1} << 28; ///< bytes, unpacked

enum class Kind : std::uint8_t { folder = 0, file = 1, link = 2 };

/// An extended attribute, by the system's own name for it.
struct Attribute {
    std::string name;
    Bytes value;
    bool operator==(const Attribute&) const = default;
};

struct Entry {
    std::string path;
    Kind kind = Kind::file;
    std::uint16_t mode = 0;            ///< permissions, 07777; 0 for a link
    std::uint64_t size = 0;            ///< bytes; a file's, else 0
    Digest digest{};                   ///< of a file's content, else zeros
    std::string target;                ///< a link's, as it stands; else empty
    std::vector<Attribute> attributes; ///< sorted by name, no name twice; none of a link
    bool operator==(const Entry&) const = default;
};

/// When an entry was modified, on the system's clock since 1970.
struct Time {
    std::int64_t seconds = 0;
    std::uint32_t nanoseconds = 0;
    bool operator==(const Time&) const = default;
};

/// How a new file's content comes about.
enum class Method : std::uint8_t {
    nothing = 0,    ///< a folder, a link, an empty file: there is no content
    old = 1,        ///< the content of the old file `base`
    whole = 2,      ///< in the block, compressed by zstd
    dictionary = 3, ///< in the block, compressed by zstd with the old file `base` as a prefix
    delta = 4,      ///< in the block, as differences from the old file `base`
};
inline constexpr bool hasBase(Method method) {
    return method == Method::old || method == Method::dictionary || method == Method::delta;
}
inline constexpr bool hasBlock(Method method) {
    return method == Method::whole || method == Method::dictionary || method == Method::delta;
}

struct NewEntry {
    Entry entry;
    /// The old entry with this path, where that is the same in everything: then the copy's own
    /// entry stays, with its times, and nothing below counts but `method` old (or nothing) and
    /// `base`.
    std::optional<std::uint32_t> unchanged;
    Time modified;
    Method method = Method::nothing;
    std::uint32_t base = 0;   ///< index of an old file, where the method has one
    std::uint64_t offset = 0; ///< of the block in the patch's data; blocks follow one another
    std::uint64_t length = 0; ///< of the block, at least 1 where the method has one
    bool operator==(const NewEntry&) const = default;
};

/// Content that components copy elsewhere: the updater brings those copies up to date.
struct CategoryItem {
    std::string item; ///< its name
    std::string path; ///< in the tree
    bool operator==(const CategoryItem&) const = default;
};

struct Manifest {
    std::string product; ///< "Scrivel 21"; for messages, may be empty, as the versions may be
    std::string oldVersion;
    std::string newVersion;
    std::vector<Entry> oldEntries;
    std::vector<NewEntry> newEntries;
    std::vector<CategoryItem> categoryItems;
    bool operator==(const Manifest&) const = default;
};

/// Compares by components, so that a folder is followed by all that is in it ("a", "a/b", "a.c").
/// True when `left` comes first.
bool pathOrder(std::string_view left, std::string_view right);

/// The entry of that path in a sorted list; null when there is none.
const Entry* entryAt(const std::vector<Entry>& entries, std::string_view path);
const NewEntry* entryAt(const std::vector<NewEntry>& entries, std::string_view path);

/// Throws FormatError, naming the entry, unless everything that is said above holds, also of
/// offsets and lengths, and every block lies within `dataLength` bytes, in order, without a gap.
void validate(const Manifest& manifest, std::uint64_t dataLength);

/// The manifest as bytes, see docs/patch-format.md; it must be valid. Entries that are `unchanged`
/// take next to no room.
Bytes encoded(const Manifest& manifest);

/// The other way round. Throws FormatError for bytes that are no valid manifest.
Manifest decodedManifest(View bytes, std::uint64_t dataLength);

} // namespace patch
