#include "word/Breadcrumbs.h"

#include "cp/CaseFolding.h"
#include "engine/LogText.h"
#include "word/PairRecord.h"

namespace ec {

using Outcome = ports::ReadDictionary::Outcome;

void Breadcrumbs::readBreadcrumbs() {
    const ports::ReadDictionary file = m_needs.lists.readFile(path());
    if (file.outcome == Outcome::read)
        m_customizerCrumbs->addEntriesFrom(*file.dictionary);
}

void Breadcrumbs::addWordCrumb(std::string_view record) {
    const std::string word = PairRecord::split(record).word;
    std::vector<std::string> records = wordCrumbs().value_or(std::vector<std::string>());
    bool isThere = false;
    for (std::string& other : records) {
        m_needs.log.logMessage(other);
        if (Corvaldine::CP::equal_ignoring_case(PairRecord::split(other).word, word)) {
            other = record;
            isThere = true;
        }
    }
    if (!isThere)
        records.emplace_back(record);
    m_customizerCrumbs->setStrings(kWord, records);
    saveBreadcrumbs();
}

void Breadcrumbs::deleteWordCrumb(std::int32_t index) {
    std::vector<std::string> records = wordCrumbs().value_or(std::vector<std::string>());
    if (index >= 0 && static_cast<std::size_t>(index) < records.size())
        records.erase(records.begin() + index);
    m_customizerCrumbs->setStrings(kWord, records);
    saveBreadcrumbs();
}

void Breadcrumbs::saveBreadcrumbs() {
    m_customizerCrumbs->setString(kScrivel, m_needs.session.m_execPath);
    const std::string file = path();
    if (keepBrokenFile(file))
        (void)m_needs.lists.writeFile(*m_customizerCrumbs, file);
}

bool Breadcrumbs::keepBrokenFile(const std::string& path) {
    if (m_needs.lists.readFile(path).outcome != Outcome::broken)
        return true;
    const auto kept = m_needs.lists.setAside(path);
    if (kept)
        m_needs.log.logMessage(
            formatted("Breadcrumbs: \"%@\" is damaged and is kept as \"%@\"", {path, *kept}));
    return kept.has_value();
}

} // namespace ec
