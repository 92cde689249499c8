// Single conversions for CStringConverter and the string functions: which encoding of the system
// stands for a converter's, and the way from narrow text over the platform string to wide text.
// The platform string is UTF-16.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "cp/CStringConverter.h"

namespace Corvaldine::CP::Private {

/// The system's name for an encoding of the converter; empty for `none`. A Windows code page that
/// the system doesn't offer has a name all the same: the conversion then fails.
[[nodiscard]] std::string _get_mac_encoding(CStringConverter::encoding, std::uint32_t codePage);

/// `wide` := the text of `narrow`; true when the result is not empty.
[[nodiscard]] bool _native_translate(CStringConverter::encoding, const std::string& narrow,
                                     std::wstring& wide, std::uint32_t codePage);
/// `narrow` := the text in the encoding, with `lossByte` for what it can't hold (0: it ends there);
/// true when the result is not empty. `narrow` is empty after a failure.
[[nodiscard]] bool _native_translate(CStringConverter::encoding, std::uint8_t lossByte,
                                     const std::wstring& wide, std::string& narrow,
                                     std::uint32_t codePage);

/// The same for an encoding of the system, by name (NarrowEncoding.h).
[[nodiscard]] bool _other_to_wstring(std::string_view encoding, std::string_view bytes,
                                     std::wstring& wide);
[[nodiscard]] bool _wstring_to_other(std::string_view encoding, std::uint8_t lossByte,
                                     std::wstring_view wide, std::string& narrow);

/// Platform string to wide text and back; false, or empty, when the text is not valid.
[[nodiscard]] bool _cfstring_to_wstring(std::u16string_view cf, std::wstring& wide);
[[nodiscard]] std::u16string _wstring_to_cfstring(std::wstring_view wide);

/// UTF-8 of the given length to wide text and back; true unless invalid.
[[nodiscard]] bool _utf8_to_wstring(const char* bytes, std::size_t length, std::wstring& wide);
[[nodiscard]] bool _wstring_to_utf8(const std::wstring& wide, std::string& narrow);

} // namespace Corvaldine::CP::Private
