// The blocks of a patch: how one new file's content is made from its block and, by method, from an
// old file. Making blocks is makePatch's; this is the way back, for applyPatch.
//
// Memory is bounded whatever the sizes: zstd frames have windows of at most 2^kWholeWindowLog
// bytes, each of a delta's eight streams 2^kDeltaWindowLog; a dictionary is at most
// kLargestDictionary, and so is what is made with it; a delta that foretells references has at most
// kMostMatches matches, 24 bytes each.
#pragma once

#include <cstddef>
#include <cstdint>

#include "patcher/format/Bytes.h"
#include "patcher/format/Manifest.h"

namespace patch {

inline constexpr int kWholeWindowLog = 23;                              ///< method whole
inline constexpr int kDeltaWindowLog = 20;                              ///< each stream of a delta
inline constexpr std::size_t kLargestDictionary = std::size_t{1} << 22; ///< bytes of the old file
inline constexpr std::size_t kMostMatches = std::size_t{1} << 19;

/// Writes the content of a new file to `sink`, exactly `size` bytes of it, from the block that
/// lies in `patch` at `offset`, `length` bytes. `old` is the method's base; not read where the
/// method has none. Throws FormatError for a block that makes anything else, and whatever source
/// and sink throw. What was written before a failure is worth nothing. The content's digest is the
/// caller's to check. Any thread; one call is one thread.
struct BlockPlace {
    const Source& patch;
    std::uint64_t offset;
    std::uint64_t length;
};
void makeContent(Method method, const BlockPlace& block, const Source& old, std::uint64_t size,
                 Sink& sink);

} // namespace patch
