#include "cp/CFileType.h"

#include <array>
#include <map>
#include <optional>
#include <vector>

#include "cp/CException.h"
#include "cp/CStringConverter.h"
#include "cp/private/LetterCase.h"

namespace Corvaldine::CP {

namespace {

constexpr std::uint32_t packed(const char (&name)[5]) {
    std::uint32_t code = 0;
    for (int i = 0; i < 4; ++i)
        code = code << 8 | static_cast<unsigned char>(name[i]);
    return code;
}

struct CommonType {
    std::uint32_t code;
    const wchar_t* extension;
};

constexpr const wchar_t* kUnknownExtension = L"???";

// clang-format off
constexpr std::array<CommonType, 25> saCommonTypes{{
    {packed("BMPf"), L"bmp"},
    {packed("GIFf"), L"gif"},
    {packed("JPEG"), L"jpg"},
    {packed("JPEG"), L"jpeg"},
    {packed("PNGf"), L"png"},
    {packed("TIFF"), L"tif"},
    {packed("TIFF"), L"tiff"},
    {packed("EMFf"), L"mf"}, // not "wmf": wanted as it is
    {packed("EMFf"), L"emf"},
    {packed("ICOf"), L"ico"},
    {packed("PICT"), L"pct"},
    {packed("W8BN"), L"doc"},
    {packed("WDBN"), L"doc"},
    {packed("DOTt"), L"dot"},
    {packed("XLS8"), L"xls"},
    {packed("XLS5"), L"xls"},
    {packed("XLS4"), L"xls"},
    {packed("XLS3"), L"xls"},
    {packed("shlb"), L"dll"},
    {packed("shlb"), L"bundle"},
    {packed("RTF "), L"rtf"},
    {packed("TEXT"), L"txt"},
    {packed("PDF "), L"pdf"},
    {packed("ODT "), L"odt"},
    {CFileType::kUnknownType, kUnknownExtension}, // what look-ups fall back to
}};
// clang-format on

std::wstring _normalize_case(std::wstring extension) {
    for (wchar_t& c : extension)
        c = Private::lower_case(c);
    return extension;
}

std::wstring normalized(const std::wstring& extension) {
    return _normalize_case(extension.starts_with(L'.') ? extension.substr(1) : extension);
}

class Registry {
  public:
    bool add(std::uint32_t type, const std::wstring& extension) {
        const std::wstring stored = normalized(extension);
        sRegisteredTypes[type].push_back(stored);
        sRegisteredExtensions[stored].push_back(type);
        return true;
    }

    std::optional<std::uint32_t> _determine_type(const std::wstring& extension) const {
        const auto at = sRegisteredExtensions.find(normalized(extension));
        if (at == sRegisteredExtensions.end())
            return std::nullopt;
        return at->second.front();
    }

    const std::vector<std::wstring>& _get_extensions(std::uint32_t type) const {
        const auto at = sRegisteredTypes.find(type);
        return at != sRegisteredTypes.end() ? at->second
                                            : sRegisteredTypes.at(CFileType::kUnknownType);
    }

    void _init() {
        if (!sRegisteredTypes.empty())
            return;
        for (const CommonType& row : saCommonTypes)
            add(row.code, row.extension);
    }

  private:
    std::map<std::uint32_t, std::vector<std::wstring>> sRegisteredTypes;
    std::map<std::wstring, std::vector<std::uint32_t>> sRegisteredExtensions;
};

// Filled before the first pairing of a caller can get in, so that the common types come first.
Registry& registry() {
    static Registry theRegistry;
    theRegistry._init();
    return theRegistry;
}

std::optional<std::wstring> wide(const char* latin1) {
    try {
        CStringConverter converter(std::string(latin1), CStringConverter::windows_latin1,
                                   CStringConverter::kWindowsLatin1CodePage);
        return static_cast<const std::wstring&>(converter);
    } catch (const CException&) {
        return std::nullopt;
    }
}

} // namespace

CFileType::CFileType(const wchar_t* extension) {
    if (extension != nullptr)
        m_code = registry()._determine_type(extension).value_or(kUnknownType);
}

CFileType::CFileType(const char* extension) {
    if (extension == nullptr)
        return;
    if (const auto text = wide(extension))
        m_code = registry()._determine_type(*text).value_or(kUnknownType);
}

void CFileType::copy_main_extension(std::wstring& extension) const {
    extension = registry()._get_extensions(m_code).front();
}

void CFileType::copy_main_extension(std::string& extension) const {
    CStringConverter converter(registry()._get_extensions(m_code).front(),
                               CStringConverter::windows_latin1,
                               CStringConverter::kWindowsLatin1CodePage);
    extension = static_cast<const std::string&>(converter);
}

bool CFileType::register_type(std::uint32_t code, const wchar_t* extension) {
    if (extension == nullptr)
        throw CException(CException::bad_params);
    return registry().add(code, extension);
}

bool CFileType::register_type(std::uint32_t code, const char* extension) {
    if (extension == nullptr)
        throw CException(CException::bad_params);
    const auto text = wide(extension);
    return text && registry().add(code, *text);
}

bool CFileType::_is_registered(const std::wstring& extension) {
    return registry()._determine_type(extension).has_value();
}

} // namespace Corvaldine::CP
