#include "ui/TranslatedTexts.h"

#include <algorithm>

#include <QFile>
#include <QFileInfo>

#include "platform/posix/EnglishTexts.h"
#include "ui/TranslationFile.h"

namespace ui {

namespace {

/// The context of every text in our translations.
constexpr const char* kContext = "Scrivel";

/// "de_AT" of "de_AT.UTF-8@euro" and of "de-AT"; empty when it is no name of a language. Names come
/// from the environment and must not lead to another folder.
std::string languageOf(const std::string& locale) {
    std::string name = locale.substr(0, locale.find_first_of(".@"));
    std::ranges::replace(name, '-', '_');
    const auto fits = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '_';
    };
    return std::ranges::all_of(name, fits) ? name : std::string();
}

/// Has the name this part after its language? "zh_Hant_HK" has "Hant" and "HK".
bool has(const std::string& language, std::string_view part) {
    return ('_' + language + '_').find('_' + std::string(part) + '_') != std::string::npos;
}

/// The names that a translation for this language may bear, the nearest first. Chinese is written
/// in two ways; where the name does not say which, the country does.
std::vector<std::string> candidatesFor(const std::string& language) {
    const std::string base = language.substr(0, language.find('_'));
    if (base.empty())
        return {};
    if (base != "zh")
        return {language, base};
    const bool traditional = has(language, "Hant") ||
                             (!has(language, "Hans") &&
                              (has(language, "TW") || has(language, "HK") || has(language, "MO")));
    return {traditional ? "zh_TW" : "zh_CN"};
}

} // namespace

TranslatedTexts::TranslatedTexts(const Needs& needs) : m_resourceFolder(needs.resourceFolder) {
    for (const std::string& locale : needs.languages)
        for (const std::string& language : candidatesFor(languageOf(locale))) {
            const QString path = QString::fromStdString(
                needs.resourceFolder + "/translations/scrivel_" + language + ".qm");
            if (load(path)) {
                m_language = language;
                return;
            }
            if (language == "en")
                return;
        }
}

bool TranslatedTexts::load(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    m_file = file.readAll();
    return isTranslationFile({m_file.constData(), static_cast<std::size_t>(m_file.size())}) &&
           m_translator.load(reinterpret_cast<const uchar*>(m_file.constData()),
                             static_cast<int>(m_file.size()));
}

std::string TranslatedTexts::translated(std::string_view english) const {
    const std::string key(english);
    const QString text = m_translator.translate(kContext, key.c_str());
    return text.isEmpty() ? key : text.toStdString();
}

std::optional<std::string> TranslatedTexts::file(std::string_view name) const {
    return posix::localizedFile(m_resourceFolder, m_language, name);
}

} // namespace ui
