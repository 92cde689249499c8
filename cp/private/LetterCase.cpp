#include "cp/private/LetterCase.h"

#include <cwctype>
#include <initializer_list>
#include <locale.h>
#if __has_include(<xlocale.h>)
#include <xlocale.h>
#endif

namespace Corvaldine::CP::Private {

namespace {

// The C library's table of characters; the names under which systems have it without a language.
locale_t unicodeLocale() {
    for (const char* name : {"C.UTF-8", "UTF-8", "en_US.UTF-8"})
        if (locale_t found = newlocale(LC_CTYPE_MASK, name, nullptr))
            return found;
    return nullptr;
}

} // namespace

wchar_t lower_case(wchar_t c) {
    if (c >= 0 && c < 0x80)
        return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + (L'a' - L'A')) : c;
    static const locale_t locale = unicodeLocale();
    // NOLINTNEXTLINE(bugprone-signed-char-misuse): that is about char; this is a whole character
    const auto character = static_cast<wint_t>(c);
    if (locale == nullptr || iswupper_l(character, locale) == 0)
        return c;
    return static_cast<wchar_t>(towlower_l(character, locale));
}

} // namespace Corvaldine::CP::Private
