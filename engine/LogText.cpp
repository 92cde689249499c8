#include "engine/LogText.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "cp/StringHelpers.h"

namespace ec {

namespace {

bool isAsciiLetterOrDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::string quoted(const std::string& element) {
    std::string text = "\"";
    for (const char16_t unit :
         Corvaldine::CP::SVCommon_NSStringConversionHelpers::stringWith_utf8_std_string(element)) {
        if (unit == u'"' || unit == u'\\') {
            text += '\\';
            text += static_cast<char>(unit);
        } else if (unit == u'\n') {
            text += "\\n";
        } else if (unit < 0x80) {
            text += static_cast<char>(unit);
        } else {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\U%04x", static_cast<unsigned>(unit));
            text += escape.data();
        }
    }
    return text + '"';
}

} // namespace

std::string shown(OptionalText text) {
    return text ? std::string(*text) : "(null)";
}

std::string formatted(std::string_view format, std::initializer_list<std::string_view> values) {
    std::string text;
    std::size_t next = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        const std::string_view rest = format.substr(i);
        const bool numbered = rest.size() >= 4 && rest[0] == '%' && rest[1] >= '1' &&
                              rest[1] <= '9' && rest.substr(2, 2) == "$@";
        if (!numbered && !rest.starts_with("%@")) {
            text += format[i];
            continue;
        }
        const std::size_t index = numbered ? static_cast<std::size_t>(rest[1] - '1') : next++;
        const std::size_t length = numbered ? 4 : 2;
        text += index < values.size() ? values.begin()[index] : rest.substr(0, length);
        i += length - 1;
    }
    return text;
}

std::string joined(std::span<const std::string> elements) {
    std::string text;
    for (const std::string& element : elements) {
        if (&element != elements.data())
            text += ' ';
        text += element;
    }
    return text;
}

std::string listDescription(std::span<const std::string> elements) {
    std::string text = "(\n";
    for (const std::string& element : elements) {
        if (&element != elements.data())
            text += ",\n";
        const bool bare = !element.empty() && std::ranges::all_of(element, isAsciiLetterOrDigit);
        text += "    ";
        text += bare ? element : quoted(element);
    }
    if (!elements.empty())
        text += '\n';
    return text + ')';
}

} // namespace ec
