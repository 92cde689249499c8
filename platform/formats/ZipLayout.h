// The second half of reading a zip directory: the folders that its paths make up, and the checks
// that need all members at once. Used by ZipDirectory alone.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/formats/ZipDirectory.h"

namespace formats {

/// Why an archive is refused; never leaves `readZipDirectory`.
struct ZipRefusal {
    std::string reason;
};

class ZipLayout {
  public:
    /// Works on a directory that is complete but for folders and AppleDouble references.
    explicit ZipLayout(ZipDirectory& directory) : m_directory(directory) {}

    /// Makes the folders, refuses paths that would meet, finds what "__MACOSX" describes.
    void arrange();

    /// Refuses members whose headers and data overlap. `stretches` are the first and the one
    /// after the last byte of each.
    static void refuseOverlaps(std::vector<std::pair<std::uint64_t, std::uint64_t>>& stretches);

  private:
    /// A place in the tree under the sum of its folded path. Folders and other members share the
    /// table, so that a file which is also a folder is found like any other collision.
    struct Place {
        std::uint64_t sum;
        std::uint32_t index;
        enum Kind : std::uint32_t { Member, Folder, Sidecar } kind;
    };

    std::uint32_t folderOf(std::string_view path);
    std::uint32_t folder(std::string_view path);
    void addFolderPlace(std::uint32_t index);
    std::uint64_t sumOf(std::uint32_t parent, std::string_view name);
    std::string pathOf(const Place& place) const;
    std::string foldedPathOf(const Place& place) const;
    void refuseCollisions();
    void findDescribed();
    std::uint32_t memberAt(std::string_view path);

    ZipDirectory& m_directory;
    std::unordered_map<std::string_view, std::uint32_t> m_folderByPath;
    std::vector<std::uint64_t> m_folderSums;
    std::vector<Place> m_places;
    std::string m_folded; // reused, as most names need no room of their own
    std::uint32_t m_lastFolder = 0;
};

/// The path that an AppleDouble file stands for: "__MACOSX/a/._b" gives "a/b"; empty when `path` is
/// none.
std::string describedPath(std::string_view path);

} // namespace formats
