#include "patcher/Patcher.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>
#include <sstream>

#include "cp/CaseFolding.h"
#include "engine/FolderListing.h"
#include "engine/LogText.h"
#include "engine/Product.h"
#include "patcher/PatchTool.h"

namespace ec {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kProbeDocument = "/tmp/do_not_use_testfile.enl";
constexpr std::string_view kApplicationName = "Scrivel 21.app";

/// An empty document, there only so that the host can be asked what opens its kind. Where it can't
/// be made the host is asked all the same.
class ProbeDocument {
  public:
    explicit ProbeDocument(std::string path) : m_path(std::move(path)) {
        if (leadsSomewhere(m_path))
            return;
        // all users may write there: "x" makes no file where somebody's link leads
        if (std::FILE* file = std::fopen(m_path.c_str(), "wx"))
            std::fclose(file);
    }
    ~ProbeDocument() {
        std::error_code ignored;
        if (leadsSomewhere(m_path))
            fs::remove(m_path, ignored);
    }
    ProbeDocument(const ProbeDocument&) = delete;
    ProbeDocument& operator=(const ProbeDocument&) = delete;

    const std::string& path() const { return m_path; }

  private:
    std::string m_path;
};

/// The second of the line's two fields; none when it has fewer or more.
std::optional<std::string> secondOfTwoFields(const std::string& line) {
    if (std::ranges::count(line, ',') != 1)
        return std::nullopt;
    return line.substr(line.find(',') + 1);
}

/// The low byte of a status, as a truth value.
bool saysFailure(ExitStatus status) {
    return static_cast<std::uint8_t>(status.code()) != 0;
}

} // namespace

Patcher::Patcher(Needs needs)
    : m_needs(needs),
      m_audit({.session = needs.session, .runner = needs.runner, .bundles = needs.bundles}) {}

void Patcher::beginWork(controls::Progress& indicator) {
    indicator.startAnimation();
    m_needs.outlets.window.display();
    m_needs.steps.doNextState();
}

void Patcher::disableButtonsInPatch() {
    m_needs.outlets.backBtn.setEnabled(false);
    m_needs.outlets.nextBtn.setEnabled(false);
    m_needs.outlets.window.display();
}

void Patcher::findTheScrivels() {
    disableButtonsInPatch();
    m_needs.outlets.custProgress.startAnimation();
    m_needs.outlets.window.display();
    if (findAllScrivels() == 0)
        unSetPatchActions("Nothing");
    else
        setPatchActions();
}

std::vector<std::string> Patcher::applicationsFor(const std::string& document) const {
    const ports::SystemPlaces& places = m_needs.session.places;
    auto known = m_needs.applications.pathsForDocument(document);
    if (!known)
        return {};
    const std::string usual =
        places.system(product::kDestinationFolder) + "/" + std::string(kApplicationName);
    if (isFolder(usual) && std::ranges::find(*known, usual) == known->end())
        known->push_back(usual);
    return *std::move(known);
}

std::int32_t Patcher::findAllScrivels() {
    const ProbeDocument document(m_needs.session.places.system(kProbeDocument));
    for (const std::string& application : applicationsFor(document.path())) {
        const fs::path path(application);
        if (!Corvaldine::CP::equal_ignoring_case(path.filename().native(), kApplicationName))
            continue;
        const std::string folder = path.parent_path().native();
        if (const ExitStatus status = tested(folder); saysFailure(status)) {
            m_needs.log.logMessage("Found unpatchable instance: " + folder + ".");
            m_audit.willNotBeOffered(application, status);
        } else {
            m_scrivels.push_back(folder);
            m_needs.log.logMessage("Found patchable candidate: " + folder + ".");
            m_audit.willBeOffered(application);
        }
    }
    m_svCounter = static_cast<std::int32_t>(m_scrivels.size());
    m_svIndex = 0;
    return m_svCounter;
}

void Patcher::forgetScrivels() {
    m_scrivels.clear();
    m_svCounter = 0;
    m_svIndex = 0;
    m_needs.outlets.backBtn.setAction([this] { (void)m_needs.actions.runSelector("prev"); });
}

ExitStatus Patcher::tested(const std::string& folder) {
    m_needs.systemLog.write(folder);
    return m_needs.runner.launchApp(
        patchtool::path(m_needs.session),
        patchtool::arguments(m_needs.session, folder, patchtool::kDryRun));
}

bool Patcher::patchScrivel(const std::string& folder, bool justTesting) {
    if (justTesting)
        return saysFailure(tested(folder));
    m_needs.systemLog.write(folder);
    const ExitStatus status = m_needs.runner.launchRootApp(
        patchtool::path(m_needs.session), patchtool::arguments(m_needs.session, folder));
    if (status.succeeded() && !m_needs.runner.rightsWereRefused()) {
        (void)m_needs.addIn.installWordMode(OpMode::remove, 0, folder, std::nullopt);
        (void)m_needs.addIn.installWordMode(OpMode::copy, 0, folder, std::nullopt);
        bringContentUpToDate(folder);
    }
    return saysFailure(status);
}

void Patcher::bringContentUpToDate(const std::string& folder) {
    const std::string content = joinedPath(folder, product::kContentBundle);
    std::istringstream listing(charactersAsBytes(m_needs.runner.execCmdLineApp(
        patchtool::kName, patchtool::arguments(m_needs.session, folder, patchtool::kCategories))));
    std::set<std::string> items; // by their paths, whatever they are called beside those
    for (std::string line; std::getline(listing, line);)
        if (auto path = secondOfTwoFields(line); path && path->find(content) != std::string::npos)
            items.insert(*std::move(path));
    if (!items.empty())
        m_needs.folders.installPatchCategoriesItems({items.begin(), items.end()}, folder);
}

std::optional<std::string> Patcher::currentScrivel() const {
    if (m_svIndex >= m_svCounter)
        return std::nullopt;
    return m_scrivels[static_cast<std::size_t>(m_svIndex)];
}

std::optional<std::string> Patcher::setupCurrentScrivel() {
    auto folder = currentScrivel();
    if (folder) {
        updatePatchTextField(*folder);
        m_needs.outlets.processingText.setText(
            formatted(m_needs.texts.lookUp("Updating: %@"), {*folder}));
    }
    return folder;
}

void Patcher::updatePatchTextField(std::string_view folder) {
    m_needs.outlets.patchFound.setText(formatted(
        m_needs.texts.lookUp("\nA copy of Scrivel was found at the following location:\n\n%@\n\n"
                             "Would you like to update this copy?\n"),
        {folder}));
}

void Patcher::patchError(std::string_view folder) {
    m_needs.outlets.patchFound.setText(
        formatted(m_needs.texts.lookUp("\nAn error occurred while attempting to update a copy of "
                                       "Scrivel at this location:\n\n%@\n\n"
                                       "Would you like to try again?\n"),
                  {folder}));
}

void Patcher::setPatchActions() {
    m_needs.steps.skipToState("Found");
    (void)setupCurrentScrivel();
    m_needs.outlets.backBtn.setAction([this] { doPatchNo(); });
    m_needs.outlets.backBtn.setTitle(m_needs.texts.lookUp("No"));
    m_needs.outlets.nextBtn.setTitle(m_needs.texts.lookUp("Yes"));
}

void Patcher::unSetPatchActions(std::string_view state) {
    m_needs.steps.skipToState(state);
    m_needs.outlets.backBtn.setAction([this] { (void)m_needs.actions.runSelector("prev"); });
    m_needs.outlets.nextBtn.setAction([this] { (void)m_needs.actions.runSelector("next"); });
}

void Patcher::nextScrivel() {
    m_svIndex = std::min(m_svIndex + 1, m_svCounter);
    if (m_svIndex >= m_svCounter)
        unSetPatchActions("Done");
    else
        setPatchActions();
}

void Patcher::doPatchYes() {
    disableButtonsInPatch();
    if (const auto folder = setupCurrentScrivel()) {
        const bool failed = patchScrivel(*folder, false);
        m_audit.wasAccepted(*folder);
        if (!failed) { // wanted so, not the other way round; the text goes with the next row
            patchError("");
            m_needs.steps.skipToState("Found");
        }
    }
    nextScrivel();
}

void Patcher::doPatchNo() {
    if (const auto folder = currentScrivel())
        m_audit.wasDeclined(*folder);
    nextScrivel();
    m_needs.steps.updateOutlineText(); // no step of the wizard's has led there
    m_needs.steps.updateTitleText();
}

} // namespace ec
