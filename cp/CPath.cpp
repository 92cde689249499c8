#include "cp/CPath.h"

#include "cp/CException.h"
#include "cp/CFileType.h"
#include "cp/private/PathConversion.h"
#include "cp/private/_CNativePath.h"

namespace Corvaldine::CP {

inline namespace v20 {

namespace {

std::wstring wide(const std::string& text) {
    try {
        CStringConverter converter(text, CStringConverter::utf8,
                                   CStringConverter::kWindowsLatin1CodePage);
        return static_cast<const std::wstring&>(converter);
    } catch (const CException&) {
        return {};
    }
}

std::wstring wide(const char* text) {
    return text == nullptr ? std::wstring() : wide(std::string(text));
}

std::wstring copied(const wchar_t* text) {
    return text == nullptr ? std::wstring() : std::wstring(text);
}

std::string pascalText(const unsigned char* pascal) {
    if (pascal == nullptr)
        return {};
    const std::string text(reinterpret_cast<const char*>(pascal + 1), *pascal);
    // It is read as terminated text.
    return text.substr(0, text.find('\0'));
}

} // namespace

CPath::CPath(const char* path) : m_path(wide(path)) {}
CPath::CPath(const std::string& path) : m_path(wide(path)) {}
CPath::CPath(const wchar_t* path) : m_path(copied(path)) {}
CPath::CPath(const std::wstring& path) : m_path(path) {}

CPath::CPath(const unsigned char* pascal, bool hfs) : m_path(wide(pascalText(pascal))) {
    if (hfs) {
        std::wstring posix;
        Private::_CNativePath(this).convert(posix);
        m_path = posix;
    }
}

CPath& CPath::operator=(const char* path) {
    m_path = wide(path);
    return *this;
}

CPath& CPath::operator=(const std::string& path) {
    m_path = wide(path);
    return *this;
}

CPath& CPath::operator=(const wchar_t* path) {
    m_path = copied(path);
    return *this;
}

CPath& CPath::operator=(const std::wstring& path) {
    m_path = path;
    return *this;
}

CPath& CPath::append(const char* component) {
    return append(wide(component));
}

CPath& CPath::append(const std::string& component) {
    return append(wide(component));
}

CPath& CPath::append(const wchar_t* component) {
    return append(copied(component));
}

CPath& CPath::append(const std::wstring& component) {
    std::wstring joined;
    if (Private::_CNativePath(this)._append(component, joined))
        m_path = joined;
    return *this;
}

CPath& CPath::append(const CPath& component) {
    // A copy: the component may be this path.
    return append(std::wstring(component.m_path));
}

void CPath::as_item(pathItem item) {
    CPath out;
    if (item == item_path || item == item_url)
        return;
    get_item(item, out);
    *this = out;
}

void CPath::get_item(pathItem item, CPath& out) const {
    if (item == item_url)
        return;
    std::wstring text;
    copy_unicode_item(item, text);
    out.m_path = text;
}

void CPath::copy_unicode_item(pathItem item, std::wstring& out) const {
    std::wstring text;
    Private::_CNativePath(this)._get_item(item, text);
    out = text;
}

void CPath::copy_ansi_item(pathItem item, std::string& out,
                           CStringConverter::encoding encoding) const {
    std::wstring text;
    copy_unicode_item(item, text);
    out.clear();
    try {
        CStringConverter converter(text, encoding, CStringConverter::kWindowsLatin1CodePage);
        out = static_cast<const std::string&>(converter);
    } catch (const CException&) {
        out.clear();
    }
}

bool CPath::exists() const {
    return Private::_CNativePath(this).exists();
}

bool CPath::is_directory() const {
    return Private::_CNativePath(this).is_directory();
}

void CPath::get_filetype(CFileType& type) const {
    std::wstring extension;
    copy_unicode_item(item_dot_extension, extension);
    if (extension.empty())
        return;
    if (CFileType::_is_registered(extension)) {
        type = CFileType(extension.c_str());
        return;
    }
    std::uint32_t code = 0;
    if (Private::_CNativePath(this).finder_type(code) && code != 0)
        type.set_type(code);
}

} // namespace v20

} // namespace Corvaldine::CP
