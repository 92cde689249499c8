// A name in 16-bit Unicode, as the system's counted name records have it, and back as wide text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Corvaldine::CP::Private {

/// A counted 16-bit name: the form in which volume and file names come from the system.
struct HFSUniStr255 {
    std::uint16_t length = 0;
    std::array<std::uint16_t, 255> unicode{};
};

class _UniCharConverter {
  public:
    /// Text that is not valid UTF-32 gives an empty name.
    explicit _UniCharConverter(const std::wstring& text);
    _UniCharConverter(const wchar_t* text, std::size_t length);
    /// A length beyond the record counts as the whole record.
    explicit _UniCharConverter(const HFSUniStr255& name);
    _UniCharConverter(const std::uint16_t* text, std::size_t length);

    /// The units, `size()` of them. Not terminated. Valid as long as this object.
    [[nodiscard]] const char16_t* data() const { return m_text.data(); }
    [[nodiscard]] std::size_t size() const { return m_text.size(); }
    /// The name as wide text; empty when a surrogate stands alone.
    [[nodiscard]] std::wstring get_wstring() const;

  private:
    std::u16string m_text;
};

} // namespace Corvaldine::CP::Private
