// What the patch format reads from and writes to, and how it says that bytes are not a patch. The
// tools that make and apply patches stand behind these with files, the tests with memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <vector>

namespace patch {

using Bytes = std::vector<std::byte>;
using View = std::span<const std::byte>;

/// The bytes are no patch, or a broken one. Says what is wrong in one sentence without a path.
class FormatError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Bytes that can be read anywhere. Several threads may read at once.
class Source {
  public:
    virtual ~Source() = default;
    virtual std::uint64_t size() const = 0;
    /// Fills `into` from `offset` on. Throws FormatError when the source ends before, and
    /// std::system_error when it can't be read.
    virtual void read(std::uint64_t offset, std::span<std::byte> into) const = 0;
};

/// Takes bytes from the first to the last. One thread.
class Sink {
  public:
    virtual ~Sink() = default;
    /// Throws std::system_error when they can't be written.
    virtual void write(View bytes) = 0;
};

} // namespace patch
