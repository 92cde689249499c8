// A patch file as a whole: a signed header, the data (blocks of new files), the manifest. Nothing
// of the manifest or the data is looked into before header, manifest and data have proved to be
// what the key's owner signed. docs/patch-format.md has every byte.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "patcher/format/Bytes.h"
#include "patcher/format/Digest.h"
#include "patcher/format/Manifest.h"
#include "patcher/format/Signature.h"

namespace patch {

inline constexpr std::uint32_t kVersion = 1;
inline constexpr std::size_t kHeaderLength = 192;

/// What stands in front of a patch file; the data follow it, and the manifest the data.
struct Header {
    std::uint64_t dataLength = 0;
    std::uint64_t manifestLength = 0;         ///< as it is stored, compressed by zstd
    std::uint64_t unpackedManifestLength = 0; ///< at most kLargestManifest
    Digest dataDigest{};
    Digest manifestDigest{}; ///< of the stored bytes
};

/// The header's bytes, signed.
std::array<std::byte, kHeaderLength> signedHeader(const Header& header, const Seed& seed);

/// Reads and verifies a patch as a whole. Throws FormatError for what is no patch, is of another
/// version, was signed by another key, was changed or cut since, or has a manifest that is not
/// valid; std::system_error when the file can't be read. Costs one pass over the file.
class PatchReader {
  public:
    /// `file` must outlive the reader.
    PatchReader(const Source& file, const PublicKey& key);

    const Manifest& manifest() const { return m_manifest; }

    /// Where a new entry's block begins in the file.
    std::uint64_t blockOffset(const NewEntry& entry) const { return kHeaderLength + entry.offset; }
    const Source& file() const { return m_file; }

  private:
    const Source& m_file;
    Manifest m_manifest;
};

/// A manifest as it is stored, with its part of the header filled in.
Bytes storedManifest(const Manifest& manifest, Header& header);

} // namespace patch
