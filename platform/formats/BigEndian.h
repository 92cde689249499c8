// Reading and writing the big-endian numbers of the platform's byte formats. For the readers and
// writers of this folder; it knows no format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/formats/AppleDouble.h"

namespace formats {

/// Looks at bytes that may be hostile. A read that would leave them gives zero (or nothing) and is
/// remembered, so that a parser may read a whole header and ask once. Offsets are 64-bit, so that
/// the sum of two 32-bit fields can't wrap around. The bytes must outlive the reader.
class BigEndianReader {
  public:
    explicit BigEndianReader(std::span<const std::byte> bytes) : m_bytes(bytes) {}

    std::uint64_t size() const { return m_bytes.size(); }
    /// True once any read has left the bytes.
    bool failed() const { return m_failed; }

    std::uint8_t u8(std::uint64_t at) { return static_cast<std::uint8_t>(number(at, 1)); }
    std::uint16_t u16(std::uint64_t at) { return static_cast<std::uint16_t>(number(at, 2)); }
    std::uint32_t u24(std::uint64_t at) { return number(at, 3); }
    std::uint32_t u32(std::uint64_t at) { return number(at, 4); }

    /// `length` bytes from `at`; empty, and remembered, when they are not all there.
    std::span<const std::byte> bytes(std::uint64_t at, std::uint64_t length) {
        if (at > size() || length > size() - at) {
            m_failed = true;
            return {};
        }
        return m_bytes.subspan(static_cast<std::size_t>(at), static_cast<std::size_t>(length));
    }

  private:
    std::uint32_t number(std::uint64_t at, std::uint64_t width) {
        std::uint32_t value = 0;
        for (const std::byte byte : bytes(at, width))
            value = value << 8 | std::to_integer<std::uint32_t>(byte);
        return value;
    }

    std::span<const std::byte> m_bytes;
    bool m_failed = false;
};

/// Appends to a growing image. Values are cut to the width of their field: the caller checks.
class BigEndianWriter {
  public:
    std::size_t size() const { return m_bytes.size(); }

    void u8(std::uint64_t value) { number(value, 1); }
    void u16(std::uint64_t value) { number(value, 2); }
    void u24(std::uint64_t value) { number(value, 3); }
    void u32(std::uint64_t value) { number(value, 4); }
    void zeros(std::size_t count) { m_bytes.resize(m_bytes.size() + count); }
    void padTo(std::size_t multiple) { zeros((multiple - size() % multiple) % multiple); }
    void bytes(std::span<const std::byte> value) {
        m_bytes.insert(m_bytes.end(), value.begin(), value.end());
    }
    void text(std::string_view value) { bytes(std::as_bytes(std::span(value))); }

    /// The finished image; the writer is empty afterwards.
    Bytes take() { return std::move(m_bytes); }

  private:
    void number(std::uint64_t value, int width) {
        for (int shift = (width - 1) * 8; shift >= 0; shift -= 8)
            m_bytes.push_back(static_cast<std::byte>(value >> shift & 0xFF));
    }

    Bytes m_bytes;
};

/// Bytes as the text they are; no conversion.
inline std::string textOf(std::span<const std::byte> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace formats
