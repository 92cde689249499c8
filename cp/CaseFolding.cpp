#include "cp/CaseFolding.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <utf8proc.h>

namespace Corvaldine::CP {

namespace {

bool is_ascii(std::string_view text) {
    return std::ranges::none_of(text, [](char c) { return (c & 0x80) != 0; });
}

char lower_ascii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

std::string ascii_folded(std::string_view text) {
    std::string folded(text);
    std::ranges::transform(folded, folded.begin(), lower_ascii);
    return folded;
}

} // namespace

std::string case_folded(std::string_view text) {
    if (is_ascii(text))
        return ascii_folded(text);
    utf8proc_uint8_t* mapped = nullptr;
    const utf8proc_ssize_t length = utf8proc_map(
        reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
        static_cast<utf8proc_ssize_t>(text.size()), &mapped,
        static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_DECOMPOSE | UTF8PROC_CASEFOLD));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(mapped, &std::free);
    if (length < 0)
        return ascii_folded(text);
    return {reinterpret_cast<const char*>(mapped), static_cast<std::size_t>(length)};
}

bool equal_ignoring_case(std::string_view a, std::string_view b) {
    if (is_ascii(a) && is_ascii(b))
        return std::ranges::equal(a, b, {}, lower_ascii, lower_ascii);
    return case_folded(a) == case_folded(b);
}

} // namespace Corvaldine::CP
