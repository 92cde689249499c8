// Looks a property list over before the library gets it. Bundles and the files in them come from
// anywhere, and the library trusts what it reads: deep nesting overruns its stack, and a binary
// list whose objects refer to one another many times over grows without bound when they are
// unfolded. Pure functions over bytes; any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace posix {

struct PlistLimits {
    /// Of the file, and of what a binary list unfolds to.
    static constexpr std::size_t kBytes = 16 << 20;
    static constexpr int kDepth = 100;
    /// Character references in an XML list times the length of the text that each stands in: the
    /// library replaces them one by one and moves all that follows (a fifth of a second).
    static constexpr std::uint64_t kCharacterMoves = 10'000'000'000;
};

/// May the library read this? False says only that it is too big, too deep, folded too often, or
/// not even in outline a property list; true does not say that it is a well-formed one.
bool isSafePlist(std::string_view bytes);

} // namespace posix
