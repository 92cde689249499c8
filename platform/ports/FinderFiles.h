// What the desktop keeps beside a file's bytes: type and creator, flags, custom icons, classic
// aliases. On a system that has no resource forks they are kept in AppleDouble files and extended
// attributes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ports {

/// The first ten bytes of the Finder information, as Inside Macintosh: Files lays them out.
struct FinderInformation {
    std::uint32_t type = 0;    ///< four characters, big-endian packed
    std::uint32_t creator = 0; ///< four characters, big-endian packed
    std::uint16_t flags = 0;

    static constexpr std::uint16_t kHasCustomIcon = 0x0400;
    static constexpr std::uint16_t kIsInvisible = 0x4000;
    static constexpr std::uint16_t kIsAlias = 0x8000;

    bool operator==(const FinderInformation&) const = default;

    /// The type as its four characters; empty where none is kept.
    std::string typeText() const {
        std::string text;
        for (int shift = 24; type != 0 && shift >= 0; shift -= 8)
            text += static_cast<char>(type >> shift & 0xFF);
        return text;
    }
};

class FinderFiles {
  public:
    virtual ~FinderFiles() = default;

    /// Error numbers follow the classic File Manager: 0 no error, -43 file not found, -48 a file of
    /// that name exists, -61 no permission to write, -36 any other input or output error.
    struct ReadInformation {
        int error = 0;
        FinderInformation information;
    };

    /// 0 when `path` resolves to an item, else -43.
    virtual int resolve(const std::string& path) = 0;

    /// The Finder information of the item at `path`; all zero where none is kept.
    virtual ReadInformation finderInformation(const std::string& path) = 0;

    /// The bytes of the file's resource fork (formats/ResourceFork reads them); empty where it has
    /// none or it can't be read.
    virtual std::vector<std::byte> resourceFork(const std::string& path) = 0;

    /// A classic alias record (version 2) that leads to `target`; empty when none can be made.
    virtual std::vector<std::byte> aliasRecord(const std::string& target) = 0;

    /// Makes the file `path`, which must not exist yet, with an empty data fork and a resource fork
    /// that holds `record` as resource 'alis' 0 with an empty name. 0 or an error number.
    virtual int createAliasFile(const std::string& path, const std::vector<std::byte>& record) = 0;

    /// Replaces type, creator and flags of the item at `path`. 0 or an error number.
    virtual int setFinderInformation(const std::string& path,
                                     const FinderInformation& information) = 0;

    /// Gives the folder a custom icon from the .icns file: the hidden "Icon\r" file with its 'icns'
    /// resource, and the custom-icon flag of the folder. False when that failed; the folder then
    /// keeps the icon it had.
    virtual bool setFolderIcon(const std::string& folder, const std::string& icnsFile) = 0;
};

} // namespace ports
