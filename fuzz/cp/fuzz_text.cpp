// Any bytes as text in every encoding: what can be read comes back the same when it is written.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "cp/CStringConverter.h"
#include "cp/StringConversion.h"
#include "cp/StringHelpers.h"
#include "cp/private/NarrowEncoding.h"
#include "cp/private/Utf.h"

using namespace Corvaldine::CP;

namespace {

void demand(bool holds) {
    if (!holds)
        std::abort();
}

// Encodings in which a text has only one form.
constexpr std::string_view kExact[] = {Private::kUtf8,     Private::kAscii, Private::kWindowsLatin1,
                                       Private::kMacRoman, "CP1251",        "ISO-8859-1"};

void bytes(const std::string& text) {
    std::wstring wide;
    std::string back;
    for (const std::string_view encoding : kExact) {
        if (!Private::narrow_to_wide(encoding, text, wide)) {
            demand(wide.empty());
            continue;
        }
        demand(Private::wide_to_narrow(encoding, 0, wide, back) && back == text);
    }
    // A sign with the variant tag behind it can also come from two bytes.
    if (Private::narrow_to_wide(Private::kMacSymbol, text, wide))
        demand(Private::wide_to_narrow(Private::kMacSymbol, 0, wide, back));
    if (Private::narrow_to_wide("CP932", text, wide))
        demand(Private::wide_to_narrow("CP932", '?', wide, back));
}

void wideText(const std::wstring& text) {
    std::string narrow;
    std::wstring back;
    const bool valid = Private::utf32_to_utf8(text, narrow);
    std::u16string units;
    demand(Private::utf32_to_utf16(text, units) == valid);
    if (!valid)
        return;
    demand(Private::utf8_to_utf32(narrow, back) && back == text);
    demand(Private::utf16_to_utf32(units, back) && back == text);
    // One loss byte for each character that Windows Latin-1 hasn't.
    demand(Private::wide_to_narrow(Private::kWindowsLatin1, '?', text, narrow));
    demand(narrow.size() == text.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    bytes(text);
    std::wstring wide;
    for (std::size_t i = 0; i + 4 <= size; i += 4)
        wide += static_cast<wchar_t>(data[i] | data[i + 1] << 8 | (data[i + 2] & 0x1F) << 16);
    wideText(wide);
    std::u16string units;
    for (std::size_t i = 0; i + 2 <= size; i += 2)
        units += static_cast<char16_t>(data[i] | data[i + 1] << 8);
    if (Private::utf16_to_utf32(units, wide))
        demand(SVCommon_NSStringConversionHelpers::stringWith_std_wstring(wide) == units);
    return 0;
}
