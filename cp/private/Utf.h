// UTF-8, UTF-16 and UTF-32 into one another: the loops behind every conversion of the library.
// Strict: overlong forms, surrogates in UTF-8 or UTF-32, unpaired surrogates in UTF-16 and values
// above U+10FFFF are invalid, and one invalid place fails the whole text. A NUL is a character like
// any other. No locale, no state; safe from any thread.
#pragma once

#include <string>
#include <string_view>

namespace Corvaldine::CP::Private {

static_assert(sizeof(wchar_t) == 4, "wide strings are UTF-32 here");

/// Each replaces `out` by the converted text and answers true; for invalid input `out` ends empty
/// and the answer is false. The input must not be a view of `out`. Time and memory are linear.
[[nodiscard]] bool utf8_to_utf32(std::string_view text, std::wstring& out);
[[nodiscard]] bool utf32_to_utf8(std::wstring_view text, std::string& out);
[[nodiscard]] bool utf16_to_utf32(std::u16string_view text, std::wstring& out);
[[nodiscard]] bool utf32_to_utf16(std::wstring_view text, std::u16string& out);

/// Whether a value is a Unicode scalar value: at most U+10FFFF and no surrogate.
[[nodiscard]] constexpr bool is_scalar_value(char32_t c) {
    return c < 0xD800 || (c > 0xDFFF && c <= 0x10FFFF);
}

} // namespace Corvaldine::CP::Private
