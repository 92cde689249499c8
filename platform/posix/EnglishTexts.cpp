#include "platform/posix/EnglishTexts.h"

#include <filesystem>
#include <system_error>

namespace posix {

std::optional<std::string> localizedFile(const std::string& resourceFolder,
                                         std::string_view language, std::string_view name) {
    for (const std::string_view folder : {language, std::string_view("en")}) {
        std::string path = resourceFolder;
        path.append("/").append(folder).append(".lproj/").append(name);
        std::error_code ignored;
        if (std::filesystem::is_regular_file(path, ignored))
            return path;
    }
    return std::nullopt;
}

} // namespace posix
