#include "cp/private/SingleByteTable.h"

#include <algorithm>

namespace Corvaldine::CP::Private {

SingleByteTable::SingleByteTable(const Characters& characters,
                                 std::initializer_list<std::uint8_t> variants)
    : m_characters(characters) {
    for (const std::uint8_t byte : variants)
        m_isVariant[byte] = true;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        if (characters[i] == kUndefined)
            continue;
        auto& entries = m_isVariant[i] ? m_variants : m_bytes;
        entries.emplace_back(characters[i], static_cast<std::uint8_t>(i));
    }
    std::sort(m_bytes.begin(), m_bytes.end());
    std::sort(m_variants.begin(), m_variants.end());
}

bool SingleByteTable::toWide(std::string_view bytes, std::wstring& out) const {
    out.clear();
    out.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto index = static_cast<std::uint8_t>(byte);
        const char16_t c = m_characters[index];
        if (c == kUndefined) {
            out.clear();
            return false;
        }
        out.push_back(static_cast<wchar_t>(c));
        if (m_isVariant[index])
            out.push_back(static_cast<wchar_t>(kVariantTag));
    }
    return true;
}

void SingleByteTable::toNarrow(std::wstring_view text, std::uint8_t lossByte,
                               std::string& out) const {
    out.clear();
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<char32_t>(text[i]);
        const bool tagged =
            i + 1 < text.size() && static_cast<char32_t>(text[i + 1]) == kVariantTag;
        const std::uint8_t* byte = tagged ? find(m_variants, c) : nullptr;
        if (byte != nullptr)
            ++i;
        else
            byte = find(m_bytes, c);
        if (byte == nullptr && lossByte == 0)
            return;
        out.push_back(static_cast<char>(byte != nullptr ? *byte : lossByte));
    }
}

const std::uint8_t* SingleByteTable::find(const std::vector<Entry>& entries, char32_t c) const {
    const auto at =
        std::lower_bound(entries.begin(), entries.end(), c,
                         [](const Entry& entry, char32_t value) { return entry.first < value; });
    return at != entries.end() && at->first == c ? &at->second : nullptr;
}

} // namespace Corvaldine::CP::Private
