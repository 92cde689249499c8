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
[[gnu::always_inline]] inline std::size_t decodeOne(const Byte* p, const Byte* end, wchar_t* to) {
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

// Four two-byte characters from one word, one a 16-bit lane; false when it doesn't hold four valid
// ones. All four places of `to` are written.
bool decodePairs(std::uint64_t word, wchar_t* to) {
    const std::uint64_t shape = (word & 0xC0E0C0E0C0E0C0E0) ^ 0x80C080C080C080C0;
    // A lane whose lead byte has none of these bits holds an overlong form.
    const std::uint64_t bits = (word & 0x001E001E001E001E) + 0x7FFF7FFF7FFF7FFF;
    const std::uint64_t lanes = (word & 0x001F001F001F001F) << 6 | (word >> 8 & 0x003F003F003F003F);
    for (unsigned i = 0; i < 4; ++i)
        to[i] = static_cast<wchar_t>(lanes >> 16 * i & 0xFFFF);
    return (shape | (~bits & 0x8000800080008000)) == 0;
}

// The same for two three-byte characters.
bool decodeTriples(std::uint64_t word, wchar_t* to) {
    if ((word & 0xC0C0F0C0C0F0) != 0x8080E08080E0)
        return false;
    bool valid = true;
    for (unsigned i = 0; i < 2; ++i) {
        const std::uint64_t lane = word >> 24 * i;
        const auto c =
            static_cast<char32_t>((lane & 0x0F) << 12 | (lane >> 2 & 0xFC0) | (lane >> 16 & 0x3F));
        to[i] = static_cast<wchar_t>(c);
        valid = valid && c >= 0x800 && (c & 0xF800) != 0xD800;
    }
    return valid;
}

// Fills `to` up to about `full` from `at` on, which moves; null when the text is invalid. The loop
// works on copies of the pointers, which the compiler can keep in registers.
struct Decoder {
    using From = const Byte*;

    static wchar_t* fill(From& at, From end, wchar_t* to, const wchar_t* full) {
        From from = at;
        while (to < full && end - from >= 12) {
            const std::uint64_t word = load8(from);
            if ((word & kHighBits) == 0) {
                widen<8>(from, to);
                from += 8;
                to += 8;
                // Text that is ASCII here is often so for long.
                while (to < full && end - from >= 32 && isAscii32(from)) {
                    widen<32>(from, to);
                    from += 32;
                    to += 32;
                }
                continue;
            }
            // Steps of fixed sizes, also where a part of a word could be taken: the processor then
            // guesses the next place instead of waiting for it to be worked out.
            if ((word & 0xE0) == 0xC0 && decodePairs(word, to)) {
                from += 8;
                to += 4;
                continue;
            }
            if ((word & 0xF0) == 0xE0 && decodeTriples(word, to)) {
                from += 6;
                to += 2;
                continue;
            }
            // One character after the other up to the end of this word.
            const From stop = from + 8;
            do {
                const std::uint32_t lead = from[0];
                if (lead < 0x80) {
                    *to++ = static_cast<wchar_t>(lead);
                    ++from;
                } else if (lead >= 0xC2 && lead < 0xE0 && isContinuation(from[1])) {
                    *to++ = static_cast<wchar_t>((lead & 0x1F) << 6 | (from[1] & 0x3Fu));
                    from += 2;
                } else if (const std::size_t size = decodeOne(from, end, to)) {
                    // A longer one seldom stands alone: look at a word again.
                    from += size;
                    ++to;
                    break;
                } else {
                    return nullptr;
                }
            } while (from < stop);
        }
        while (to < full && from != end) {
            const std::size_t size = decodeOne(from, end, to);
            if (size == 0)
                return nullptr;
            from += size;
            ++to;
        }
        at = from;
        return to;
    }

  private:
    static bool isAscii32(From p) {
        return ((load8(p) | load8(p + 8) | load8(p + 16) | load8(p + 24)) & kHighBits) == 0;
    }
};

// How many bytes are no continuations: the characters of valid text.
std::size_t characters(std::string_view text) {
    const auto* bytes = reinterpret_cast<const Byte*>(text.data());
    std::size_t continuations = 0;
    std::size_t i = 0;
    while (text.size() - i >= 8) {
        // One counter a byte; none can run over in 255 rounds.
        const std::size_t rounds = std::min<std::size_t>((text.size() - i) / 8, 255);
        std::uint64_t counters = 0;
        for (std::size_t round = 0; round < rounds; ++round) {
            const std::uint64_t word = load8(bytes + i + round * 8);
            counters += (word >> 7) & (~word >> 6) & 0x0101010101010101;
        }
        const std::uint64_t pairs =
            (counters & 0x00FF00FF00FF00FF) + (counters >> 8 & 0x00FF00FF00FF00FF);
        continuations += pairs * 0x0001000100010001 >> 48;
        i += rounds * 8;
    }
    for (; i < text.size(); ++i)
        continuations += isContinuation(bytes[i]);
    return text.size() - continuations;
}

// Any one character as UTF-8; answers the place behind it, null when it is invalid. Writes four
// bytes.
[[gnu::always_inline]] inline char* encodeOne(char32_t c, char* to) {
    std::uint32_t bytes = c;
    if (c < 0x80) {
        std::memcpy(to, &bytes, sizeof bytes);
        return to + 1;
    }
    if (c < 0x800) {
        bytes = (0xC0 | c >> 6) | (0x80 | (c & 0x3F)) << 8;
        std::memcpy(to, &bytes, sizeof bytes);
        return to + 2;
    }
    if (!is_scalar_value(c))
        return nullptr;
    if (c < 0x10000) {
        bytes = (0xE0 | c >> 12) | (0x80 | (c >> 6 & 0x3F)) << 8 | (0x80 | (c & 0x3F)) << 16;
        std::memcpy(to, &bytes, sizeof bytes);
        return to + 3;
    }
    bytes = (0xF0 | c >> 18) | (0x80 | (c >> 12 & 0x3F)) << 8 | (0x80 | (c >> 6 & 0x3F)) << 16 |
            (0x80 | (c & 0x3F)) << 24;
    std::memcpy(to, &bytes, sizeof bytes);
    return to + 4;
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
    using From = const wchar_t*;

    static char* fill(From& at, From end, char* to, const char* full) {
        From from = at;
        while (to < full && end - from >= 8) {
            const char32_t bits = all<8>(from);
            if (bits < 0x80) {
                narrow<8>(from, to);
                from += 8;
                to += 8;
                while (to < full && end - from >= 16 && all<16>(from) < 0x80) {
                    narrow<16>(from, to);
                    from += 16;
                    to += 16;
                }
                continue;
            }
            if (bits < 0x800) {
                for (std::size_t i = 0; i < 8; ++i)
                    to = encodeShort(static_cast<char32_t>(from[i]), to);
                from += 8;
                continue;
            }
            for (std::size_t i = 0; i < 8; ++i) {
                to = encodeOne(static_cast<char32_t>(from[i]), to);
                if (to == nullptr)
                    return nullptr;
            }
            from += 8;
        }
        while (to < full && from != end) {
            to = encodeOne(static_cast<char32_t>(*from), to);
            if (to == nullptr)
                return nullptr;
            ++from;
        }
        at = from;
        return to;
    }

  private:
    // Every bit that is set in any of the characters.
    template <std::size_t N>
    static char32_t all(From from) {
        char32_t bits = 0;
        for (std::size_t i = 0; i < N; ++i)
            bits |= static_cast<char32_t>(from[i]);
        return bits;
    }

    // By way of a buffer: stores of single characters could change the input, for all that the
    // compiler knows.
    template <std::size_t N>
    static void narrow(From from, char* to) {
        unsigned char bytes[N];
        for (std::size_t i = 0; i < N; ++i)
            bytes[i] = static_cast<unsigned char>(from[i]);
        std::memcpy(to, bytes, sizeof bytes);
    }
};

template <class Coder, class Out>
bool run(typename Coder::From from, typename Coder::From end, Out& out) {
    typename Out::value_type block[kBlock + kSlack];
    while (from != end) {
        const auto* filled = Coder::fill(from, end, block, block + kBlock);
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
    return run<Decoder>(bytes, bytes + text.size(), out);
}

bool utf32_to_utf8(std::wstring_view text, std::string& out) {
    out.clear();
    out.reserve(text.size());
    return run<Encoder>(text.data(), text.data() + text.size(), out);
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
