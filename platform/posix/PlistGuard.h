// Looks a property list over before the library gets it. Bundles and the files in them come from
// anywhere, and the library trusts what it reads: deep nesting overruns its stack, and a binary
// list whose objects refer to one another many times over grows without bound when they are
// unfolded. Pure functions over bytes; any thread.
#pragma once

#include <cstddef>
#include <string_view>

namespace posix {

struct PlistLimits {
    /// Of the file, and of what a binary list unfolds to.
    static constexpr std::size_t kBytes = 16 << 20;
    static constexpr int kDepth = 100;
    /// References to characters in an XML list, which the library replaces one by one, moving all
    /// that follows.
    static constexpr std::size_t kCharacterReferences = 20000;
};

/// May the library read this? False says only that it is too big, too deep, folded too often, or
/// not even in outline a property list; true does not say that it is a well-formed one.
bool isSafePlist(std::string_view bytes);

} // namespace posix
