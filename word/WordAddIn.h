// Word's add-in, Penmark: looks for it in the startup folders of every Word, copies it there, and
// removes it from there. The install driver and the patcher call it for components of the install
// method "inst_Word". Also stages a folder of its own under "/Applications" from the installer's
// archive. Files are changed through FileOperations alone, whose results it only has logged.
//
// Main thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "engine/CommandRunner.h"
#include "engine/ComponentParts.h"
#include "engine/FileOperations.h"
#include "engine/OpMode.h"
#include "engine/Status.h"
#include "platform/ports/Bundles.h"
#include "platform/ports/FinderFiles.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardSession.h"
#include "word/AppDiscovery.h"
#include "word/WordStartupFolders.h"

namespace ec {

class WordAddIn {
  public:
    struct Needs {
        InstallLog& log;
        const WizardSession& session;
        CommandRunner& runner;
        FileOperations& files;
        AppDiscovery& discovery;
        const WordStartupFolders& startupFolders;
        ports::Bundles& bundles;
        ports::FinderFiles& finderFiles;
    };
    explicit WordAddIn(Needs needs) : m_needs(needs) {}
    WordAddIn(const WordAddIn&) = delete;
    WordAddIn& operator=(const WordAddIn&) = delete;

    /// `installWordMode:itemNum:source:dest:` checks for the add-in, copies or removes it, in every
    /// startup folder of every Word. `source` is the folder that holds the folder "Penmark" with
    /// the add-ins; where it is none or no folder, the one that holds the installer application is
    /// it. The item's number and the destination are not read.
    ///
    /// -1: there is no Word. 0: nothing was found, or nothing to do. 1: the add-in was found, or at
    /// least one folder was acted on, whatever that came to. A check in the launch modes 32 and 36
    /// answers 1 and looks into no folder. Logs the state, each folder and the result; a failure of
    /// the platform is logged and answers what was gathered before.
    MethodAnswer installWordMode(OpMode mode, std::uint32_t itemNum, OptionalText source,
                                 OptionalText dest);

    /// What of the add-in lies where: in the startup folders of every Word.
    ComponentParts addInParts() const;

    /// `preparePmrkFolder` unpacks the installer's archive into a temporary folder, adds the
    /// installer itself and puts that into "/Applications/Scrivel Penmark" in place of what is
    /// there; not when the installer runs from there. Where there is no place for a temporary
    /// folder that is logged, and nothing happens. Nothing calls it in the present wizard.
    void preparePmrkFolder();

    /// `cleanupPmrkFolder` removes what `preparePmrkFolder` unpacked, and what is called "Scrivel"
    /// in the current folder. Nothing when there was no `preparePmrkFolder` before it.
    void cleanupPmrkFolder();

  private:
    /// The add-in for one Word: what it is called, and where it lies.
    struct AddIn {
        std::string name;
        std::string source;
    };

    void actOnEveryFolder(OpMode mode, OptionalText source, int& result);
    std::optional<AddIn> addInFor(const std::string& word, OptionalText source) const;
    bool removeFrom(const std::string& folder);
    void copyInto(const std::string& folder, const AddIn& addIn);

    Needs m_needs;
    std::optional<std::string> m_tmpPmrkFolder;
};

} // namespace ec
