#include "patcher/format/PatchFile.h"

#include <algorithm>
#include <memory>

#include <zstd.h>

#include "patcher/format/Fields.h"

namespace patch {

namespace {

// Not text, and broken by whatever changes line ends or drops the eighth bit.
constexpr std::array<unsigned char, 8> kMagic{0x89, 'S', 'V', 'P', '\r', '\n', 0x1a, '\n'};
constexpr int kManifestLevel = 19;

/// The header's fields in their order; all bytes that are not named here are zero.
struct Field {
    std::size_t offset;
    std::size_t length;
};
constexpr Field kMagicField{0, 8};
constexpr Field kVersionField{8, 4};
constexpr Field kDataLength{16, 8};
constexpr Field kManifestLength{24, 8};
constexpr Field kUnpackedLength{32, 8};
constexpr Field kDataDigest{40, 32};
constexpr Field kManifestDigest{72, 32};
constexpr Field kKeyName{104, 8};
constexpr Field kSignature{128, 64};
static_assert(kSignature.offset + kSignature.length == kHeaderLength);

using HeaderBytes = std::array<std::byte, kHeaderLength>;

std::span<std::byte> of(HeaderBytes& header, Field field) {
    return std::span(header).subspan(field.offset, field.length);
}

template <std::size_t length>
std::array<std::byte, length> arrayOf(View bytes) {
    std::array<std::byte, length> copy;
    std::copy_n(bytes.begin(), length, copy.begin());
    return copy;
}

HeaderBytes unsignedHeader(const Header& header, const KeyName& key) {
    HeaderBytes bytes{};
    std::ranges::copy(std::as_bytes(std::span(kMagic)), of(bytes, kMagicField).begin());
    writeLittle(of(bytes, kVersionField), kVersion);
    writeLittle(of(bytes, kDataLength), header.dataLength);
    writeLittle(of(bytes, kManifestLength), header.manifestLength);
    writeLittle(of(bytes, kUnpackedLength), header.unpackedManifestLength);
    std::ranges::copy(header.dataDigest, of(bytes, kDataDigest).begin());
    std::ranges::copy(header.manifestDigest, of(bytes, kManifestDigest).begin());
    std::ranges::copy(key, of(bytes, kKeyName).begin());
    return bytes;
}

View signedPart(const HeaderBytes& bytes) {
    return View(bytes).first(kSignature.offset);
}

Header readHeader(const Source& file, const PublicKey& key) {
    HeaderBytes bytes;
    if (file.size() < bytes.size())
        throw FormatError("The file is too short to be a patch.");
    file.read(0, bytes);
    if (!std::ranges::equal(of(bytes, kMagicField), std::as_bytes(std::span(kMagic))))
        throw FormatError("The file is no patch, or was changed on its way.");
    if (const std::uint64_t version = readLittle(of(bytes, kVersionField)); version != kVersion)
        throw FormatError("The patch is of format version " + std::to_string(version) +
                          ", which this program does not know.");
    if (!std::ranges::equal(of(bytes, kKeyName), nameOf(key)))
        throw FormatError("The patch was signed with a key that this program does not accept.");
    if (!isSignedBy(key, signedPart(bytes),
                    arrayOf<std::tuple_size_v<Signature>>(of(bytes, kSignature))))
        throw FormatError("The patch's signature does not match: the file was changed.");

    Header header;
    header.dataLength = readLittle(of(bytes, kDataLength));
    header.manifestLength = readLittle(of(bytes, kManifestLength));
    header.unpackedManifestLength = readLittle(of(bytes, kUnpackedLength));
    header.dataDigest = arrayOf<std::tuple_size_v<Digest>>(of(bytes, kDataDigest));
    header.manifestDigest = arrayOf<std::tuple_size_v<Digest>>(of(bytes, kManifestDigest));
    // What is zero in this version may mean something in another.
    if (HeaderBytes known = unsignedHeader(header, nameOf(key));
        !std::ranges::equal(signedPart(known), signedPart(bytes)))
        throw FormatError("The patch's header has parts that this program does not know.");
    return header;
}

Bytes unpackedManifest(const Bytes& stored, const Header& header) {
    Bytes unpacked(static_cast<std::size_t>(header.unpackedManifestLength));
    const std::unique_ptr<ZSTD_DCtx, decltype(&ZSTD_freeDCtx)> context(ZSTD_createDCtx(),
                                                                       &ZSTD_freeDCtx);
    if (!context)
        throw std::bad_alloc();
    const std::size_t length = ZSTD_decompressDCtx(context.get(), unpacked.data(), unpacked.size(),
                                                   stored.data(), stored.size());
    if (ZSTD_isError(length) || length != unpacked.size())
        throw FormatError("The patch's manifest can't be unpacked.");
    return unpacked;
}

} // namespace

std::array<std::byte, kHeaderLength> signedHeader(const Header& header, const Seed& seed) {
    HeaderBytes bytes = unsignedHeader(header, nameOf(publicKeyOf(seed)));
    std::ranges::copy(signatureOf(signedPart(bytes), seed), of(bytes, kSignature).begin());
    return bytes;
}

PatchReader::PatchReader(const Source& file, const PublicKey& key) : m_file(file) {
    const Header header = readHeader(file, key);
    const std::uint64_t afterHeader = file.size() - kHeaderLength;
    if (header.dataLength > afterHeader || header.manifestLength != afterHeader - header.dataLength)
        throw FormatError("The patch was cut, or something was added to it.");
    if (std::max(header.manifestLength, header.unpackedManifestLength) > kLargestManifest)
        throw FormatError("The patch's manifest is larger than it may be.");
    Bytes stored(static_cast<std::size_t>(header.manifestLength));
    file.read(kHeaderLength + header.dataLength, stored);
    if (digestOf(stored) != header.manifestDigest)
        throw FormatError("The patch's manifest was changed.");
    if (digestOf(file, kHeaderLength, header.dataLength) != header.dataDigest)
        throw FormatError("The patch's data were changed.");
    m_manifest = decodedManifest(unpackedManifest(stored, header), header.dataLength);
}

Bytes storedManifest(const Manifest& manifest, Header& header) {
    const Bytes unpacked = encoded(manifest);
    if (unpacked.size() > kLargestManifest)
        throw FormatError("The trees' names and attributes are larger than a patch may have them.");
    Bytes stored(ZSTD_compressBound(unpacked.size()));
    const std::size_t length = ZSTD_compress(stored.data(), stored.size(), unpacked.data(),
                                             unpacked.size(), kManifestLevel);
    if (ZSTD_isError(length))
        throw std::runtime_error(std::string("The manifest can't be packed: ") +
                                 ZSTD_getErrorName(length) + ".");
    stored.resize(length);
    header.manifestLength = stored.size();
    header.unpackedManifestLength = unpacked.size();
    header.manifestDigest = digestOf(stored);
    return stored;
}

} // namespace patch
