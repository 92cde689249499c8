// Finds the longest stretch of some bytes that begins as others do. Used by Matching. Takes four
// times the bytes' own room, and time that grows as their number, whatever they are.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
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
inline std::size_t commonLength(patch::View left, patch::View right) {
    const std::size_t most = std::min(left.size(), right.size());
    std::size_t length = 0;
    if constexpr (std::endian::native == std::endian::little) {
        for (; length + 8 <= most; length += 8) {
            std::uint64_t a;
            std::uint64_t b;
            std::memcpy(&a, left.data() + length, sizeof a);
            std::memcpy(&b, right.data() + length, sizeof b);
            if (a != b)
                return length + static_cast<std::size_t>(std::countr_zero(a ^ b)) / 8;
        }
    }
    while (length < most && left[length] == right[length])
        ++length;
    return length;
}

} // namespace tools
