// Tells how a program's file lies in memory and what its stretches hold, from the tables that the
// linker left in it. Used by the delta's encoder. Never trusts the file: what makes no sense is no
// program.
#pragma once

#include <vector>

#include "patcher/format/Addresses.h"

namespace tools {

struct ProgramLayout {
    /// Sorted by offset, no overlap, at most patch::kMostStretches.
    std::vector<patch::Stretch> stretches;
    std::uint64_t lowest = 0; ///< address
    std::uint64_t extent =
        0; ///< up to the highest address, memory without bytes in the file included
};

/// Of a 64-bit ELF or Mach-O file for x86-64; without stretches for any other.
ProgramLayout programLayoutOf(const patch::Source& file);

} // namespace tools
