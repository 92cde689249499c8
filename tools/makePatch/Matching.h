// Finds what of a new file can be made from an old one: stretches that are alike though not the
// same, as in a program that was linked anew, where code stays and the references in it change.
//
// The method is that of Colin Percival's paper "Naive differences of executable code": exact
// matches from a sorted list of suffixes, taken where they promise more than going on as before,
// and extended both ways as long as at least half the bytes agree.
#pragma once

#include <cstdint>
#include <vector>

#include "patcher/format/Addresses.h"
#include "patcher/format/Bytes.h"

namespace tools {

/// Files larger than this are matched piece by piece: a piece of the new file with a window of the
/// old one around where the piece before it went on. That bounds the memory: the window five times,
/// the piece once.
struct MatchingWindow {
    std::size_t before = std::size_t{64} << 20;
    std::size_t after = std::size_t{32} << 20;
};

/// What the matching took, to tell how it grows.
struct MatchingEffort {
    std::uint64_t looks = 0; ///< into the sorted suffixes
    std::uint64_t bytes = 0; ///< compared one by one, and found alike
};

/// Sorted by the new file's offsets, without overlap there. What lies between has no likeness. Time
/// grows as the sizes, also of content that repeats itself.
std::vector<patch::Match> matchesOf(const patch::Source& before, const patch::Source& after,
                                    MatchingWindow window = {}, MatchingEffort* effort = nullptr);

} // namespace tools
