#include "word/WordAddIn.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>

#include "cp/CDir.h"
#include "cp/CException.h"
#include "cp/CFileUtils.h"
#include "cp/CPath.h"
#include "cp/CaseFolding.h"
#include "cp/StringHelpers.h"
#include "engine/FolderListing.h"
#include "engine/LogText.h"
#include "engine/Product.h"
#include "platform/ports/PlatformError.h"
#include "wizard/LaunchModes.h"
#include "word/PairRecord.h"

namespace ec {

namespace fs = std::filesystem;

namespace {

struct AddInName {
    int major;
    std::string_view name;
};
/// By the major version of Word that they are for. All others get none.
constexpr std::array kAddIns{
    AddInName{15, "Scrivel PMRK Word 2016.bundle"},
    AddInName{16, "Scrivel PMRK Word 16.bundle"},
};
constexpr std::string_view kSourceFolder = "Penmark";
constexpr std::string_view kStagedPlace = "/Applications/Scrivel Penmark";
/// The archive's own folder of that name, which is not wanted in the staged one.
constexpr std::string_view kSurplus = "Scrivel Penmark";

/// Set or not, the launch mode is one that installs the add-in whatever is there.
constexpr std::uint32_t kLaunchBit = 4;

constexpr int kNoWord = -1;
constexpr int kNothing = 0;
constexpr int kFoundOrDone = 1;

bool isAddIn(std::string_view name) {
    return std::ranges::find(kAddIns, name, &AddInName::name) != kAddIns.end();
}

std::string utf8(const std::wstring& wide) {
    using namespace Corvaldine::CP::SVCommon_NSStringConversionHelpers;
    return to_utf8_std_string(stringWith_std_wstring(wide));
}

std::string lastComponent(const std::string& path) {
    return fs::path(path).filename().string();
}

} // namespace

MethodAnswer WordAddIn::installWordMode(OpMode mode, std::uint32_t, OptionalText source,
                                        OptionalText) {
    m_needs.log.logInstall("Penmark", mode);
    int result = kNothing;
    try {
        if (!m_needs.discovery.checkWordExists())
            result = kNoWord;
        else if (mode == OpMode::check && (m_needs.session.m_mode | kLaunchBit) == launch::kPenmark)
            result = kFoundOrDone;
        else
            actOnEveryFolder(mode, source, result);
    } catch (const ports::PlatformError&) {
        m_needs.log.logException();
    }
    m_needs.log.logResult(result, "");
    return MethodAnswer::of(result);
}

void WordAddIn::actOnEveryFolder(OpMode mode, OptionalText source, int& result) {
    for (const std::string& word : m_needs.discovery.wordPaths()) {
        const auto addIn = mode == OpMode::copy ? addInFor(word, source) : std::nullopt;
        const bool hasSource = addIn && leadsSomewhere(addIn->source);
        for (const std::string& folder : m_needs.startupFolders.getWordStartupFolders(word)) {
            m_needs.log.logMessage("Processing Startup Folder: " + folder);
            if (mode == OpMode::check && std::ranges::any_of(namesIn(folder), isAddIn)) {
                result = kFoundOrDone;
                break; // this Word has it; the next one is looked at all the same
            }
            if (mode == OpMode::remove && removeFrom(folder))
                result = kFoundOrDone;
            if (hasSource) {
                copyInto(folder, *addIn);
                result = kFoundOrDone;
            }
        }
    }
}

/// None for a Word that gets none. Whether the source exists is the caller's question.
std::optional<WordAddIn::AddIn> WordAddIn::addInFor(const std::string& word,
                                                    OptionalText source) const {
    const std::string path = PairRecord::split(word).word;
    if (!leadsSomewhere(path))
        return std::nullopt;
    const auto* addIn =
        std::ranges::find(kAddIns, m_needs.discovery.getMajorVersion(path), &AddInName::major);
    if (addIn == kAddIns.end())
        return std::nullopt;
    const std::string holder = source && isFolder(std::string(*source))
                                   ? std::string(*source)
                                   : fs::path(m_needs.bundles.mainBundle()).parent_path().string();
    const std::string name(addIn->name);
    return AddIn{name, inFolder(inFolder(holder, std::string(kSourceFolder)), name)};
}

ComponentParts WordAddIn::addInParts() const {
    ComponentParts parts;
    const auto words = m_needs.discovery.wordPathsUnlogged();
    if (words.empty())
        return {.obstacle = OutcomeReason{"No copy of Microsoft Word was found."},
                .isNotForHere = true};
    for (const std::string& word : words) {
        const auto addIn = addInFor(word, std::nullopt);
        for (const std::string& folder : m_needs.startupFolders.foldersOf(word)) {
            for (const AddInName& any : kAddIns)
                parts.traces.push_back(inFolder(folder, std::string(any.name)));
            if (addIn)
                parts.copies.push_back({addIn->source, inFolder(folder, addIn->name)});
        }
    }
    if (parts.copies.empty())
        parts.obstacle = OutcomeReason{"No copy of Microsoft Word 2016 or 2019 was found."};
    return parts;
}

/// True when one was there by its name: a link that leads nowhere counts, though it stays.
bool WordAddIn::removeFrom(const std::string& folder) {
    bool found = false;
    for (const std::string& name : namesIn(folder)) {
        if (!isAddIn(name))
            continue;
        found = true;
        if (const std::string path = inFolder(folder, name); leadsSomewhere(path))
            (void)m_needs.files.removeFile(path);
    }
    return found;
}

void WordAddIn::copyInto(const std::string& folder, const AddIn& addIn) {
    if (!leadsSomewhere(folder))
        (void)m_needs.files.makeDir(folder);
    (void)m_needs.files.copyPath(addIn.source, inFolder(folder, addIn.name));
}

void WordAddIn::preparePmrkFolder() {
    using namespace Corvaldine::CP;
    CPath chosen;
    try {
        if (CFileUtils::temp_file(chosen, "SV", 0))
            CFileUtils::remove(chosen);
        (void)CDir::create(chosen, false);
    } catch (const CException&) {
        m_needs.log.logException();
        return;
    }
    const std::string temporary = utf8(chosen);
    m_tmpPmrkFolder = inFolder(temporary, std::string(product::kArchiveTopFolder));

    const std::string archive =
        m_needs.session.m_appResourceDir + std::string(product::kArchiveName);
    if (leadsSomewhere(archive)) {
        if (leadsSomewhere(*m_tmpPmrkFolder))
            (void)m_needs.files.removeFile(*m_tmpPmrkFolder);
        (void)m_needs.runner.execCmdLineApp(
            "/usr/bin/ditto", Params{{std::string("-xk"), "--noqtn", archive, temporary}});
    }

    const std::string installer = m_needs.bundles.mainBundle();
    const std::string place = m_needs.session.places.system(kStagedPlace);
    const std::string name = lastComponent(installer);
    if (equal_ignoring_case(installer, inFolder(place, name)))
        return;
    (void)m_needs.files.copyPath(installer, inFolder(*m_tmpPmrkFolder, name));
    (void)m_needs.files.removeFile(place);
    (void)m_needs.files.copyPath(*m_tmpPmrkFolder, place);
    const std::string icon =
        inFolder(m_needs.session.m_appResourceDir, std::string(product::kFolderIconName));
    if (leadsSomewhere(icon))
        (void)m_needs.finderFiles.setFolderIcon(place, icon);
    if (const std::string surplus = inFolder(place, std::string(kSurplus)); leadsSomewhere(surplus))
        (void)m_needs.files.removeFile(surplus);
}

void WordAddIn::cleanupPmrkFolder() {
    if (!m_tmpPmrkFolder)
        return;
    if (leadsSomewhere(*m_tmpPmrkFolder)) {
        (void)m_needs.files.removeFile(*m_tmpPmrkFolder);
        // deliberately the bare name, which leads to the current folder
        (void)m_needs.files.removeFile(lastComponent(*m_tmpPmrkFolder));
    }
    m_tmpPmrkFolder.reset();
}

} // namespace ec
