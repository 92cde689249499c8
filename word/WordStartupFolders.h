// The startup folders of the Words that are installed: where the add-in goes. What is known about
// them comes from the information dictionary; the folders themselves are not looked for yet, which
// the log says. Main thread.
#pragma once

#include <string>
#include <vector>

#include "platform/ports/Bundles.h"
#include "wizard/InstallLog.h"

namespace ec {

class WordStartupFolders {
  public:
    struct Needs {
        InstallLog& log;
        ports::Bundles& bundles;
    };
    explicit WordStartupFolders(Needs needs) : m_needs(needs) {}
    WordStartupFolders(const WordStartupFolders&) = delete;
    WordStartupFolders& operator=(const WordStartupFolders&) = delete;

    /// Reads the dictionary "SVCustomizerData" of the bundle that holds the wizard. What it lacks
    /// stays empty.
    void readCustomizerData();

    /// `constructWordAndStartupPaths` looks for the folders.
    void constructWordAndStartupPaths();

  private:
    Needs m_needs;
    std::vector<std::string> m_wordStartupParts;
    std::vector<std::string> m_wordTemplateDirs;
};

} // namespace ec
