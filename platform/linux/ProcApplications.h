// Applications by the bundles on disk and the processes that run them (ports::Applications). An
// application is a bundle "X.app"; it runs while a process does whose executable lies in its
// "Contents/MacOS". Made by the composition root; main thread only.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports/Applications.h"
#include "platform/ports/Bundles.h"

namespace linuxhost {

class ProcApplications final : public ports::Applications {
  public:
    struct Needs {
        ports::Bundles& bundles;
        /// Only bundles below this folder count; empty: everywhere.
        std::string root = {};
        /// HOME of launched applications.
        std::string home;
    };

    explicit ProcApplications(Needs needs);

    /// This process itself does not count. Of processes of other users only those show that were
    /// started by an absolute path.
    bool isRunning(std::string_view bundleIdentifier) override;

    /// Knows the bundles below "/Applications" under the root, sorted, and after them those below
    /// "Applications" in the home folder. Never throws.
    std::vector<std::string> pathsFor(std::string_view bundleIdentifier) override;

    /// Starts the bundle's "CFBundleExecutable", or without one the file named as the bundle is.
    /// An executable that does not lie in the bundle's "Contents/MacOS" is refused. The application
    /// gets neither this program's input nor, unless they are a terminal, its outputs: who waits
    /// for the end of those would wait for the application.
    bool launch(const std::string& path) override;

  private:
    struct Known {
        std::filesystem::file_time_type written;
        std::optional<std::string> identifier;
    };

    bool isBelowRoot(const std::string& bundle) const;
    const std::optional<std::string>& identifierOf(const std::string& bundle);

    Needs m_needs;
    std::vector<std::string> m_applicationFolders;
    std::map<std::string, Known> m_known;
};

} // namespace linuxhost
