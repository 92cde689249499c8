// Free functions that convert one text once. The platform string is UTF-16 (`std::u16string`), the
// library's wide strings are UTF-32, narrow text is in the encoding that the function names.
// Failures answer false or an empty result; nothing throws but for lack of memory. Null pointers
// count as empty text. No locale is used; all are safe from any thread.
#pragma once

#include <cstddef>
#include <string>

namespace Corvaldine::CP {

/// `out` := the `length` bytes of UTF-8 at `src`, or the `length` wide characters, converted; true
/// unless the input is invalid (overlong forms, surrogates, above U+10FFFF), when `out` ends empty.
[[nodiscard]] bool utf8_to_wchar_wrapper(const char* src, std::size_t length, std::wstring& out);
[[nodiscard]] bool wchar_to_utf8_wrapper(const wchar_t* src, std::size_t length, std::string& out);

/// Wide text (NUL-terminated, counted or a string) to a platform string; empty when it is not valid
/// UTF-32. The mutable form is the same text: a platform string here can always be changed.
[[nodiscard]] std::u16string ToCFString(const wchar_t* text);
[[nodiscard]] std::u16string ToCFString(const wchar_t* text, std::size_t length);
[[nodiscard]] std::u16string ToCFString(const std::wstring& text);
[[nodiscard]] std::u16string ToMutableCFString(const wchar_t* text);
[[nodiscard]] std::u16string ToMutableCFString(const wchar_t* text, std::size_t length);
[[nodiscard]] std::u16string ToMutableCFString(const std::wstring& text);

/// `length` units of UTF-16 as wide text; empty when a surrogate stands alone.
[[nodiscard]] std::wstring ToWString(const unsigned short* text, std::size_t length);

/// A platform string as wide text or as UTF-8; empty when a surrogate stands alone.
[[nodiscard]] std::wstring CFStringToWString(const std::u16string& cf);
[[nodiscard]] std::string CFStringToUTF8(const std::u16string& cf);

/// Narrow text to a platform string; empty when the bytes are not valid in the encoding. ASCII is
/// strict: no byte above 0x7F.
[[nodiscard]] std::u16string UTF8ToCFString(const char* text);
[[nodiscard]] std::u16string UTF8ToCFString(const std::string& text);
[[nodiscard]] std::u16string MacRomanToCFString(const char* text);
[[nodiscard]] std::u16string MacRomanToCFString(const std::string& text);
[[nodiscard]] std::u16string ASCIIToCFString(const char* text);
[[nodiscard]] std::u16string ASCIIToCFString(const std::string& text);

} // namespace Corvaldine::CP
