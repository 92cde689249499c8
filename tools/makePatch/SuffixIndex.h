// Finds the longest stretch of some bytes that begins as others do. Used by Matching. Takes four
// times the bytes' own room, and time that grows as their number, whatever they are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "patcher/format/Bytes.h"

namespace tools {

class SuffixIndex {
  public:
    static constexpr std::size_t kMostBytes = std::size_t{1} << 30;

    /// `bytes` must outlive the index and be at most kMostBytes. Throws std::bad_alloc.
    explicit SuffixIndex(patch::View bytes);

    struct Found {
        std::size_t at = 0;
        std::size_t length = 0;
    };
    /// The longest stretch that `wanted` begins with, compared up to kLongest bytes. Among several
    /// that are equally long one near `expected`, without looking at many.
    Found longest(patch::View wanted, std::size_t expected) const;

    static constexpr std::size_t kLongest = 4096;

  private:
    patch::View m_bytes;
    std::vector<std::int32_t> m_sorted;
    std::vector<std::int32_t> m_buckets; ///< where suffixes of each two first bytes begin
};

/// How many bytes both begin with.
std::size_t commonLength(patch::View left, patch::View right);

} // namespace tools
