#include "patcher/format/Fields.h"

namespace patch {

namespace {

constexpr std::uint8_t kMore = 0x80;
constexpr int kBitsOfByte = 7;

View viewOf(std::string_view text) {
    return std::as_bytes(std::span(text.data(), text.size()));
}

} // namespace

void FieldWriter::varint(std::uint64_t value) {
    for (; value >= kMore; value >>= kBitsOfByte)
        byte(static_cast<std::uint8_t>(value | kMore));
    byte(static_cast<std::uint8_t>(value));
}

void FieldWriter::signedVarint(std::int64_t value) {
    const auto sign = static_cast<std::uint64_t>(value >> 63);
    varint((static_cast<std::uint64_t>(value) << 1) ^ sign);
}

void FieldWriter::text(std::string_view value) {
    blob(viewOf(value));
}

void FieldWriter::blob(View value) {
    varint(value.size());
    raw(value);
}

std::uint8_t FieldReader::byte() {
    return std::to_integer<std::uint8_t>(raw(1).front());
}

std::uint64_t FieldReader::varint() {
    std::uint64_t value = 0;
    for (int shift = 0; shift < 64; shift += kBitsOfByte) {
        const std::uint64_t next = byte();
        const std::uint64_t bits = next & (kMore - 1u);
        if (shift == 63 && bits > 1)
            break;
        value |= bits << shift;
        if (next < kMore)
            return value;
    }
    throw FormatError("A number is larger than 64 bits.");
}

std::uint64_t FieldReader::varint(std::uint64_t most) {
    const std::uint64_t value = varint();
    if (value > most)
        throw FormatError("A number is larger than it may be.");
    return value;
}

std::int64_t FieldReader::signedVarint() {
    const std::uint64_t folded = varint();
    return static_cast<std::int64_t>((folded >> 1) ^ (~(folded & 1) + 1));
}

View FieldReader::raw(std::size_t length) {
    if (length > m_rest.size())
        throw FormatError("The bytes end too early.");
    const View taken = m_rest.first(length);
    m_rest = m_rest.subspan(length);
    return taken;
}

std::string FieldReader::text() {
    const View bytes = blob();
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

View FieldReader::blob() {
    return raw(static_cast<std::size_t>(varint(m_rest.size())));
}

void writeLittle(std::span<std::byte> into, std::uint64_t value) {
    for (std::byte& byte : into) {
        byte = static_cast<std::byte>(value);
        value >>= 8;
    }
}

std::uint64_t readLittle(View bytes) {
    std::uint64_t value = 0;
    for (std::size_t at = bytes.size(); at-- > 0;)
        value = value << 8 | std::to_integer<std::uint64_t>(bytes[at]);
    return value;
}

} // namespace patch
