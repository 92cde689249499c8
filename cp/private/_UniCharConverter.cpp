#include "cp/private/_UniCharConverter.h"

#include <algorithm>

#include "cp/private/NativeTranslation.h"

namespace Corvaldine::CP::Private {

_UniCharConverter::_UniCharConverter(const std::wstring& text)
    : m_text(_wstring_to_cfstring(text)) {}

_UniCharConverter::_UniCharConverter(const wchar_t* text, std::size_t length)
    : m_text(_wstring_to_cfstring({text, length})) {}

_UniCharConverter::_UniCharConverter(const HFSUniStr255& name)
    : _UniCharConverter(name.unicode.data(),
                        std::min<std::size_t>(name.length, name.unicode.size())) {}

_UniCharConverter::_UniCharConverter(const std::uint16_t* text, std::size_t length)
    : m_text(text, text + length) {}

std::wstring _UniCharConverter::get_wstring() const {
    std::wstring wide;
    // Invalid text leaves the result empty.
    static_cast<void>(_cfstring_to_wstring(m_text, wide));
    return wide;
}

} // namespace Corvaldine::CP::Private
