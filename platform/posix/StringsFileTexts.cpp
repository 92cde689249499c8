#include "platform/posix/StringsFileTexts.h"

#include <algorithm>
#include <optional>

#include "platform/posix/PlistReader.h"

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

StringsFileTexts::StringsFileTexts(const Needs& needs) {
    for (const std::string& locale : needs.languages) {
        const std::string language = languageOf(locale);
        const std::string base = language.substr(0, language.find_first_of("_-"));
        if (base.empty())
            continue;
        for (const std::string& name : {language, base}) {
            const auto table = PlistReader::readFile(needs.resourceFolder + "/" + name +
                                                     ".lproj/Localizable.strings");
            if (table) {
                m_table = table->strings();
                return;
            }
        }
        if (base == "en")
            return;
    }
}

std::string StringsFileTexts::lookUp(std::string_view key) const {
    const auto entry = m_table.find(key);
    return entry == m_table.end() ? std::string(key) : entry->second;
}

} // namespace posix
