// Patches that are signed well and say anything: whatever stands in the manifest and the data,
// applyPatch touches nothing but the copy, and leaves it the old version or the new one.
//
// The input is the length of the manifest (two bytes, little-endian), the manifest as it is before
// it is packed, and the data. The target packs, hashes and signs them, so that all that lies behind
// the signature is reached. Where the manifest can be read, it is tried once more with the digests
// of the blocks set right, which no mutation would hit.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "fuzz/patcher/ApplyStage.h"
#include "patcher/format/Block.h"
#include "tests/patcher/format/MemoryFile.h"

namespace {

constexpr std::uint64_t kLargestContent = 1 << 22; // all of a patch's; more only takes time

class Hash : public patch::Sink {
  public:
    void write(patch::View bytes) override { m_hasher.add(bytes); }
    patch::Digest digest() { return m_hasher.finish(); }

  private:
    patch::Hasher m_hasher;
};

/// The digest of what the entry's block really makes; none when it makes nothing.
std::optional<patch::Digest> madeDigest(const patch::Manifest& manifest,
                                        const patch::NewEntry& entry,
                                        const patch::MemoryFile& data) {
    std::string old;
    if (patch::hasBase(entry.method))
        old = fuzz::installedContent(manifest.oldEntries[entry.base].path).value_or("");
    Hash hash;
    try {
        patch::makeContent(entry.method, {data, entry.offset, entry.length},
                           patch::MemoryFile(patch::bytesOf(old)), entry.entry.size, hash);
    } catch (const patch::FormatError&) {
        return std::nullopt;
    }
    return hash.digest();
}

/// Whether some digest was not right.
bool repairDigests(patch::Manifest& manifest, patch::View blocks) {
    const patch::MemoryFile data({blocks.begin(), blocks.end()});
    bool changed = false;
    for (patch::NewEntry& entry : manifest.newEntries)
        if (!entry.unchanged && patch::hasBlock(entry.method))
            if (const auto digest = madeDigest(manifest, entry, data);
                digest && *digest != entry.entry.digest) {
                entry.entry.digest = *digest;
                changed = true;
            }
    return changed;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
    static fuzz::ApplyStage stage;
    if (size < 2)
        return 0;
    const patch::View rest = std::as_bytes(std::span(input, size)).subspan(2);
    const std::size_t length = std::min<std::size_t>(input[0] + 256U * input[1], rest.size());
    const patch::View packed = rest.first(length);
    const patch::View data = rest.subspan(length);

    patch::Manifest manifest;
    try {
        manifest = patch::decodedManifest(packed, data.size());
    } catch (const patch::FormatError&) {
        stage.apply(fuzz::sealed(packed, data));
        return 0;
    }
    std::uint64_t total = 0;
    for (const patch::NewEntry& entry : manifest.newEntries)
        total += std::min(entry.entry.size, kLargestContent);
    if (total > kLargestContent)
        return 0;
    stage.apply(fuzz::sealed(packed, data));
    if (repairDigests(manifest, data))
        stage.apply(fuzz::sealed(patch::encoded(manifest), data));
    return 0;
}
