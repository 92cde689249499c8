#include "platform/posix/PlistBundles.h"

#include <filesystem>
#include <system_error>

#include "platform/posix/PlistReader.h"

namespace posix {

PlistBundles::PlistBundles(const std::string& executable) {
    namespace fs = std::filesystem;
    std::error_code error;
    fs::path path = fs::canonical(executable, error);
    if (error)
        path = fs::absolute(executable, error).lexically_normal();
    const fs::path folder = path.parent_path();
    const fs::path contents = folder.parent_path();
    const bool inBundle = folder.filename() == "MacOS" && contents.filename() == "Contents";
    m_executable = path.string();
    m_resourceFolder = (inBundle ? contents / "Resources" : folder).string();
}

std::optional<std::string> PlistBundles::infoString(const std::string& path, std::string_view key) {
    const auto information = PlistReader::readFile(path + "/Contents/Info.plist");
    return information ? information->string(key) : std::nullopt;
}

} // namespace posix
