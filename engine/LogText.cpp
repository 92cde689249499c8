#include "engine/LogText.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "cp/CStringConversionHelpers.h"

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
