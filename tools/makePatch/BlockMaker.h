// Makes the block of one new file, in the way that takes the least room. Used by makePatch, on all
// cores at once.
#pragma once

#include <cstdint>

#include "patcher/format/Bytes.h"
#include "patcher/format/Manifest.h"

namespace tools {

struct MadeBlock {
    patch::Method method = patch::Method::whole;
    patch::Bytes bytes;
};

/// `base` is an old file that is likely to have something in common, or null. `level` is zstd's.
MadeBlock smallestBlock(const patch::Source* base, const patch::Source& fresh, int level);

/// Bytes of memory that this takes at most while it is at work, but for the block itself.
std::uint64_t memoryFor(std::uint64_t baseSize, std::uint64_t freshSize);

} // namespace tools
