// What the wizard's buttons and pages do: the buttons' actions and states, the ways out, and the
// small pieces of work that the tables of steps name. Larger work belongs to other facets and is
// only called from here. Performed by name through ActionTable, and by the controls of the window.
// Main thread only.
#pragma once

#include <string>
#include <string_view>

#include "engine/CommandRunner.h"
#include "engine/InstallDriver.h"
#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"
#include "rules/ComponentOutline.h"
#include "wizard/AlertPanels.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardOutlets.h"
#include "wizard/WizardSession.h"
#include "wizard/WizardSteps.h"
#include "word/AlternateLocations.h"
#include "word/AppDiscovery.h"
#include "word/WordStartupFolders.h"

namespace ec {

class WizardPages {
  public:
    struct Needs {
        InstallLog& log;
        WizardSession& session;
        WizardOutlets& outlets;
        WizardSteps& steps;
        AlertPanels& panels;
        CommandRunner& runner;
        AppDiscovery& discovery;
        WordStartupFolders& startupFolders;
        InstallDriver& driver;
        AlternateLocations& alternateLocations;
        ComponentOutline& components;
        const ports::LocalizedTexts& texts;
        ports::ModalLoop& modalLoop;
    };
    /// Gives the window's controls their actions.
    explicit WizardPages(Needs needs);
    WizardPages(const WizardPages&) = delete;
    WizardPages& operator=(const WizardPages&) = delete;

    /// `next:` goes on, but not while Word runs: then the page that asks to quit it is shown, and
    /// each press looks again.
    void next();
    /// `back:`, also called `prev:`.
    void back() { m_needs.steps.skipToPrevState(); }
    /// `cancel:` logs it, gives up the administrator rights and closes the window.
    void cancel();
    /// The user closes the window: that is Cancel where Cancel can be pressed, and the last page's
    /// button where that is in sight, whether Word runs or not. While work is under way the window
    /// stays.
    bool windowShouldClose();

    /// `enableButtons`: Back and Cancel; `disableButtons` the same two.
    void enableButtons() { setBackAndCancel(true); }
    void disableButtons() { setBackAndCancel(false); }
    /// `disableBack` and `disableBackOnly` are the same.
    void disableBack() { m_needs.outlets.backBtn.setEnabled(false); }
    void disableBackOnly() { disableBack(); }
    /// `setCont`, `setNext`: what Next reads; `setDone` and `setExit` disable Back and Cancel too.
    void setCont();
    void setNext();
    void setDone();
    void setExit();

    /// `doExit` ends the wizard with its result code 129; `doCustExit` leaves the code as it is;
    /// `doUninstallExit` also ends the program.
    void doExit();
    void doCustExit();
    void doUninstallExit();

    /// `installPicture:` shows the picture `name` of the resource folder ("/Customizer.icns"); one
    /// that can't be loaded leaves the picture as it is.
    void installPicture(std::string_view name);
    /// `installAppLogo` shows the wizard's own.
    void installAppLogo();

    /// `startToFind` looks for Word and for what is installed, and goes on by itself.
    void startToFind();
    /// `startToInitialInstall` and `startToMakeChange` do the work; it goes on by itself.
    void startToInitialInstall();
    void startToMakeChange();
    /// `doCheckForWord` looks whether Word is there, and goes to the row "GotWord" either way.
    int doCheckForWord();
    /// `wordQuitHandler` brings up the page that asks to quit Word while it runs, and the page of
    /// the current step when it does not.
    void wordQuitHandler();

    /// `doAgreeChange`: Next follows whether Agree is on.
    void doAgreeChange();
    /// `agreeChangeAgree:` and `agreeChangeDisagree:`.
    void agreeChangeAgree() { m_needs.outlets.nextBtn.setEnabled(true); }
    void agreeChangeDisagree() { m_needs.outlets.nextBtn.setEnabled(false); }

    /// `doChoose:` lets the user point at Word.
    void doChoose() { m_needs.alternateLocations.askUserForWord(); }
    /// `doGoCustom:` and `skipToAltPMRK:` jump to "altPMRK".
    void doGoCustom() { skipToAltPMRK(); }
    void skipToAltPMRK() { m_needs.steps.skipToState("altPMRK"); }

    /// `showWordLocations` brings up the page of the alternate locations from the page of the
    /// components, without Back and Next; no row of the steps leads there. `hideWordLocations`
    /// leads back, with the buttons as they were. Elsewhere either does nothing.
    void showWordLocations();
    void hideWordLocations();

    /// `doStartSVWeb`, on leaving the Penmark welcome page: installs or uninstalls, as chosen
    /// there.
    ActionResult doStartSVWeb();
    /// `doSVWUninstall` asks whether to uninstall Penmark, and jumps there when the answer is yes;
    /// else it keeps the page.
    ActionResult doSVWUninstall();
    /// `doUninstall:` asks whether to uninstall everything, and jumps to "Go" when the answer is
    /// yes.
    void doUninstall();
    /// `doSVWebNext` does nothing.
    void doSVWebNext() {}

  private:
    std::string localized(ports::TextKey key) const { return m_needs.texts.lookUp(key); }
    void setBackAndCancel(bool enabled);
    void setNextTitle(ports::TextKey title) { m_needs.outlets.nextBtn.setTitle(localized(title)); }
    void describeSelectedComponent();
    void beginWork();
    /// Shows the current step's page again, with the buttons as they were.
    void comeBackFromQuitWord();
    /// The same for the page of the alternate locations; nothing where that is not in sight.
    void comeBackFromLocations();
    bool agreedToUninstall(ports::TextKey message, std::string_view label);

    /// The buttons before the page that asks to quit Word came up: they are so again after it, as
    /// the page may refuse to be left.
    struct ButtonsBeforeQuitWord {
        bool backEnabled = false;
        std::string nextTitle;
    };

    Needs m_needs;
    ButtonsBeforeQuitWord m_asTheyWere;
    bool m_uninstallWasHidden = false; ///< before the alternate locations came up
};

} // namespace ec
