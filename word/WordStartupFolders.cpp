#include "word/WordStartupFolders.h"

#include "cp/CaseFolding.h"
#include "engine/FolderListing.h"
#include "engine/LogText.h"
#include "word/PairRecord.h"

namespace ec {

namespace {

/// Those that load add-ins from the shared folder.
constexpr int kFirstWithSharedFolder = 15;
constexpr int kLastWithSharedFolder = 16;
/// The first that is listed.
constexpr int kFirstListed = 12;

/// What the add-in's files and the folder for its templates are called.
constexpr std::string_view kOwnName = "Scrivel";

} // namespace

void WordStartupFolders::readCustomizerData() {
    constexpr std::string_view kData = "SVCustomizerData";
    const std::string bundle = m_needs.bundles.mainBundle();
    m_wordStartupParts = m_needs.bundles.infoStrings(bundle, kData, "StartupPaths");
    m_wordTemplateDirs = m_needs.bundles.infoStrings(bundle, kData, "Templates");
}

std::vector<std::string> WordStartupFolders::foldersOf(std::string_view path) const {
    std::vector<std::string> folders;
    for (const std::string& record :
         m_needs.breadcrumbs.wordCrumbs().value_or(std::vector<std::string>())) {
        PairRecord pair = PairRecord::split(record);
        if (!pair.startup.empty() && Corvaldine::CP::equal_ignoring_case(pair.word, path))
            folders.push_back(std::move(pair.startup));
    }
    const int major = m_needs.discovery.getMajorVersion(path);
    if (major >= kFirstWithSharedFolder && major <= kLastWithSharedFolder)
        folders.push_back(m_needs.session.places.system(kSharedStartupFolder));
    return folders;
}

std::vector<std::string> WordStartupFolders::getWordStartupFolders(std::string_view path) const {
    const int major = m_needs.discovery.getMajorVersion(path);
    m_needs.log.logMessage(formatted("Word Startup Folder(s) for: \"%@\", Version: %@.",
                                     {path, std::to_string(major)}));
    std::vector<std::string> folders = foldersOf(path);
    for (const std::string& folder : folders)
        m_needs.log.logMessage(formatted("    --> \"%@\"", {folder}));
    return folders;
}

void WordStartupFolders::constructWordAndStartupPaths() {
    m_wordAndStartupPaths.clear();
    for (const std::string& entry : m_needs.discovery.wordPaths()) {
        const std::string word = PairRecord::split(entry).word;
        if (!leadsSomewhere(word))
            continue;
        const int major = m_needs.discovery.getMajorVersion(word);
        const std::vector<std::string> folders = getWordStartupFolders(word);
        if (major >= kFirstListed && !folders.empty())
            m_wordAndStartupPaths.push_back(pairRecord(word, folders.front(), major));
    }
}

std::optional<std::string>
WordStartupFolders::getWordTemplatesFolder(const std::string& folder) const {
    for (const std::string& name : m_wordTemplateDirs) {
        const std::string candidate = inFolder(folder, name);
        if (isFolder(candidate))
            return inFolder(candidate, std::string(kOwnName));
    }
    return std::nullopt;
}

std::vector<std::string> WordStartupFolders::getOldPMRKFiles(const std::string& folder) const {
    std::vector<std::string> files;
    for (const std::string& name : namesIn(folder))
        if (name.starts_with(kOwnName))
            files.push_back(inFolder(folder, name));
    return files;
}

} // namespace ec
