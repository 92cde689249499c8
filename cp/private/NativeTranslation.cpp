#include "cp/private/NativeTranslation.h"

#include "cp/StringConversion.h"
#include "cp/private/NarrowEncoding.h"
#include "cp/private/Utf.h"

namespace Corvaldine::CP::Private {

namespace {

// Code pages whose encoding iconv knows by another name than "CP" and the number.
struct NamedCodePage {
    std::uint32_t number;
    std::string_view name;
};
constexpr NamedCodePage kNamedCodePages[] = {
    {10000, kMacRoman}, {20127, kAscii}, {28591, "ISO-8859-1"}, {65001, kUtf8}};

std::string codePageName(std::uint32_t codePage) {
    for (const NamedCodePage& page : kNamedCodePages)
        if (page.number == codePage)
            return std::string(page.name);
    return "CP" + std::to_string(codePage);
}

} // namespace

std::string _get_mac_encoding(CStringConverter::encoding encoding, std::uint32_t codePage) {
    switch (encoding) {
    case CStringConverter::windows_latin1:
        return std::string(kWindowsLatin1);
    case CStringConverter::utf8:
        return std::string(kUtf8);
    case CStringConverter::mac_roman:
        return std::string(kMacRoman);
    case CStringConverter::mac_symbol:
        return std::string(kMacSymbol);
    case CStringConverter::windows_codepage:
        return codePageName(codePage);
    case CStringConverter::none:
        break;
    }
    return {};
}

bool _native_translate(CStringConverter::encoding encoding, const std::string& narrow,
                       std::wstring& wide, std::uint32_t codePage) {
    return _other_to_wstring(_get_mac_encoding(encoding, codePage), narrow, wide);
}

bool _native_translate(CStringConverter::encoding encoding, std::uint8_t lossByte,
                       const std::wstring& wide, std::string& narrow, std::uint32_t codePage) {
    return _wstring_to_other(_get_mac_encoding(encoding, codePage), lossByte, wide, narrow);
}

bool _other_to_wstring(std::string_view encoding, std::string_view bytes, std::wstring& wide) {
    return narrow_to_wide(encoding, bytes, wide) && !wide.empty();
}

bool _wstring_to_other(std::string_view encoding, std::uint8_t lossByte, std::wstring_view wide,
                       std::string& narrow) {
    return wide_to_narrow(encoding, lossByte, wide, narrow) && !narrow.empty();
}

bool _cfstring_to_wstring(std::u16string_view cf, std::wstring& wide) {
    return utf16_to_utf32(cf, wide);
}

std::u16string _wstring_to_cfstring(std::wstring_view wide) {
    std::u16string cf;
    // Invalid text leaves the platform string empty.
    static_cast<void>(utf32_to_utf16(wide, cf));
    return cf;
}

bool _utf8_to_wstring(const char* bytes, std::size_t length, std::wstring& wide) {
    return utf8_to_wchar_wrapper(bytes, length, wide);
}

bool _wstring_to_utf8(const std::wstring& wide, std::string& narrow) {
    return wchar_to_utf8_wrapper(wide.data(), wide.size(), narrow);
}

} // namespace Corvaldine::CP::Private
