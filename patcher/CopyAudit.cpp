#include "patcher/CopyAudit.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "patcher/PatchTool.h"

namespace ec {

using State = CopyOutcome::State;

void CopyAudit::willBeOffered(const std::string& application) {
    add(application, State::offered);
}

void CopyAudit::willNotBeOffered(const std::string& application, ExitStatus tested) {
    add(application, tested.code() == patchtool::kIsUpToDate ? State::current : State::unfit);
}

void CopyAudit::wasDeclined(const std::string& folder) {
    if (CopyOutcome* copy = offeredIn(folder))
        copy->state = State::declined;
}

void CopyAudit::wasAccepted(const std::string& folder) {
    CopyOutcome* copy = offeredIn(folder);
    if (!copy)
        return;
    const auto before = std::exchange(copy->version, versionOf(copy->application));
    if (copy->version != before || isUpToDate(folder))
        copy->state = State::updated;
    else
        copy->state = m_needs.runner.rightsWereRefused() ? State::refused : State::failed;
}

void CopyAudit::add(const std::string& application, State state) {
    m_needs.session.copies.push_back(
        {.folder = std::filesystem::path(application).parent_path().native(),
         .application = application,
         .version = versionOf(application),
         .state = state});
}

CopyOutcome* CopyAudit::offeredIn(const std::string& folder) {
    const auto found = std::ranges::find_if(m_needs.session.copies, [&](const CopyOutcome& copy) {
        return copy.state == State::offered && copy.folder == folder;
    });
    return found == m_needs.session.copies.end() ? nullptr : &*found;
}

std::optional<std::string> CopyAudit::versionOf(const std::string& application) const {
    return m_needs.bundles.infoString(application, "CFBundleShortVersionString");
}

bool CopyAudit::isUpToDate(const std::string& folder) {
    return m_needs.runner
        .askTool(patchtool::path(m_needs.session),
                 patchtool::arguments(m_needs.session, folder, patchtool::kVerify))
        .succeeded();
}

} // namespace ec
