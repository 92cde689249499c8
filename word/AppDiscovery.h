// What is installed, in which version, and what is running: the wizard's questions about
// applications. The installer window asks here whether the product or Word is open; the facets that
// handle Word's add-in ask where Word is. Looks only; changes nothing.
//
// A version that can't be read is 255. Paths are those of this run, under its root. Main thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/LogText.h"
#include "platform/ports/Applications.h"
#include "platform/ports/Bundles.h"
#include "platform/ports/FinderFiles.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardSession.h"
#include "word/Breadcrumbs.h"
#include "word/WordPathList.h"

namespace ec {

/// Word's bundle identifier.
inline constexpr std::string_view kWordIdentifier = "com.microsoft.Word";

class AppDiscovery {
  public:
    struct Needs {
        InstallLog& log;
        const WizardSession& session;
        const Breadcrumbs& breadcrumbs;
        ports::Applications& applications;
        ports::Bundles& bundles;
        ports::FinderFiles& finderFiles;
    };
    explicit AppDiscovery(Needs needs) : m_needs(needs) {}
    AppDiscovery(const AppDiscovery&) = delete;
    AppDiscovery& operator=(const AppDiscovery&) = delete;

    using Paths = std::vector<std::string>;
    static constexpr int kUnknownVersion = 255;

    /// `getBundleStringForPath:Key:` answers the text under `key` in the bundle's Info.plist; none
    /// when there is no bundle, no dictionary or no such text.
    std::optional<std::string> getBundleStringForPath(const std::string& path,
                                                      std::string_view key) const {
        return m_needs.bundles.infoString(path, key);
    }

    /// `getMajorVersion:` answers the application's major version, 0 to 255. A file has it in the
    /// last byte of the number in its 'vers' resource, two decimal digits; a bundle in the number
    /// that its "CFBundleShortVersionString" begins with, of which the low eight bits count. Where
    /// `path` leads to nothing, "PATH.app" is asked instead.
    int getMajorVersion(OptionalText path) const;

    /// `getFileVersion:major:minor:patch:build:` sets those of the four that the application tells,
    /// from the same sources, and leaves the others: a file has no patch, a bundle's version the
    /// parts between its points that are not empty. 0 always.
    int getFileVersion(OptionalText path, std::uint32_t& major, std::uint32_t& minor,
                       std::uint32_t& patch, std::uint32_t& build) const;

    /// `findApplicationsWithBundleIdentifier:fromVer:toVer:` answers the applications that the host
    /// knows for the identifier, in its order, and that exist with a major version in that range,
    /// both ends included; none for no application. Logs the identifier; a failure of the host is
    /// logged and counts as none.
    std::optional<Paths> findApplicationsWithBundleIdentifier(std::string_view identifier,
                                                              int fromVer, int toVer) const;

    /// `findApplication:fromVer:toVer:` walks "/Applications" for items of exactly this name:
    /// folders, whatever their version, and others with a major version in that range, in the order
    /// of a FolderWalk. Never looks into "X.app" and "X.bundle" and follows no links. Logs the
    /// name; a failure of the host is logged and ends the walk with what was found before.
    Paths findApplication(std::string_view name, int fromVer, int toVer) const;

    /// `addToWordPaths:` adds the Word path of each entry, a pair record or a plain path, to those
    /// of `wordPaths` unless it is there, letter case not counting.
    void addToWordPaths(const Paths& recordsOrPaths) { m_wordPaths.add(recordsOrPaths); }

    /// `wordPaths` answers the paths of Word's copies: from the breadcrumbs, then those that the
    /// host knows (12 to 99), then old ones by their name (10 and 11). Searches only while there is
    /// none, and logs what a search found.
    const Paths& wordPaths();

    /// What `wordPaths` would answer, without a line in the log: for a look at what is installed.
    /// Where nothing was found before it searches, and does not keep what it finds.
    Paths wordPathsUnlogged() const;

    /// `checkWordExists`: is there any?
    bool checkWordExists() { return !wordPaths().empty(); }

    /// `isAppWithBundleIDRunning:` tells whether at least one application with the identifier is
    /// running; never for none.
    bool isAppWithBundleIDRunning(std::optional<std::string_view> identifier) const {
        return identifier && m_needs.applications.isRunning(*identifier);
    }

    /// `isWordRunning` asks for Word.
    bool isWordRunning() const { return isAppWithBundleIDRunning(kWordIdentifier); }

    /// `getUserCompany` is always empty: no company is asked for.
    std::string getUserCompany() const { return {}; }

  private:
    /// The searches themselves; `found` has what was found before a failure of the host raises.
    void addApplicationsFor(std::string_view identifier, int fromVer, int toVer,
                            Paths& found) const;
    void addApplicationsNamed(std::string_view name, int fromVer, int toVer, Paths& found) const;

    Needs m_needs;
    WordPathList m_wordPaths;
};

} // namespace ec
