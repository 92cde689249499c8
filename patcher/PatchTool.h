// How the tool that applies the update is called. It and the update lie in the wizard's resource
// folder. Used by Patcher and CopyAudit; starts nothing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "wizard/WizardSession.h"

namespace ec::patchtool {

/// As the tool is called where it is looked for in the resource folder.
inline constexpr std::string_view kName = "applyPatch";

/// Its status of a dry run over a copy that is up to date already. Any other but 0 says that the
/// update can't be applied.
inline constexpr int kIsUpToDate = 6;

/// What it is asked for besides applying the update.
inline constexpr std::string_view kDryRun = "-n";       ///< status 0: the update can be applied
inline constexpr std::string_view kCategories = "-C";   ///< lists the content that goes with it
inline constexpr std::string_view kVerify = "--verify"; ///< status 0: the copy is up to date

/// Its absolute path.
inline std::string path(const WizardSession& session) {
    return session.m_custResourceDir + "/" + std::string(kName);
}

/// Its arguments for the copy in `folder`, and `request` after them unless that is empty.
inline std::vector<std::string> arguments(const WizardSession& session, const std::string& folder,
                                          std::string_view request = {}) {
    std::vector<std::string> all{"-d", folder, "-i",
                                 session.m_custResourceDir + "/Patchfile.patch"};
    if (!request.empty())
        all.emplace_back(request);
    return all;
}

} // namespace ec::patchtool
