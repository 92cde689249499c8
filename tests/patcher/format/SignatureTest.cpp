#include "patcher/format/Signature.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "tests/patcher/format/MemoryFile.h"

namespace patch {
namespace {

// The first of RFC 8032's test vectors for Ed25519 (section 7.1).
constexpr std::string_view kSeed =
    "9d61b19deffd5a60ba844af492ec2cc44449c5697b326919703bac031cae7f60";
constexpr std::string_view kPublicKey =
    "d75a980182b10ab7d54bfed3c964073a0ee172f3daa62325af021a68f707511a";
constexpr std::string_view kSignatureOfNothing =
    "e5564300c360ac729086e2cc806e828a84877f1eb8e5d974d873e065224901555fb8821590a33bacc61e39701cf9b4"
    "6bd25bf5f0595bbe24655141438e7a100b";

TEST(Signatures, AreThoseOfTheStandardsTestVector) {
    const Seed seed = fromHexadecimal(kSeed);
    EXPECT_EQ(hexadecimal(publicKeyOf(seed)), kPublicKey);
    EXPECT_EQ(hexadecimal(signatureOf({}, seed)), kSignatureOfNothing);
}

TEST(Signatures, HoldForTheirKeyAndMessageOnly) {
    const Seed seed = newSeed();
    const Bytes message = bytesOf("message");
    const Signature signature = signatureOf(message, seed);
    EXPECT_TRUE(isSignedBy(publicKeyOf(seed), message, signature));
    EXPECT_FALSE(isSignedBy(publicKeyOf(newSeed()), message, signature));
    EXPECT_FALSE(isSignedBy(publicKeyOf(seed), bytesOf("Message"), signature));
    Signature other = signature;
    other[0] ^= std::byte{1};
    EXPECT_FALSE(isSignedBy(publicKeyOf(seed), message, other));
}

TEST(Keys, AKeyFileIs64DigitsWithBlanksAround) {
    EXPECT_EQ(hexadecimal(fromHexadecimal(" " + std::string(kSeed) + "\r\n")), kSeed);
    for (const std::string& text :
         {std::string(), std::string("\n"), std::string(kSeed.substr(1)), std::string(kSeed) + "0",
          std::string(kSeed) + "00", "zz" + std::string(kSeed.substr(2)),
          std::string(kSeed.substr(0, 32)) + " " + std::string(kSeed.substr(32))})
        EXPECT_THROW(fromHexadecimal(text), FormatError) << text;
}

TEST(Keys, NewOnesDiffer) {
    EXPECT_NE(newSeed(), newSeed());
}

// SCRIVEL_ACCEPTS_TEST_KEY is 1 in a build without a key of its own, and 0 in others.
TEST(Keys, TheTestsKeyIsTheOneThatSuchABuildAccepts) {
    std::ifstream file(SCRIVEL_TEST_KEY_FILE);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(publicKeyOf(fromHexadecimal(text)) == builtInKey(), bool(SCRIVEL_ACCEPTS_TEST_KEY));
}

} // namespace
} // namespace patch
