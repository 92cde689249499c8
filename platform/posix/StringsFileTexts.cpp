#include "platform/posix/StringsFileTexts.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "platform/posix/Plist.h"

namespace posix {

namespace {

/// "de_AT" of "de_AT.UTF-8@euro"; empty when it is no name of a language. Names come from the
/// environment and must not lead to another folder.
std::string languageOf(const std::string& locale) {
    std::string name = locale.substr(0, locale.find_first_of(".@"));
    const auto fits = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '_' || c == '-';
    };
    return std::ranges::all_of(name, fits) ? name : std::string();
}

} // namespace

StringsFileTexts::StringsFileTexts(const Needs& needs) : m_resourceFolder(needs.resourceFolder) {
    for (const std::string& locale : needs.languages) {
        const std::string language = languageOf(locale);
        const std::string base = language.substr(0, language.find_first_of("_-"));
        if (base.empty())
            continue;
        for (const std::string& name : {language, base}) {
            const auto table =
                Plist::readFile(needs.resourceFolder + "/" + name + ".lproj/Localizable.strings");
            if (table) {
                m_table = table->strings();
                m_language = name;
                return;
            }
        }
        if (base == "en")
            return;
    }
}

std::string StringsFileTexts::translated(std::string_view key) const {
    const auto entry = m_table.find(key);
    return entry == m_table.end() ? std::string(key) : entry->second;
}

std::optional<std::string> StringsFileTexts::file(std::string_view name) const {
    for (const std::string& language : {m_language, std::string("en")}) {
        std::string path = m_resourceFolder + "/" + language + ".lproj/" + std::string(name);
        std::error_code ignored;
        if (std::filesystem::is_regular_file(path, ignored))
            return path;
    }
    return std::nullopt;
}

} // namespace posix
