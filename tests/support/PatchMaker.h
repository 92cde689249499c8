// Makes patches for tests from two trees of files, a second time and in another way than the
// project's own maker: nothing of the tools' own reading of trees is used, and the only methods are
// content of an old file and content as a whole. Linux.
#pragma once

#include <filesystem>
#include <string>

#include "patcher/format/Manifest.h"
#include "patcher/format/Signature.h"

namespace tests {

/// A patch before it is signed and packed, so that a test can spoil it.
struct UnsignedPatch {
    patch::Manifest manifest;
    patch::Bytes data;
};

/// How `before` becomes `after`. Product "Scrivel", versions "1" and "2".
UnsignedPatch patchBetween(const std::filesystem::path& before, const std::filesystem::path& after);

/// Packs and signs it.
void writePatch(const UnsignedPatch& patch, const std::filesystem::path& file,
                const patch::Seed& seed);

/// The secret key whose patches ordinary builds accept, from the file of the resources.
patch::Seed testSeed(const std::filesystem::path& keyFile);

} // namespace tests
