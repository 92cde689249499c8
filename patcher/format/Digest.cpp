#include "patcher/format/Digest.h"

#include <algorithm>
#include <new>

#include <openssl/evp.h>

namespace patch {

namespace {

// Found once: looking it up for every file costs more than a small file's digest.
const EVP_MD* sha256() {
    static EVP_MD* const algorithm = EVP_MD_fetch(nullptr, "SHA256", nullptr);
    if (!algorithm)
        throw std::runtime_error("The crypto library has no SHA-256.");
    return algorithm;
}

} // namespace

struct Hasher::Context {
    Context() : state(EVP_MD_CTX_new()) {
        if (!state)
            throw std::bad_alloc();
    }
    ~Context() { EVP_MD_CTX_free(state); }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    void begin() { check(EVP_DigestInit_ex(state, sha256(), nullptr)); }
    static void check(int done) {
        if (done != 1)
            throw std::runtime_error("The crypto library could not compute SHA-256.");
    }

    EVP_MD_CTX* state;
};

Hasher::Hasher() : m_context(std::make_unique<Context>()) {
    m_context->begin();
}
Hasher::~Hasher() = default;
Hasher::Hasher(Hasher&&) noexcept = default;
Hasher& Hasher::operator=(Hasher&&) noexcept = default;

void Hasher::add(View bytes) {
    Context::check(EVP_DigestUpdate(m_context->state, bytes.data(), bytes.size()));
}

Digest Hasher::finish() {
    Digest digest;
    unsigned length = 0;
    Context::check(EVP_DigestFinal_ex(m_context->state,
                                      reinterpret_cast<unsigned char*>(digest.data()), &length));
    m_context->begin();
    return digest;
}

Digest digestOf(View bytes) {
    Hasher hasher;
    hasher.add(bytes);
    return hasher.finish();
}

Digest digestOf(const Source& source, std::uint64_t offset, std::uint64_t length) {
    constexpr std::uint64_t kPiece = 1 << 18;
    Hasher hasher;
    Bytes piece(static_cast<std::size_t>(std::min(length, kPiece)));
    while (length > 0) {
        const auto now = std::span(piece).first(static_cast<std::size_t>(std::min(length, kPiece)));
        source.read(offset, now);
        hasher.add(now);
        offset += now.size();
        length -= now.size();
    }
    return hasher.finish();
}

} // namespace patch
