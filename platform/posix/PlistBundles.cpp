#include "platform/posix/PlistBundles.h"

#include <filesystem>
#include <system_error>

#include "platform/posix/Plist.h"

namespace posix {

namespace {

std::optional<Plist> informationOf(const std::string& bundle) {
    return Plist::readFile(bundle + "/Contents/Info.plist");
}

} // namespace

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
    m_bundle = (inBundle ? contents.parent_path() : folder).string();
    m_resourceFolder = (inBundle ? contents / "Resources" : folder).string();
}

std::optional<std::string> PlistBundles::infoString(const std::string& path, std::string_view key) {
    const auto information = informationOf(path);
    return information ? information->string(key) : std::nullopt;
}

std::vector<std::string> PlistBundles::infoStrings(const std::string& path,
                                                   std::string_view dictionaryKey,
                                                   std::string_view arrayKey) {
    const auto information = informationOf(path);
    return information
               ? information->array(dictionaryKey, arrayKey).value_or(std::vector<std::string>())
               : std::vector<std::string>();
}

std::vector<std::string> PlistBundles::infoStringsOfEach(const std::string& path,
                                                         std::string_view listKey,
                                                         std::string_view arrayKey) {
    const auto information = informationOf(path);
    return information ? information->stringsOfEach(listKey, arrayKey) : std::vector<std::string>();
}

} // namespace posix
