#include "platform/formats/MacRoman.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace formats {

namespace {

// Characters of the bytes from 0x80, as the Unicode Consortium's ROMAN.TXT of Apple's mappings
// gives them.
constexpr std::array<char16_t, 128> kUpperHalf{
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2, 0x00E4, 0x00E3,
    0x00E5, 0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3,
    0x00F2, 0x00F4, 0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3,
    0x00A7, 0x2022, 0x00B6, 0x00DF, 0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8,
    0x221E, 0x00B1, 0x2264, 0x2265, 0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA,
    0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF, 0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB,
    0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5, 0x0152, 0x0153, 0x2013, 0x2014, 0x201C, 0x201D,
    0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178, 0x2044, 0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02,
    0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1, 0x00CB, 0x00C8, 0x00CD, 0x00CE,
    0x00CF, 0x00CC, 0x00D3, 0x00D4, 0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9, 0x0131, 0x02C6, 0x02DC,
    0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7,
};
constexpr char16_t kReplacement = 0xFFFD;

struct Sequence {
    char32_t character;
    std::size_t length;
};

// The sequence at the start of `text`; none of the overlong, surrogate and too large ones.
Sequence firstSequence(std::string_view text) {
    constexpr std::array<char32_t, 5> kSmallest{0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return {kReplacement, 1};
    char32_t character = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80)
            return {kReplacement, 1};
        character = character << 6 | (next & 0x3Fu);
    }
    if (character < kSmallest[length] || character > 0x10FFFF ||
        (character >= 0xD800 && character <= 0xDFFF))
        return {kReplacement, 1};
    return {character, length};
}

template <typename Take>
void forEachCharacter(std::string_view utf8, Take take) {
    while (!utf8.empty()) {
        const Sequence sequence = firstSequence(utf8);
        take(sequence.character);
        utf8.remove_prefix(sequence.length);
    }
}

void appendUtf8(std::string& out, char32_t character) {
    const auto tail = [&](int shift) {
        out += static_cast<char>(0x80 | (character >> shift & 0x3F));
    };
    if (character < 0x80) {
        out += static_cast<char>(character);
    } else if (character < 0x800) {
        out += static_cast<char>(0xC0 | character >> 6);
        tail(0);
    } else if (character < 0x10000) {
        out += static_cast<char>(0xE0 | character >> 12);
        tail(6);
        tail(0);
    } else {
        out += static_cast<char>(0xF0 | character >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

char macRomanByte(char32_t character) {
    if (character < 0x80)
        return static_cast<char>(character);
    const auto found = std::ranges::find(kUpperHalf, character);
    return found == kUpperHalf.end() ? '?' : static_cast<char>(0x80 + (found - kUpperHalf.begin()));
}

constexpr bool isHigh(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool isLow(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

} // namespace

std::u16string utf16Of(std::string_view utf8) {
    std::u16string out;
    forEachCharacter(utf8, [&](char32_t character) {
        if (character < 0x10000) {
            out += static_cast<char16_t>(character);
        } else {
            out += static_cast<char16_t>(0xD7C0 + (character >> 10));
            out += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
        }
    });
    return out;
}

std::string utf8Of(std::u16string_view utf16) {
    std::string out;
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        const char16_t unit = utf16[i];
        if (isHigh(unit) && i + 1 < utf16.size() && isLow(utf16[i + 1])) {
            appendUtf8(out, 0x10000 + ((unit & 0x3FFu) << 10) + (utf16[i + 1] & 0x3FFu));
            ++i;
        } else {
            appendUtf8(out, isHigh(unit) || isLow(unit) ? kReplacement : unit);
        }
    }
    return out;
}

std::string macRomanOf(std::string_view utf8, std::size_t most) {
    std::string out;
    forEachCharacter(utf8, [&](char32_t character) {
        if (out.size() < most)
            out += macRomanByte(character);
    });
    return out;
}

std::string utf8OfMacRoman(std::string_view macRoman) {
    std::string out;
    for (const char c : macRoman) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(out, byte < 0x80 ? byte : kUpperHalf[byte - 0x80u]);
    }
    return out;
}

} // namespace formats
