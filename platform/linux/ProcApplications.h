// Applications by the bundles on disk and the processes that run them (ports::Applications). An
// application is a bundle "X.app"; it runs while a process does whose executable lies in its
// "Contents/MacOS". Made by the composition root; main thread only.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/BundleIdentifiers.h"
#include "platform/linux/InstalledBundles.h"
#include "platform/ports/Applications.h"
#include "platform/ports/Bundles.h"
#include "platform/posix/RootFolder.h"

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
    /// "Applications" in the home folder, as they are at that moment. A bundle that links lead to
    /// is named once, by its own path where that is among them. Never throws.
    std::vector<std::string> pathsFor(std::string_view bundleIdentifier) override;

    /// Of the same bundles those whose "CFBundleDocumentTypes" declare the document's extension.
    /// Nothing is known of a document whose name has none.
    std::optional<std::vector<std::string>> pathsForDocument(std::string_view document) override;

    /// Starts the bundle's "CFBundleExecutable", or without one the file named as the bundle is.
    /// An executable that does not lie in the bundle's "Contents/MacOS" is refused. The application
    /// gets neither this program's input nor, unless they are a terminal, its outputs: who waits
    /// for the end of those would wait for the application.
    bool launch(const std::string& path) override;

  private:
    /// The installed bundles of which `isWanted` is true, each once.
    std::vector<std::string>
    installedWhere(const std::function<bool(const std::string&)>& isWanted);

    Needs m_needs;
    posix::RootFolder m_root;
    BundleIdentifiers m_identifiers;
    InstalledBundles m_installed;
};

} // namespace linuxhost
