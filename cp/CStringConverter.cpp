#include "cp/CStringConverter.h"

#include <utility>

#include "cp/CException.h"
#include "cp/private/NativeTranslation.h"

namespace Corvaldine::CP {

CStringConverter::CStringConverter(std::string narrow, encoding kind, std::uint32_t codePage,
                                   std::uint8_t lossByte)
    : m_lossByte(lossByte), m_codePage(codePage), m_narrow(std::move(narrow)), m_encoding(kind) {}

CStringConverter::CStringConverter(std::wstring wide, encoding kind, std::uint32_t codePage,
                                   std::uint8_t lossByte)
    : m_lossByte(lossByte), m_codePage(codePage), m_wide(std::move(wide)), m_encoding(kind) {}

CStringConverter::~CStringConverter() = default;

CStringConverter::operator const std::string&() {
    if (!_make_cstr())
        throw CException(CException::null_pointer);
    return *m_narrow;
}

CStringConverter::operator const std::wstring&() {
    if (!_make_wstr())
        throw CException(CException::null_pointer);
    return *m_wide;
}

void CStringConverter::_update_translation(encoding kind, std::uint32_t codePage) {
    if (kind == m_encoding && (codePage == 0 || codePage == m_codePage))
        return;
    // Where the wide form can't be made both forms are gone, and the text is empty from here on.
    _make_wstr();
    m_narrow.reset();
    m_encoding = kind;
    if (codePage != 0)
        m_codePage = codePage;
}

bool CStringConverter::_translate(const std::string& narrow, std::wstring& wide) {
    wide.clear();
    return narrow.empty() || Private::_native_translate(m_encoding, narrow, wide, m_codePage);
}

bool CStringConverter::_translate(const std::wstring& wide, std::string& narrow) {
    narrow.clear();
    return wide.empty() ||
           Private::_native_translate(m_encoding, m_lossByte, wide, narrow, m_codePage);
}

bool CStringConverter::_make_cstr() {
    if (m_narrow)
        return true;
    std::string made;
    if (m_wide && !_translate(*m_wide, made))
        return false;
    m_narrow = std::move(made);
    return true;
}

bool CStringConverter::_make_wstr() {
    if (m_wide)
        return true;
    std::wstring made;
    if (m_narrow && !_translate(*m_narrow, made))
        return false;
    m_wide = std::move(made);
    return true;
}

} // namespace Corvaldine::CP
