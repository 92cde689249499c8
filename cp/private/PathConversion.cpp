#include "cp/private/PathConversion.h"

#include "cp/private/NativeTranslation.h"

namespace Corvaldine::CP::Private {

std::optional<std::string> system_path(const std::wstring& path) {
    std::string text;
    if (!_wstring_to_utf8(path, text) || text.find('\0') != std::string::npos)
        return std::nullopt;
    return text;
}

std::optional<std::string> system_path(const CPath& path) {
    return system_path(static_cast<const std::wstring&>(path));
}

} // namespace Corvaldine::CP::Private
