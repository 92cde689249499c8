#include "patcher/format/PatchFile.h"

#include <functional>
#include <random>

#include <gtest/gtest.h>

#include "patcher/format/Fields.h"
#include "tests/patcher/format/SampleManifest.h"

namespace patch {
namespace {

const Seed& seed() {
    static const Seed one = newSeed();
    return one;
}

Bytes patchOf(const std::function<void(Header&)>& change = [](Header&) {}) {
    const Bytes data(kSampleDataLength, std::byte{7});
    Header header;
    header.dataLength = data.size();
    header.dataDigest = digestOf(data);
    const Bytes manifest = storedManifest(sampleManifest(), header);
    change(header);
    const auto front = signedHeader(header, seed());
    MemoryFile file;
    file.write(front);
    file.write(data);
    file.write(manifest);
    return file.bytes;
}

std::string refusal(Bytes bytes, const PublicKey& key = publicKeyOf(seed())) {
    const MemoryFile file(std::move(bytes));
    try {
        const PatchReader reader(file, key);
    } catch (const FormatError& error) {
        return error.what();
    }
    return "accepted";
}

Bytes resigned(Bytes bytes) {
    const Signature signature = signatureOf(View(bytes).first(128), seed());
    std::copy(signature.begin(), signature.end(), bytes.begin() + 128);
    return bytes;
}

TEST(PatchFiles, APatchSignedWithTheKeyIsRead) {
    const MemoryFile file(patchOf());
    const PatchReader reader(file, publicKeyOf(seed()));
    EXPECT_EQ(reader.manifest(), sampleManifest());
    EXPECT_EQ(reader.blockOffset(reader.manifest().newEntries[5]), kHeaderLength + 20);
}

TEST(PatchFiles, WhatIsNoPatchIsRefused) {
    EXPECT_EQ(refusal({}), "The file is too short to be a patch.");
    EXPECT_EQ(refusal(bytesOf(std::string(1000, 'x'))),
              "The file is no patch, or was changed on its way.");
}

TEST(PatchFiles, APatchOfAnotherKeyIsRefused) {
    EXPECT_EQ(refusal(patchOf(), publicKeyOf(newSeed())),
              "The patch was signed with a key that this program does not accept.");
}

TEST(PatchFiles, APatchOfAnotherFormatVersionIsRefusedByItsNumber) {
    Bytes bytes = patchOf();
    bytes[8] = std::byte{2};
    EXPECT_EQ(refusal(resigned(bytes)),
              "The patch is of format version 2, which this program does not know.");
}

TEST(PatchFiles, PartsOfTheHeaderThatAreNotInThisVersionAreRefused) {
    for (const std::size_t at : {12, 15, 112, 127}) {
        Bytes bytes = patchOf();
        bytes[at] = std::byte{1};
        EXPECT_EQ(refusal(resigned(bytes)),
                  "The patch's header has parts that this program does not know.");
    }
}

TEST(PatchFiles, EveryChangedByteIsFound) {
    const Bytes bytes = patchOf();
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        Bytes changed = bytes;
        changed[at] ^= std::byte{0x10};
        EXPECT_NE(refusal(changed), "accepted") << at;
    }
}

TEST(PatchFiles, APatchThatWasCutOrWentOnIsRefused) {
    const Bytes bytes = patchOf();
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_NE(
            refusal(Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length))),
            "accepted")
            << length;
    Bytes longer = bytes;
    longer.push_back(std::byte{0});
    EXPECT_EQ(refusal(longer), "The patch was cut, or something was added to it.");
}

// Signed, and still not trusted: lengths are checked before memory is asked for.
TEST(PatchFiles, LengthsThatDoNotFitAreRefusedEvenWhenTheyAreSigned) {
    constexpr std::uint64_t kHuge = ~std::uint64_t{0};
    EXPECT_NE(refusal(patchOf([](Header& h) { h.dataLength = kHuge; })), "accepted");
    EXPECT_NE(refusal(patchOf([](Header& h) { h.manifestLength = kHuge; })), "accepted");
    EXPECT_EQ(refusal(patchOf([](Header& h) { h.unpackedManifestLength = kHuge; })),
              "The patch's manifest is larger than it may be.");
    EXPECT_EQ(refusal(patchOf([](Header& h) { ++h.unpackedManifestLength; })),
              "The patch's manifest can't be unpacked.");
    EXPECT_EQ(refusal(patchOf([](Header& h) { --h.unpackedManifestLength; })),
              "The patch's manifest can't be unpacked.");
    EXPECT_NE(refusal(patchOf([](Header& h) { --h.dataLength, ++h.manifestLength; })), "accepted");
}

TEST(PatchFiles, TheSameTreesGiveTheSameBytes) {
    EXPECT_EQ(patchOf(), patchOf());
}

TEST(Digests, AreThoseOfTheStandardsExample) {
    EXPECT_EQ(hexadecimal(digestOf(bytesOf("abc"))),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST(Digests, OfAPartOfASourceAreThoseOfItsBytes) {
    std::mt19937 random(5);
    Bytes bytes(600'000);
    for (std::byte& byte : bytes)
        byte = static_cast<std::byte>(random());
    const MemoryFile file(bytes);
    EXPECT_EQ(digestOf(file, 100, 599'000), digestOf(View(bytes).subspan(100, 599'000)));
    EXPECT_EQ(digestOf(file, 5, 0), digestOf(View{}));
    EXPECT_THROW(digestOf(file, 1, 600'000), FormatError);
}

TEST(Digests, AHasherBeginsAnewAfterItsDigest) {
    Hasher hasher;
    hasher.add(bytesOf("ab"));
    hasher.add(bytesOf("c"));
    EXPECT_EQ(hasher.finish(), digestOf(bytesOf("abc")));
    hasher.add(bytesOf("x"));
    EXPECT_EQ(hasher.finish(), digestOf(bytesOf("x")));
}

} // namespace
} // namespace patch
