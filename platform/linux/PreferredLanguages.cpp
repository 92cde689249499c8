#include "platform/linux/PreferredLanguages.h"

#include <cstdlib>
#include <sstream>
#include <string_view>

namespace linuxhost {

std::vector<std::string>
preferredLanguages(const std::function<std::string(const char*)>& variable) {
    std::string locale;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (locale.empty())
            locale = variable(name);
    const std::string language = locale.substr(0, locale.find_first_of(".@"));
    if (language.empty() || language == "C" || language == "POSIX")
        return {};
    std::vector<std::string> languages;
    std::istringstream list(variable("LANGUAGE"));
    for (std::string name; std::getline(list, name, ':');)
        if (!name.empty())
            languages.push_back(name);
    languages.push_back(locale);
    return languages;
}

std::vector<std::string> preferredLanguages() {
    return preferredLanguages([](const char* name) {
        const char* value =
            std::getenv(name); // NOLINT(concurrency-mt-unsafe): at start, one thread
        return std::string(value ? value : "");
    });
}

} // namespace linuxhost
