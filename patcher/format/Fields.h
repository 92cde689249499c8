// Numbers and texts as the format writes them: little-endian numbers of fixed width, and varints,
// seven bits to a byte, the lowest first, the top bit set in all bytes but the last. Used by
// the manifest, the header and the deltas; knows none of them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "patcher/format/Bytes.h"

namespace patch {

/// Appends to bytes that grow.
class FieldWriter {
  public:
    explicit FieldWriter(Bytes& bytes) : m_bytes(bytes) {}

    void byte(std::uint8_t value) { m_bytes.push_back(std::byte{value}); }
    void varint(std::uint64_t value);
    /// Small numbers of either sign are short: 0, -1, 1, -2 become 0, 1, 2, 3.
    void signedVarint(std::int64_t value);
    void raw(View bytes) { m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end()); }
    /// Its length as a varint, then its bytes.
    void text(std::string_view value);
    void blob(View value);

  private:
    Bytes& m_bytes;
};

/// Reads from the first byte to the last; everything throws FormatError where the bytes end before,
/// a varint is longer than 64 bits, or a length goes beyond what is left.
class FieldReader {
  public:
    explicit FieldReader(View bytes) : m_rest(bytes) {}

    std::uint8_t byte();
    std::uint64_t varint();
    /// A varint that is at most `most`.
    std::uint64_t varint(std::uint64_t most);
    std::int64_t signedVarint();
    View raw(std::size_t length);
    std::string text();
    View blob();

    std::size_t left() const { return m_rest.size(); }

  private:
    View m_rest;
};

void writeLittle(std::span<std::byte> into, std::uint64_t value);
std::uint64_t readLittle(View bytes);

} // namespace patch
