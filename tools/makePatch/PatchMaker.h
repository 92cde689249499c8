// Makes a patch file from two versions of a tree: reads both, makes the blocks on all cores, writes
// them in their order, and signs. The same trees give the same bytes, whatever the machine.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

#include "patcher/format/Signature.h"
#include "tools/files/Progress.h"
#include "tools/makePatch/PatchPlan.h"

namespace tools {

/// The trees can't be made a patch of; says why.
class NoPatch : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct MadePatch {
    Differences differences;
    std::uint64_t size = 0;        ///< of the patch file
    std::uint64_t contentSize = 0; ///< of the new files whose content is in it
};

class PatchMaker {
  public:
    struct Needs {
        std::string before; ///< folders
        std::string after;
        std::string patch; ///< the file to write
        std::string product;
        std::string oldVersion;
        std::string newVersion;
        int level; ///< zstd's
        patch::Seed seed;
        Progress& progress;
    };
    explicit PatchMaker(Needs needs) : m_needs(std::move(needs)) {}

    /// Throws NoPatch, FileError and what else stands in the way; then there is no patch file, or
    /// the one that was there before.
    MadePatch make();

  private:
    Needs m_needs;
};

} // namespace tools
