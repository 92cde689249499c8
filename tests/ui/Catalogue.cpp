#include "tests/ui/Catalogue.h"

#include <stdexcept>
#include <utility>

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace catalogue {

namespace {

qsizetype placesIn(const std::string& text) {
    static const QRegularExpression place("%([0-9]+\\$)?@");
    return QString::fromStdString(text).count(place);
}

/// The line feeds before and after the text.
std::pair<std::size_t, std::size_t> outerLineFeeds(const std::string& text) {
    const std::size_t first = text.find_first_not_of('\n');
    if (first == std::string::npos)
        return {text.size(), 0};
    return {first, text.size() - 1 - text.find_last_not_of('\n')};
}

} // namespace

Translations read(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("can't read " + path);
    Translations all;
    std::string key;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"source") {
            key = xml.readElementText().toStdString();
        } else if (xml.name() == u"translation") {
            const bool finished = !xml.attributes().hasAttribute("type");
            const std::string text = xml.readElementText().toStdString();
            if (!all.emplace(key, Translation{text, finished}).second)
                throw std::runtime_error(path + " has twice: " + key);
        }
    }
    if (xml.hasError())
        throw std::runtime_error(path + ": " + xml.errorString().toStdString());
    return all;
}

std::vector<std::string> faultsOf(const Translations& language, const Translations& english) {
    std::vector<std::string> faults;
    for (const auto& [key, ignored] : english)
        if (!language.contains(key))
            faults.push_back("lacks: " + key);
    for (const auto& [key, translation] : language) {
        if (!english.contains(key))
            faults.push_back("not in the catalogue: " + key);
        if (translation.text.empty())
            faults.push_back("empty: " + key);
        else if (placesIn(translation.text) != placesIn(key))
            faults.push_back("other places: " + key);
        else if (outerLineFeeds(translation.text) != outerLineFeeds(key))
            faults.push_back("other line feeds: " + key);
        if (!translation.finished)
            faults.push_back("unfinished: " + key);
    }
    return faults;
}

} // namespace catalogue
