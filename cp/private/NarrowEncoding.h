// Narrow encodings by name: UTF-8 and the Mac encodings from the library's own code, every other
// one from iconv. Called by the native translation and the string functions only.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Corvaldine::CP::Private {

/// Names as iconv has them, but for the last, which conversion libraries don't offer.
inline constexpr std::string_view kUtf8 = "UTF-8";
inline constexpr std::string_view kAscii = "US-ASCII";
inline constexpr std::string_view kWindowsLatin1 = "CP1252";
inline constexpr std::string_view kMacRoman = "MACINTOSH";
inline constexpr std::string_view kMacSymbol = "x-mac-symbol";

/// `out` := the text of the bytes. False, with `out` empty, when the encoding isn't offered or the
/// bytes are not valid in it.
[[nodiscard]] bool narrow_to_wide(std::string_view encoding, std::string_view bytes,
                                  std::wstring& out);

/// `out` := the text in the encoding. A character that the encoding can't hold becomes `lossByte`;
/// when that is 0 the result ends before the first of them. False, with `out` empty, when the
/// encoding isn't offered or the text is not valid UTF-32.
[[nodiscard]] bool wide_to_narrow(std::string_view encoding, std::uint8_t lossByte,
                                  std::wstring_view text, std::string& out);

} // namespace Corvaldine::CP::Private
