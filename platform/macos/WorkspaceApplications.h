// Applications as the system's registry and its list of what runs know them (ports::Applications).
// Made by the composition root. Main thread; `launch` from the background queue, too. No answer
// throws. Letter case of an identifier is the registry's business, and it may pass over it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/Applications.h"
#include "platform/posix/RootFolder.h"

namespace macoshost {

class WorkspaceApplications final : public ports::Applications {
  public:
    struct Needs {
        /// Only bundles below this folder count; empty: everywhere.
        std::string root = {};
    };

    explicit WorkspaceApplications(const Needs& needs) : m_root(needs.root) {}

    /// This process itself does not count. One whose bundle the system can't name does, unless
    /// there is a root folder.
    bool isRunning(std::string_view bundleIdentifier) override;

    /// In the registry's order. Paths of applications that have vanished may be among them.
    std::vector<std::string> pathsFor(std::string_view bundleIdentifier) override;

    /// None when the registry answers no list, and when it knows applications, but none below the
    /// root folder.
    std::optional<std::vector<std::string>> pathsForDocument(std::string_view document) override;

    /// An application that runs already comes to the front.
    bool launch(const std::string& path) override;

  private:
    /// Of these paths those below the root folder, each once, where it first stands.
    std::vector<std::string> counted(const std::vector<std::string>& paths) const;

    posix::RootFolder m_root;
};

} // namespace macoshost
