// The calls of the Finder file store that differ between systems. One file of the same name in the
// system's own folder implements them; tests hand in others, for a file system that refuses
// extended attributes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace posix {

/// Sixteen bytes of FileInfo or FolderInfo and sixteen of the extended one.
using FinderBytes = std::array<std::byte, 32>;

struct FinderFileCalls {
    /// The item's Finder information from its extended attribute; none when it has none, or one of
    /// another length. A symbolic link is the item itself.
    std::function<std::optional<FinderBytes>(const std::string& path)> readAttribute;

    /// The item's resource fork from its extended attribute; empty when it has none or it can't be
    /// read. A symbolic link is the item itself.
    std::function<std::vector<std::byte>(const std::string& path)> readFork;

    /// Sets the Finder information's attribute in one step. 0 or an errno value. Never follows a
    /// symbolic link.
    std::function<int(const std::string& path, const FinderBytes& value)> writeAttribute;

    /// When the item was made, in seconds since 1970; where the file system doesn't keep that, the
    /// earliest time that it does keep; 0 when there is no such item.
    std::function<std::int64_t(const std::string& path)> creationTime;
};

/// Those of the running system.
FinderFileCalls finderFileCalls();

} // namespace posix
