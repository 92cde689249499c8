#include "cp/private/Utf.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace Corvaldine::CP::Private {

namespace {

static_assert(std::endian::native == std::endian::little, "byte 0 of a word is its lowest");

using Byte = unsigned char;

// The output is made in blocks that stay in the first-level cache and is appended from there: a
// string can't be grown without filling it, and filling all of it first costs more.
constexpr std::size_t kBlock = 4096;
// What one step may write past the mark at which a block counts as full.
constexpr std::size_t kSlack = 64;

constexpr std::uint64_t kHighBits = 0x8080808080808080;

std::uint64_t load8(const Byte* p) {
    std::uint64_t word;
    std::memcpy(&word, p, sizeof word);
    return word;
}

template <std::size_t N>
void widen(const Byte* from, wchar_t* to) {
    for (std::size_t i = 0; i < N; ++i)
        to[i] = static_cast<wchar_t>(from[i]);
}

constexpr bool isContinuation(Byte b) {
    return (b & 0xC0) == 0x80;
}

// Any one character, anywhere; answers the bytes it took, 0 when it is invalid.
std::size_t decodeOne(const Byte* p, const Byte* end, wchar_t* to) {
    const std::size_t left = static_cast<std::size_t>(end - p);
    const char32_t lead = *p;
    if (lead < 0x80) {
        *to = static_cast<wchar_t>(lead);
        return 1;
    }
    if (lead < 0xE0) {
        if (lead < 0xC2 || left < 2 || !isContinuation(p[1]))
            return 0;
        *to = static_cast<wchar_t>((lead & 0x1F) << 6 | (p[1] & 0x3Fu));
        return 2;
    }
    if (lead < 0xF0) {
        if (left < 3 || !isContinuation(p[1]) || !isContinuation(p[2]))
            return 0;
        const char32_t c = (lead & 0x0F) << 12 | (p[1] & 0x3Fu) << 6 | (p[2] & 0x3Fu);
        if (c < 0x800 || !is_scalar_value(c))
            return 0;
        *to = static_cast<wchar_t>(c);
        return 3;
    }
    if (lead > 0xF4 || left < 4 || !isContinuation(p[1]) || !isContinuation(p[2]) ||
        !isContinuation(p[3]))
        return 0;
    const char32_t c =
        (lead & 0x07) << 18 | (p[1] & 0x3Fu) << 12 | (p[2] & 0x3Fu) << 6 | (p[3] & 0x3Fu);
    if (c < 0x10000 || !is_scalar_value(c))
        return 0;
    *to = static_cast<wchar_t>(c);
    return 4;
}

// Up to four two-byte characters from one word, one a 16-bit lane; answers how many of the lanes,
// from the first on, are valid. All four places of `to` are written.
std::size_t decodePairs(std::uint64_t word, wchar_t* to) {
    const std::uint64_t shape = (word & 0xC0E0C0E0C0E0C0E0) ^ 0x80C080C080C080C0;
    // A lane whose lead byte has none of these bits holds an overlong form.
    const std::uint64_t bits = (word & 0x001E001E001E001E) + 0x7FFF7FFF7FFF7FFF;
    const std::uint64_t bad = shape | (~bits & 0x8000800080008000);
    const std::uint64_t lanes = (word & 0x001F001F001F001F) << 6 | (word >> 8 & 0x003F003F003F003F);
    for (unsigned i = 0; i < 4; ++i)
        to[i] = static_cast<wchar_t>(lanes >> 16 * i & 0xFFFF);
    return bad == 0 ? 4 : static_cast<std::size_t>(std::countr_zero(bad)) / 16;
}

// The same for up to two three-byte characters.
std::size_t decodeTriples(std::uint64_t word, wchar_t* to) {
    const std::uint64_t shape = (word & 0xC0C0F0C0C0F0) ^ 0x8080E08080E0;
    std::size_t valid = shape == 0 ? 2 : static_cast<std::size_t>(std::countr_zero(shape)) / 24;
    for (unsigned i = 0; i < 2; ++i) {
        const std::uint64_t lane = word >> 24 * i;
        const char32_t c = static_cast<char32_t>((lane & 0x0F) << 12 | (lane >> 8 & 0x3F) << 6 |
                                                 (lane >> 16 & 0x3F));
        to[i] = static_cast<wchar_t>(c);
        if (c < 0x800 || (c & 0xF800) == 0xD800)
            valid = std::min<std::size_t>(valid, i);
    }
    return valid;
}

struct Decoder {
    const Byte* from;
    const Byte* const end;

    // Fills `to` up to about `full`; null when the text is invalid.
    wchar_t* fill(wchar_t* to, const wchar_t* full) {
        while (to < full && end - from >= 8) {
            const std::uint64_t word = load8(from);
            const std::uint64_t high = word & kHighBits;
            if (high == 0) {
                widen<8>(from, to);
                from += 8;
                to += 8;
                to = plain(to, full);
                continue;
            }
            const std::size_t ascii = static_cast<std::size_t>(std::countr_zero(high)) / 8;
            if (ascii != 0) {
                widen<8>(from, to);
                from += ascii;
                to += ascii;
                continue;
            }
            std::size_t size = 2;
            std::size_t count = 0;
            if ((word & 0xE0) == 0xC0) {
                count = decodePairs(word, to);
            } else if ((word & 0xF0) == 0xE0) {
                size = 3;
                count = decodeTriples(word, to);
            }
            if (count == 0) {
                count = 1;
                size = decodeOne(from, end, to);
                if (size == 0)
                    return nullptr;
            }
            from += count * size;
            to += count;
        }
        while (to < full && from != end) {
            const std::size_t size = decodeOne(from, end, to);
            if (size == 0)
                return nullptr;
            from += size;
            ++to;
        }
        return to;
    }

  private:
    // A long stretch of ASCII, 32 bytes at a time.
    wchar_t* plain(wchar_t* to, const wchar_t* full) {
        while (to < full && end - from >= 32 &&
               ((load8(from) | load8(from + 8) | load8(from + 16) | load8(from + 24)) &
                kHighBits) == 0) {
            widen<32>(from, to);
            from += 32;
            to += 32;
        }
        return to;
    }
};

std::size_t characters(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) >= -64; }));
}

// Any one character as UTF-8; answers the bytes written, 0 when it is invalid. Writes four bytes.
std::size_t encodeOne(char32_t c, char* to) {
    std::uint32_t bytes = c;
    std::size_t size = 1;
    if (c < 0x80) {
    } else if (c < 0x800) {
        bytes = (0xC0 | c >> 6) | (0x80 | (c & 0x3F)) << 8;
        size = 2;
    } else if (!is_scalar_value(c)) {
        return 0;
    } else if (c < 0x10000) {
        bytes = (0xE0 | c >> 12) | (0x80 | (c >> 6 & 0x3F)) << 8 | (0x80 | (c & 0x3F)) << 16;
        size = 3;
    } else {
        bytes = (0xF0 | c >> 18) | (0x80 | (c >> 12 & 0x3F)) << 8 | (0x80 | (c >> 6 & 0x3F)) << 16 |
                (0x80 | (c & 0x3F)) << 24;
        size = 4;
    }
    std::memcpy(to, &bytes, sizeof bytes);
    return size;
}

// One character below U+0800 without a branch, as text of one alphabet and blanks wants it.
char* encodeShort(char32_t c, char* to) {
    const bool two = c >= 0x80;
    const std::uint32_t pair = (0xC0 | c >> 6) | (0x80 | (c & 0x3F)) << 8;
    const auto bytes = static_cast<std::uint16_t>(two ? pair : c);
    std::memcpy(to, &bytes, sizeof bytes);
    return to + 1 + two;
}

struct Encoder {
    const wchar_t* from;
    const wchar_t* const end;

    char* fill(char* to, const char* full) {
        while (to < full && end - from >= 8) {
            char32_t all = 0;
            for (std::size_t i = 0; i < 8; ++i)
                all |= static_cast<char32_t>(from[i]);
            if (all < 0x80) {
                for (std::size_t i = 0; i < 8; ++i)
                    to[i] = static_cast<char>(from[i]);
                to += 8;
            } else if (all < 0x800) {
                for (std::size_t i = 0; i < 8; ++i)
                    to = encodeShort(static_cast<char32_t>(from[i]), to);
            } else {
                for (std::size_t i = 0; i < 8; ++i) {
                    const std::size_t size = encodeOne(static_cast<char32_t>(from[i]), to);
                    if (size == 0)
                        return nullptr;
                    to += size;
                }
            }
            from += 8;
        }
        while (to < full && from != end) {
            const std::size_t size = encodeOne(static_cast<char32_t>(*from), to);
            if (size == 0)
                return nullptr;
            to += size;
            ++from;
        }
        return to;
    }
};

template <class Coder, class Out>
bool run(Coder coder, Out& out) {
    typename Out::value_type block[kBlock + kSlack];
    while (coder.from != coder.end) {
        const auto* filled = coder.fill(block, block + kBlock);
        if (filled == nullptr) {
            out.clear();
            return false;
        }
        out.append(block, static_cast<std::size_t>(filled - block));
    }
    return true;
}

constexpr bool isSurrogate(char32_t c) {
    return (c & 0xFFFFF800) == 0xD800;
}

} // namespace

bool utf8_to_utf32(std::string_view text, std::wstring& out) {
    out.clear();
    out.reserve(characters(text));
    const auto* bytes = reinterpret_cast<const Byte*>(text.data());
    return run(Decoder{bytes, bytes + text.size()}, out);
}

bool utf32_to_utf8(std::wstring_view text, std::string& out) {
    out.clear();
    out.reserve(text.size());
    return run(Encoder{text.data(), text.data() + text.size()}, out);
}

bool utf16_to_utf32(std::u16string_view text, std::wstring& out) {
    out.clear();
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (isSurrogate(c)) {
            const bool pair = c < 0xDC00 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
            if (!pair) {
                out.clear();
                return false;
            }
            c = 0x10000 + ((c & 0x3FF) << 10 | (text[++i] & 0x3FFu));
        }
        out.push_back(static_cast<wchar_t>(c));
    }
    return true;
}

bool utf32_to_utf16(std::wstring_view text, std::u16string& out) {
    out.clear();
    out.reserve(text.size());
    for (const wchar_t wide : text) {
        const auto c = static_cast<char32_t>(wide);
        if (!is_scalar_value(c)) {
            out.clear();
            return false;
        }
        if (c < 0x10000) {
            out.push_back(static_cast<char16_t>(c));
        } else {
            out.push_back(static_cast<char16_t>(0xD7C0 + (c >> 10)));
            out.push_back(static_cast<char16_t>(0xDC00 | (c & 0x3FF)));
        }
    }
    return true;
}

} // namespace Corvaldine::CP::Private
