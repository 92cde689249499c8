// Compares two versions of a tree and says what a patch between them has to tell: the manifest, but
// for the blocks, and which files need one. Used by makePatch. Reads no file's content.
#pragma once

#include <cstdint>
#include <vector>

#include "patcher/format/Manifest.h"
#include "tools/patchTree/TreeReader.h"

namespace tools {

/// How two trees differ, for the summary.
struct Differences {
    std::size_t changed = 0; ///< entries at a path that both have
    std::size_t added = 0;
    std::size_t gone = 0;
    std::size_t renamed = 0; ///< of those added: with content that the old tree has
    bool any() const { return changed + added + gone > 0; }
};

struct PatchPlan {
    patch::Manifest manifest; ///< offsets, lengths and the methods of `blocks` are to be filled in
    std::vector<std::uint32_t> blocks; ///< new files that need one, by index
    Differences differences;
};

/// Both trees must have their digests. Where an old file at the same path can serve as a base,
/// that is filled in; a file of `blocks` without one has `kNoBase`.
PatchPlan planOf(const Tree& before, const Tree& after);
inline constexpr std::uint32_t kNoBase = ~std::uint32_t{0};

/// What was added, changed or removed three levels below the content bundle.
std::vector<patch::CategoryItem> categoryItemsOf(const patch::Manifest& manifest);

} // namespace tools
