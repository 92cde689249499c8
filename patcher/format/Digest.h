// SHA-256, by the crypto library's code for this processor. Used by everything that makes, reads or
// applies patches; opens no file itself.
#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include "patcher/format/Bytes.h"

namespace patch {

using Digest = std::array<std::byte, 32>;

/// The digest of bytes that come piece by piece. One thread.
class Hasher {
  public:
    Hasher();
    ~Hasher();
    Hasher(Hasher&&) noexcept;
    Hasher& operator=(Hasher&&) noexcept;

    void add(View bytes);
    /// The digest of all that was added; after it the hasher is as new.
    Digest finish();

  private:
    struct Context;
    std::unique_ptr<Context> m_context;
};

Digest digestOf(View bytes);

/// Of `length` bytes of the source from `offset` on.
Digest digestOf(const Source& source, std::uint64_t offset, std::uint64_t length);

} // namespace patch
