// Who made a patch: Ed25519 keys and signatures. A patch is applied only when the key that is built
// into applyPatch signed it. Used by PatchFile, and by makePatch for its key files, which are read
// there: nothing here opens a file or keeps a seed.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "patcher/format/Bytes.h"

namespace patch {

using PublicKey = std::array<std::byte, 32>;
using Seed = std::array<std::byte, 32>; ///< what a secret key is made from; kept secret
using Signature = std::array<std::byte, 64>;
/// Names a key in a patch's header: the first bytes of its digest.
using KeyName = std::array<std::byte, 8>;

/// The key that this build accepts: the setting SCRIVEL_PATCH_KEY, or that of the test key.
const PublicKey& builtInKey();

PublicKey publicKeyOf(const Seed& seed);
KeyName nameOf(const PublicKey& key);
Signature signatureOf(View message, const Seed& seed);
bool isSignedBy(const PublicKey& key, View message, const Signature& signature);
/// From the system's source of random numbers.
Seed newSeed();

/// 64 hexadecimal digits, as key files have them; blanks and line ends around them don't count.
/// Throws FormatError for anything else.
std::array<std::byte, 32> fromHexadecimal(std::string_view text);
std::string hexadecimal(View bytes);

} // namespace patch
