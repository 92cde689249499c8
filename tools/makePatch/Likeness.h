// Finds, for a new file that has no old one at its path, a gone one that it was probably made from:
// renamed and edited. Used by makePatch.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "patcher/format/Bytes.h"

namespace tools {

/// Some of a file's stretches of 32 bytes, chosen by what they are and not by where: files with
/// much in common have many in common.
std::vector<std::uint64_t> sketchOf(const patch::Source& file);

class GoneFiles {
  public:
    void add(std::uint32_t index, std::string_view path, const std::vector<std::uint64_t>& sketch);

    /// The gone file of the same name or extension with the most stretches in common, if these are
    /// at least one in sixteen; else `none`. Among equals the first that was added.
    std::uint32_t mostLike(std::string_view path, const std::vector<std::uint64_t>& sketch,
                           std::uint32_t none) const;

  private:
    struct File {
        std::uint32_t index;
        std::string name;
    };
    std::vector<File> m_files;
    std::unordered_map<std::uint64_t, std::vector<std::uint32_t>> m_stretches; ///< who has each
};

} // namespace tools
