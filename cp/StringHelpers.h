// The conversions that the application uses with platform strings (UTF-16, `std::u16string`), under
// the names of their two historical groups. Lengths count units, not bytes. Invalid text gives an
// empty result; nothing throws but for lack of memory.
#pragma once

#include <cstddef>
#include <string>

namespace Corvaldine::CP {

namespace SVCommon_NSStringConversionHelpers {

/// `stringWithUTF16String:length:`: `length` units of UTF-16, little-endian.
[[nodiscard]] std::u16string stringWithUTF16String(const char16_t* text, std::size_t length);
/// `stringWithUTF32String:`: wide text up to its NUL.
[[nodiscard]] std::u16string stringWithUTF32String(const wchar_t* text);
/// `stringWithUTF32String:length:`: `length` wide characters.
[[nodiscard]] std::u16string stringWithUTF32String(const wchar_t* text, std::size_t length);
/// `stringWith_utf8_std_string:`: the UTF-8 text up to its first NUL.
[[nodiscard]] std::u16string stringWith_utf8_std_string(const std::string& text);
/// `stringWith_std_wstring:`: the whole wide string.
[[nodiscard]] std::u16string stringWith_std_wstring(const std::wstring& text);
/// `to_utf8_std_string`: the string in UTF-8, up to its first NUL.
[[nodiscard]] std::string to_utf8_std_string(const std::u16string& string);
/// `to_std_wstring`: the whole string in wide characters.
[[nodiscard]] std::wstring to_std_wstring(const std::u16string& string);

} // namespace SVCommon_NSStringConversionHelpers

/// The same constructions for a string that is changed afterwards; here one type serves both.
namespace SVCommon_NSMutableStringConversionHelpers {

using SVCommon_NSStringConversionHelpers::stringWith_std_wstring;
using SVCommon_NSStringConversionHelpers::stringWith_utf8_std_string;
using SVCommon_NSStringConversionHelpers::stringWithUTF16String;
using SVCommon_NSStringConversionHelpers::stringWithUTF32String;

} // namespace SVCommon_NSMutableStringConversionHelpers

} // namespace Corvaldine::CP
