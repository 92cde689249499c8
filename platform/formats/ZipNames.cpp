#include "platform/formats/ZipNames.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include <utf8proc.h>

namespace formats::zip {

namespace {

constexpr std::size_t kLongestPath = 4096;
constexpr std::size_t kLongestComponent = 255;

// Code page 437, 0x80 to 0xFF, as Unicode's mapping file CP437.TXT gives it.
constexpr std::array<char16_t, 128> kCodePage437{
    0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E4, 0x00E0, 0x00E5, 0x00E7, 0x00EA, 0x00EB, 0x00E8, 0x00EF,
    0x00EE, 0x00EC, 0x00C4, 0x00C5, 0x00C9, 0x00E6, 0x00C6, 0x00F4, 0x00F6, 0x00F2, 0x00FB, 0x00F9,
    0x00FF, 0x00D6, 0x00DC, 0x00A2, 0x00A3, 0x00A5, 0x20A7, 0x0192, 0x00E1, 0x00ED, 0x00F3, 0x00FA,
    0x00F1, 0x00D1, 0x00AA, 0x00BA, 0x00BF, 0x2310, 0x00AC, 0x00BD, 0x00BC, 0x00A1, 0x00AB, 0x00BB,
    0x2591, 0x2592, 0x2593, 0x2502, 0x2524, 0x2561, 0x2562, 0x2556, 0x2555, 0x2563, 0x2551, 0x2557,
    0x255D, 0x255C, 0x255B, 0x2510, 0x2514, 0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x255E, 0x255F,
    0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550, 0x256C, 0x2567, 0x2568, 0x2564, 0x2565, 0x2559,
    0x2558, 0x2552, 0x2553, 0x256B, 0x256A, 0x2518, 0x250C, 0x2588, 0x2584, 0x258C, 0x2590, 0x2580,
    0x03B1, 0x00DF, 0x0393, 0x03C0, 0x03A3, 0x03C3, 0x00B5, 0x03C4, 0x03A6, 0x0398, 0x03A9, 0x03B4,
    0x221E, 0x03C6, 0x03B5, 0x2229, 0x2261, 0x00B1, 0x2265, 0x2264, 0x2320, 0x2321, 0x00F7, 0x2248,
    0x00B0, 0x2219, 0x00B7, 0x221A, 0x207F, 0x00B2, 0x25A0, 0x00A0};

bool isAscii(std::string_view bytes) {
    return std::ranges::all_of(bytes, [](unsigned char c) { return c < 0x80; });
}

void appendUtf8(char16_t c, std::string& to) {
    if (c < 0x800) {
        to += static_cast<char>(0xC0 | c >> 6);
    } else {
        to += static_cast<char>(0xE0 | c >> 12);
        to += static_cast<char>(0x80 | (c >> 6 & 0x3F));
    }
    to += static_cast<char>(0x80 | (c & 0x3F));
}

} // namespace

bool isUtf8(std::string_view bytes) {
    const auto* at = reinterpret_cast<const utf8proc_uint8_t*>(bytes.data());
    for (std::size_t left = bytes.size(); left > 0;) {
        if (*at < 0x80) {
            ++at;
            --left;
            continue;
        }
        utf8proc_int32_t c = 0;
        const auto length = utf8proc_iterate(at, static_cast<utf8proc_ssize_t>(left), &c);
        if (length <= 0)
            return false;
        at += length;
        left -= static_cast<std::size_t>(length);
    }
    return true;
}

void appendFromCodePage437(std::string_view bytes, std::string& to) {
    for (const unsigned char c : bytes) {
        if (c < 0x80)
            to += static_cast<char>(c);
        else
            appendUtf8(kCodePage437[c - 0x80], to);
    }
}

const char* tidyPath(std::string& path) {
    if (path.empty())
        return "a member has no name";
    if (path.size() > kLongestPath)
        return "the name is longer than 4096 bytes";
    if (path.front() == '/')
        return "the name is absolute";
    if (path.find('\\') != std::string::npos)
        return "the name holds a backslash";
    if (path.find('\0') != std::string::npos)
        return "the name holds a NUL";
    std::size_t kept = 0;
    for (std::size_t at = 0; at < path.size();) {
        const std::size_t end = std::min(path.find('/', at), path.size());
        const std::string_view component(path.data() + at, end - at);
        if (component.empty())
            return "the name has an empty component";
        if (component == "..")
            return "the name leads out of its folder";
        if (component.size() > kLongestComponent)
            return "a component of the name is longer than 255 bytes";
        if (component != ".") {
            if (kept > 0)
                path[kept++] = '/';
            std::copy(component.begin(), component.end(),
                      path.begin() + static_cast<std::ptrdiff_t>(kept));
            kept += component.size();
        }
        at = end + 1;
    }
    path.resize(kept);
    return nullptr;
}

void foldName(std::string_view name, std::string& folded) {
    if (isAscii(name)) {
        folded.assign(name);
        for (char& c : folded)
            c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
        return;
    }
    utf8proc_uint8_t* result = nullptr;
    const auto length = utf8proc_map(
        reinterpret_cast<const utf8proc_uint8_t*>(name.data()),
        static_cast<utf8proc_ssize_t>(name.size()), &result,
        static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_CASEFOLD));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(result, &std::free);
    if (length < 0)
        folded.assign(name); // only without memory: the name was checked to be UTF-8
    else
        folded.assign(reinterpret_cast<const char*>(result), static_cast<std::size_t>(length));
}

} // namespace formats::zip
