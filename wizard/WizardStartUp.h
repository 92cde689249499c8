// How the wizard starts: its window, its modes and their banners, and where it finds itself. Part
// of ecController, whose plain `init` needs no window: that comes with the first
// `showCustomizerFromMenu:`. Main thread.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "patcher/Patcher.h"
#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"
#include "platform/ports/SystemLog.h"
#include "rules/ComponentOutline.h"
#include "wizard/InstallLog.h"
#include "wizard/LaunchModes.h"
#include "wizard/WizardOutlets.h"
#include "wizard/WizardSession.h"
#include "wizard/WizardSteps.h"
#include "wizard/WizardTexts.h"
#include "word/Breadcrumbs.h"
#include "word/WordStartupFolders.h"

namespace ec {

class WizardStartUp {
  public:
    struct Needs {
        WizardSession& session;
        WizardOutlets& outlets;
        InstallLog& log;
        WizardSteps& steps;
        Breadcrumbs& breadcrumbs;
        WordStartupFolders& startupFolders;
        ComponentOutline& components;
        Patcher& patcher;
        WizardTexts& texts;
        ports::InterfaceFiles& interfaceFiles;
        ports::ModalLoop& modalLoop;
        ports::SystemLog& systemLog;
        const ports::LocalizedTexts& localizedTexts;
    };
    explicit WizardStartUp(Needs needs) : m_needs(needs) {}
    WizardStartUp(const WizardStartUp&) = delete;
    WizardStartUp& operator=(const WizardStartUp&) = delete;

    /// `showCustomizerFromMenu:` opens the wizard in a launch mode (see launch::) and runs it until
    /// its window is closed. Answers the wizard's result code: 129 after a normal exit, 131 and a
    /// line in the system log when the interface file "Customizer" can't be loaded.
    ///
    /// The first call loads the window, which begins the first-install sequence and with it a scan
    /// of the system; launch modes 35 and 36 then begin their own, and scan again. In any other
    /// launch mode a later call goes on where the wizard stands.
    std::int32_t showCustomizerFromMenu(std::uint32_t launchMode);
    /// The same with launch mode 0 and then the patcher.
    std::int32_t showPatcherFromMenu();

    /// `awakeFromNib`: the window is there. Reads what the wizard knows and begins mode 0.
    void awakeFromNib();

    /// `startCustomState`, `startSVWebInstallState` and `startPatchState` write the mode's banner
    /// to the log and begin modes 1, 4 and 3.
    void startCustomState();
    void startSVWebInstallState();
    void startPatchState();

    /// `readHomeDirectory` answers the current user's home folder; it is not made when missing.
    std::string readHomeDirectory() const { return m_needs.session.places.home; }

    /// `isOnDiskImage`: does the running executable lie on the product's installation disk image,
    /// mounted read-only? Outside "/Volumes/Scrivel…" the answer is no and the disk is not touched;
    /// else a file is written into the resource folder and taken away again to find out.
    bool isOnDiskImage() const;

  private:
    std::int32_t show(std::uint32_t launchMode, const std::function<void()>& startMode);
    void beginAnew();
    void readAboutFile();
    void start(std::string_view modeLine, std::uint32_t mode);

    Needs m_needs;
    bool m_loaded = false;
};

} // namespace ec
