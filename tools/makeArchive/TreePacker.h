// Packs a folder into a zip archive, the same tree into the same bytes: names in byte order, modes,
// links as links, extended attributes as AppleDouble members below "__MACOSX" as macOS has them.
// Used by makeArchive and by tests.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/formats/AppleDouble.h"
#include "platform/formats/ZipWriter.h"

namespace tools {

class TreePacker {
  public:
    /// `time` is given to all members, in seconds since 1970; none keeps each file's own.
    TreePacker(formats::ZipWriter& archive, std::optional<std::int64_t> time)
        : m_archive(archive), m_time(time) {}

    /// Adds the folder under its own name and all below it. Throws std::exception for what can't be
    /// read and for what is neither file, folder nor link.
    void add(const std::filesystem::path& folder);

  private:
    void addItem(const std::filesystem::path& path, const std::string& member);
    void addFolder(const std::filesystem::path& path, const std::string& member);
    void addAttributes(const std::filesystem::path& path, const std::string& member,
                       const formats::ZipEntry& entry);

    formats::ZipWriter& m_archive;
    std::optional<std::int64_t> m_time;
};

} // namespace tools
