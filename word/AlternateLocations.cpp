#include "word/AlternateLocations.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "cp/CaseFolding.h"
#include "engine/LogText.h"

namespace ec {

namespace fs = std::filesystem;

namespace {

/// A Word installation has it beside the application.
constexpr std::string_view kOfficeFolder = "Office";

struct VersionLabel {
    int major;
    std::string_view label;
};
/// All others have none.
constexpr std::array kVersionLabels{
    VersionLabel{10, "X"},    VersionLabel{11, "2004"}, VersionLabel{12, "2008"},
    VersionLabel{14, "2011"}, VersionLabel{15, "2016"}, VersionLabel{16, "2016"},
};

std::string labelOf(const std::string& version) {
    const long major = std::strtol(version.c_str(), nullptr, 10);
    const auto* found = std::ranges::find(kVersionLabels, major, &VersionLabel::major);
    return found == kVersionLabels.end() ? std::string() : std::string(found->label);
}

/// The path less its last component.
std::string folderHolding(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    return fs::path(path).parent_path().string();
}

} // namespace

AlternateLocations::AlternateLocations(Needs needs) : m_needs(needs) {
    WizardOutlets& outlets = m_needs.outlets;
    outlets.acTbl.setDataSource(this);
    outlets.acTbl.setSelectionDidChange([this] { tableViewSelectionDidChange(); });
    outlets.acPlus.setAction([this] { doACplus(); });
    outlets.acMinusBtn.setAction([this] { doACminus(); });
    outlets.acChange.setAction([this] { doACchange(); });
    outlets.acResetBtn.setAction([this] { doACReset(); });
}

std::int32_t AlternateLocations::ask(ports::TextKey message, const ButtonText& defText,
                                     const ButtonText& altText) const {
    return m_needs.panels.askUserTitle(localized(kInstallerTitle), localized(message), defText,
                                       altText, std::nullopt);
}

void AlternateLocations::askUserForWord() {
    m_needs.breadcrumbs.m_breadCrumbsUpdated = false;
    const auto app = m_needs.panels.askUserForApp(
        std::nullopt, localized("Please locate your installed copy of Microsoft Word"));
    if (!app)
        return;
    m_needs.breadcrumbs.m_crumb_word = *app;
    m_needs.breadcrumbs.m_crumb_version = m_needs.discovery.getMajorVersion(*app);
    const std::string folder = folderHolding(*app);
    std::error_code error;
    if (!fs::exists(fs::path(folder) / kOfficeFolder, error)) {
        (void)ask(
            "The item you picked does not seem to be in a Microsoft Word installation directory.  "
            "Please try again.",
            localized("OK"), std::nullopt);
        return;
    }
    const auto folders = m_needs.startupFolders.getWordStartupFolders(folder);
    if (!folders.empty())
        m_needs.breadcrumbs.m_crumb_startup = folders.front();
    alertDidEndWord(ask("If you have configured Word to use a different Startup Folder, Or you are "
                        "using a non-English Language version of Word, Click 'Set' to set the "
                        "Startup Folder location.",
                        localized("No"), localized("Set")));
}

std::optional<std::string> AlternateLocations::askUserForStartupFolder(const std::string& folder) {
    auto chosen = m_needs.panels.askUserForDir(
        folder, localized("Select your Microsoft Word startup folder"));
    return chosen && !chosen->empty() ? chosen : std::nullopt;
}

void AlternateLocations::alertDidEndWord(std::int32_t returnCode) {
    const Breadcrumbs& picked = m_needs.breadcrumbs;
    std::optional<std::string> folder;
    if (returnCode == kAlternateAnswer) {
        folder = askUserForStartupFolder(picked.m_crumb_word);
    } else if (returnCode == kDefaultAnswer) {
        const auto folders =
            m_needs.startupFolders.getWordStartupFolders(folderHolding(picked.m_crumb_word));
        if (!folders.empty())
            folder = folders.front();
    }
    if (folder)
        remember(pairRecord(picked.m_crumb_word, *folder, picked.m_crumb_version));
}

void AlternateLocations::remember(const std::string& record) {
    m_needs.breadcrumbs.addWordCrumb(record);
    m_needs.discovery.addToWordPaths({record}); // or it would not show while others are known
    m_needs.startupFolders.constructWordAndStartupPaths();
    m_needs.outlets.acTbl.reloadData();
}

void AlternateLocations::forget(std::int32_t index) {
    m_needs.breadcrumbs.deleteWordCrumb(index);
    m_needs.startupFolders.constructWordAndStartupPaths();
    m_needs.outlets.acTbl.reloadData();
    setForgettable(false);
}

void AlternateLocations::setForgettable(bool enabled) {
    m_needs.outlets.acMinusBtn.setEnabled(enabled);
    m_needs.outlets.acResetBtn.setEnabled(enabled);
}

std::optional<std::string> AlternateLocations::selectedRecord() const {
    const auto& records = m_needs.startupFolders.wordAndStartupPaths();
    const auto row = static_cast<std::size_t>(m_needs.outlets.acTbl.selectedRow());
    return row < records.size() ? std::optional(records[row]) : std::nullopt; // -1 is beyond all
}

std::optional<std::int32_t> AlternateLocations::crumbOf(const std::string& record) const {
    const auto crumbs = m_needs.breadcrumbs.wordCrumbs().value_or(std::vector<std::string>());
    const auto found = std::ranges::find_if(crumbs, [&](const std::string& crumb) {
        return Corvaldine::CP::equal_ignoring_case(crumb, record);
    });
    return found == crumbs.end() ? std::nullopt
                                 : std::optional(static_cast<std::int32_t>(found - crumbs.begin()));
}

void AlternateLocations::doACplus() {
    askUserForWord();
    m_needs.outlets.acTbl.reloadData();
}

void AlternateLocations::doACminus() {
    const int row = m_needs.outlets.acTbl.selectedRow();
    if (row < 0)
        return;
    minusAlertDidEnd(ask("Uninstall Penmark components from the selected folder, immediately?",
                         localized("Cancel"), localized("Uninstall")),
                     row);
}

void AlternateLocations::minusAlertDidEnd(std::int32_t returnCode, std::int32_t row) {
    if (returnCode != kAlternateAnswer) {
        m_needs.outlets.acTbl.reloadData();
        return;
    }
    const auto crumbs = m_needs.breadcrumbs.wordCrumbs().value_or(std::vector<std::string>());
    if (const auto index = static_cast<std::size_t>(row); index < crumbs.size())
        for (const std::string& file :
             m_needs.startupFolders.getOldPMRKFiles(PairRecord::split(crumbs[index]).startup))
            (void)m_needs.files.removeFile(file);
    forget(row);
}

void AlternateLocations::doACchange() {
    const auto record = selectedRecord();
    if (!record)
        return;
    PairRecord pair = PairRecord::split(*record);
    const auto folder = askUserForStartupFolder(folderHolding(pair.word));
    if (!folder)
        return;
    pair.startup = *folder;
    remember(pair.text());
    setForgettable(true);
}

void AlternateLocations::doACReset() {
    const auto record = selectedRecord();
    const auto crumb = record ? crumbOf(*record) : std::nullopt;
    if (crumb)
        forget(*crumb);
}

int AlternateLocations::numberOfRowsInTableView() {
    return static_cast<int>(m_needs.startupFolders.wordAndStartupPaths().size());
}

std::string AlternateLocations::tableViewObjectValue(std::string_view column, int row) {
    if (row < 0 || row >= numberOfRowsInTableView())
        return {};
    const PairRecord pair = PairRecord::split(
        m_needs.startupFolders.wordAndStartupPaths()[static_cast<std::size_t>(row)]);
    if (column == "wordPath")
        return pair.word;
    if (column == "startupPath")
        return pair.startup;
    return column == "wordversion" ? labelOf(pair.version) : std::string();
}

void AlternateLocations::updateAltPMRKControls() {
    const auto record = selectedRecord();
    setForgettable(record && crumbOf(*record));
    m_needs.outlets.acChange.setEnabled(record.has_value());
}

int AlternateLocations::doFoundMSWord() {
    constexpr ports::TextKey kNone =
        "The %@ could not find Microsoft Word 2016 nor 2019 installed on this computer.";
    constexpr ports::TextKey kOne = "The %@ will install the Penmark add-in for the instance of "
                                    "Microsoft Word 2016 or 2019 installed on this computer.";
    constexpr ports::TextKey kSeveral =
        "The %@ will install the Penmark add-in for the %d instances of Microsoft Word 2016 or "
        "2019 installed on this computer.";
    constexpr std::string_view kNumber = "%d";

    const int found = numberOfRowsInTableView();
    std::string text = localized(found < 1 ? kNone : found == 1 ? kOne : kSeveral);
    if (const auto at = text.find(kNumber); at != std::string::npos)
        text.replace(at, kNumber.size(), std::to_string(found));
    m_needs.outlets.numOfMSWordsText.setText(formatted(text, {localized(kInstallerTitle)}));
    m_needs.outlets.uninstallBtn.setHidden(true);
    return 0;
}

int AlternateLocations::doAltPMRK() {
    m_needs.outlets.uninstallBtn.setHidden(true);
    m_needs.outlets.acTbl.reloadData();
    return 0;
}

} // namespace ec
