#include "patcher/format/Signature.h"

#include <algorithm>

#include <sodium.h>

#include "patcher/format/Digest.h"

namespace patch {

namespace {

void prepareSodium() {
    static const int prepared = sodium_init();
    if (prepared < 0)
        throw std::runtime_error("The crypto library could not be started.");
}

const unsigned char* raw(View bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.data());
}
unsigned char* room(std::span<std::byte> bytes) {
    return reinterpret_cast<unsigned char*>(bytes.data());
}

// Libsodium's form of a secret key, the seed and the public key; wiped when it goes.
struct KeyPair {
    explicit KeyPair(const Seed& seed) {
        prepareSodium();
        crypto_sign_seed_keypair(room(publicKey), secret.data(), raw(seed));
    }
    ~KeyPair() { sodium_memzero(secret.data(), secret.size()); }
    KeyPair(const KeyPair&) = delete;
    KeyPair& operator=(const KeyPair&) = delete;

    PublicKey publicKey;
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> secret;
};

static_assert(crypto_sign_SEEDBYTES == std::tuple_size_v<Seed>);
static_assert(crypto_sign_PUBLICKEYBYTES == std::tuple_size_v<PublicKey>);
static_assert(crypto_sign_BYTES == std::tuple_size_v<Signature>);

} // namespace

const PublicKey& builtInKey() {
    static const PublicKey key = fromHexadecimal(SCRIVEL_PATCH_KEY);
    return key;
}

PublicKey publicKeyOf(const Seed& seed) {
    return KeyPair(seed).publicKey;
}

KeyName nameOf(const PublicKey& key) {
    const Digest digest = digestOf(key);
    KeyName name;
    std::copy_n(digest.begin(), name.size(), name.begin());
    return name;
}

Signature signatureOf(View message, const Seed& seed) {
    const KeyPair pair(seed);
    Signature signature;
    crypto_sign_detached(room(signature), nullptr, raw(message), message.size(),
                         pair.secret.data());
    return signature;
}

bool isSignedBy(const PublicKey& key, View message, const Signature& signature) {
    prepareSodium();
    return crypto_sign_verify_detached(raw(signature), raw(message), message.size(), raw(key)) == 0;
}

Seed newSeed() {
    prepareSodium();
    Seed seed;
    randombytes_buf(seed.data(), seed.size());
    return seed;
}

std::array<std::byte, 32> fromHexadecimal(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = std::min(text.find_first_not_of(kBlanks), text.size());
    text = text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
    std::array<std::byte, 32> bytes;
    std::size_t length = 0;
    const char* end = nullptr;
    if (sodium_hex2bin(room(bytes), bytes.size(), text.data(), text.size(), nullptr, &length,
                       &end) != 0 ||
        length != bytes.size() || end != text.data() + text.size())
        throw FormatError("A key is 64 hexadecimal digits.");
    return bytes;
}

std::string hexadecimal(View bytes) {
    std::string text(bytes.size() * 2 + 1, '\0');
    sodium_bin2hex(text.data(), text.size(), raw(bytes), bytes.size());
    text.pop_back();
    return text;
}

} // namespace patch
