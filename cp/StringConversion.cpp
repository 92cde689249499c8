#include "cp/StringConversion.h"

#include <string_view>

#include "cp/private/NarrowEncoding.h"
#include "cp/private/NativeTranslation.h"
#include "cp/private/Utf.h"

namespace Corvaldine::CP {

namespace {

std::string_view viewOf(const char* text) {
    return text == nullptr ? std::string_view() : std::string_view(text);
}

std::wstring_view viewOf(const wchar_t* text) {
    return text == nullptr ? std::wstring_view() : std::wstring_view(text);
}

std::u16string platformString(std::string_view encoding, std::string_view bytes) {
    std::wstring wide;
    if (!Private::narrow_to_wide(encoding, bytes, wide))
        return {};
    return Private::_wstring_to_cfstring(wide);
}

} // namespace

bool utf8_to_wchar_wrapper(const char* src, std::size_t length, std::wstring& out) {
    return Private::utf8_to_utf32({src, length}, out);
}

bool wchar_to_utf8_wrapper(const wchar_t* src, std::size_t length, std::string& out) {
    return Private::utf32_to_utf8({src, length}, out);
}

std::u16string ToCFString(const wchar_t* text) {
    return Private::_wstring_to_cfstring(viewOf(text));
}

std::u16string ToCFString(const wchar_t* text, std::size_t length) {
    return Private::_wstring_to_cfstring({text, text == nullptr ? 0 : length});
}

std::u16string ToCFString(const std::wstring& text) {
    return Private::_wstring_to_cfstring(text);
}

std::u16string ToMutableCFString(const wchar_t* text) {
    return ToCFString(text);
}

std::u16string ToMutableCFString(const wchar_t* text, std::size_t length) {
    return ToCFString(text, length);
}

std::u16string ToMutableCFString(const std::wstring& text) {
    return ToCFString(text);
}

std::wstring ToWString(const unsigned short* text, std::size_t length) {
    if (text == nullptr)
        return {};
    return CFStringToWString(std::u16string(text, text + length));
}

std::wstring CFStringToWString(const std::u16string& cf) {
    std::wstring wide;
    // Invalid text leaves the result empty.
    static_cast<void>(Private::_cfstring_to_wstring(cf, wide));
    return wide;
}

std::string CFStringToUTF8(const std::u16string& cf) {
    std::string narrow;
    static_cast<void>(Private::_wstring_to_utf8(CFStringToWString(cf), narrow));
    return narrow;
}

std::u16string UTF8ToCFString(const char* text) {
    return platformString(Private::kUtf8, viewOf(text));
}

std::u16string UTF8ToCFString(const std::string& text) {
    return platformString(Private::kUtf8, text);
}

std::u16string MacRomanToCFString(const char* text) {
    return platformString(Private::kMacRoman, viewOf(text));
}

std::u16string MacRomanToCFString(const std::string& text) {
    return platformString(Private::kMacRoman, text);
}

std::u16string ASCIIToCFString(const char* text) {
    return platformString(Private::kAscii, viewOf(text));
}

std::u16string ASCIIToCFString(const std::string& text) {
    return platformString(Private::kAscii, text);
}

} // namespace Corvaldine::CP
