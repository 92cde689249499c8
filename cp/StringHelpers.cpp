#include "cp/StringHelpers.h"

#include "cp/StringConversion.h"

namespace Corvaldine::CP::SVCommon_NSStringConversionHelpers {

std::u16string stringWithUTF16String(const char16_t* text, std::size_t length) {
    if (text == nullptr)
        return {};
    return {text, length};
}

std::u16string stringWithUTF32String(const wchar_t* text) {
    return ToCFString(text);
}

std::u16string stringWithUTF32String(const wchar_t* text, std::size_t length) {
    return ToCFString(text, length);
}

std::u16string stringWith_utf8_std_string(const std::string& text) {
    return UTF8ToCFString(text.c_str());
}

std::u16string stringWith_std_wstring(const std::wstring& text) {
    return ToCFString(text);
}

std::string to_utf8_std_string(const std::u16string& string) {
    const std::string text = CFStringToUTF8(string);
    return text.substr(0, text.find('\0'));
}

std::wstring to_std_wstring(const std::u16string& string) {
    return CFStringToWString(string);
}

} // namespace Corvaldine::CP::SVCommon_NSStringConversionHelpers
