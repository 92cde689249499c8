// The startup folders of the Words that are installed: where the add-in goes. WordAddIn installs
// into them, the page of alternate locations shows and edits the pairs of a Word with its folder.
// Also knows Word's templates folder and the add-in's old files. Looks only; changes nothing.
//
// Paths are those of this run, under its root. Main thread.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/Bundles.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardSession.h"
#include "word/AppDiscovery.h"
#include "word/Breadcrumbs.h"

namespace ec {

/// The startup folder that current copies of Word share, for all users; a system place.
inline constexpr std::string_view kSharedStartupFolder =
    "/Library/Application Support/Microsoft/Office365/User Content.localized/"
    "Startup.localized/Word";

class WordStartupFolders {
  public:
    struct Needs {
        InstallLog& log;
        const WizardSession& session;
        const Breadcrumbs& breadcrumbs;
        AppDiscovery& discovery;
        ports::Bundles& bundles;
    };
    explicit WordStartupFolders(Needs needs) : m_needs(needs) {}
    WordStartupFolders(const WordStartupFolders&) = delete;
    WordStartupFolders& operator=(const WordStartupFolders&) = delete;

    /// Reads the dictionary "SVCustomizerData" of the bundle that holds the wizard. What it lacks
    /// stays empty.
    void readCustomizerData();

    /// `getWordStartupFolders:` answers the startup folders of the Word at `path`: those that the
    /// breadcrumbs have for it (letter case does not count), in their order, and then, for major
    /// versions 15 and 16, the shared one. No folder is taken out that stands twice, nor one that
    /// does not exist. Logs the Word with its version, and each folder.
    std::vector<std::string> getWordStartupFolders(std::string_view path) const;
    /// The same without a line in the log.
    std::vector<std::string> foldersOf(std::string_view path) const;

    /// `constructWordAndStartupPaths` makes the list of pairs anew: each Word that exists, has a
    /// major version of at least 12 and a startup folder, with the first of its folders.
    void constructWordAndStartupPaths();
    /// The pair records (PairRecord) as they were last made.
    const std::vector<std::string>& wordAndStartupPaths() const { return m_wordAndStartupPaths; }

    /// `getWordTemplatesFolder:` answers the product's folder in the first folder for templates
    /// that there is in `folder`; none where there is no folder of their names.
    std::optional<std::string> getWordTemplatesFolder(const std::string& folder) const;

    /// `getOldPMRKFiles:` answers the full paths of the folder's entries whose names begin with
    /// "Scrivel", in the order of their names. A folder that can't be read has none.
    std::vector<std::string> getOldPMRKFiles(const std::string& folder) const;

  private:
    Needs m_needs;
    std::vector<std::string> m_wordAndStartupPaths;
    std::vector<std::string> m_wordStartupParts;
    std::vector<std::string> m_wordTemplateDirs;
};

} // namespace ec
