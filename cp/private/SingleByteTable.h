// A narrow encoding of one byte a character, given as the table of its 256 characters. Used for the
// Mac encodings, whose published mappings conversion libraries hold in differing states.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Corvaldine::CP::Private {

class SingleByteTable {
  public:
    /// The character of each byte; kUndefined where the encoding has none.
    using Characters = std::array<char16_t, 256>;
    static constexpr char16_t kUndefined = 0xFFFF;
    /// Follows a character, in the wide form, whose other form is meant: the variant tag of the
    /// published mapping.
    static constexpr char16_t kVariantTag = 0xF87F;

    /// `variants`: the bytes whose character is written with the variant tag after it. The
    /// characters must outlive the table.
    explicit SingleByteTable(const Characters& characters,
                             std::initializer_list<std::uint8_t> variants = {});

    /// False, with `out` empty, when a byte is not defined.
    [[nodiscard]] bool toWide(std::string_view bytes, std::wstring& out) const;

    /// Characters that the encoding doesn't have become `lossByte`; when that is 0 the text ends
    /// before the first of them.
    void toNarrow(std::wstring_view text, std::uint8_t lossByte, std::string& out) const;

  private:
    using Entry = std::pair<char32_t, std::uint8_t>;

    const std::uint8_t* find(const std::vector<Entry>& entries, char32_t c) const;

    const Characters& m_characters;
    std::array<bool, 256> m_isVariant{};
    std::vector<Entry> m_bytes;    // by character
    std::vector<Entry> m_variants; // by the character before the tag
};

} // namespace Corvaldine::CP::Private
