#include "wizard/WizardPages.h"

#include <cstddef>
#include <span>

#include "engine/FileBytes.h"
#include "platform/formats/IconFamily.h"
#include "wizard/LaunchModes.h"

namespace ec {

namespace {

/// The rows of `matSVWInstall`.
constexpr int kInstallRow = 0;
constexpr int kUninstallRow = 1;
/// The first cell of `agreeBtns`.
constexpr int kAgreeRow = 0;
constexpr int kDisagreeRow = 1;

bool isPicture(const std::string& path) {
    const std::string bytes = bytesOfFile(path);
    return formats::iconFamilyElements(std::as_bytes(std::span(bytes))).has_value();
}

} // namespace

WizardPages::WizardPages(Needs needs) : m_needs(needs) {
    WizardOutlets& outlets = m_needs.outlets;
    outlets.nextBtn.setAction([this] { next(); });
    outlets.backBtn.setAction([this] { back(); });
    outlets.cancelBtn.setAction([this] { cancel(); });
    outlets.uninstallBtn.setAction([this] { doUninstall(); });
    outlets.locationsBtn.setAction([this] { showWordLocations(); });
    outlets.acDoneBtn.setAction([this] { hideWordLocations(); });
    outlets.agreeBtns.setAction(kAgreeRow, [this] { agreeChangeAgree(); });
    outlets.agreeBtns.setAction(kDisagreeRow, [this] { agreeChangeDisagree(); });
    outlets.ecOutlineView.setSelectionDidChange([this] { describeSelectedComponent(); });
    outlets.window.setShouldClose([this](controls::Window&) { return windowShouldClose(); });
}

void WizardPages::describeSelectedComponent() {
    const controls::OutlineItem* item = m_needs.outlets.ecOutlineView.selectedItem();
    m_needs.outlets.infoText.setText(
        item ? m_needs.texts.translated(m_needs.components.outlineViewObjectValue(
                   controls::OutlineView::kInfoColumn, item))
             : std::string());
}

void WizardPages::next() {
    wordQuitHandler();
    if (m_needs.outlets.ecTabView.selected() != page::kQuitWord)
        m_needs.steps.nextState();
}

void WizardPages::cancel() {
    comeBackFromLocations();
    m_needs.log.logMessage("Scrivel 21 Installer: User Cancelled");
    m_needs.runner.dethenticate();
    m_needs.outlets.window.orderOut();
}

bool WizardPages::windowShouldClose() {
    if (m_needs.steps.isFinished())
        return true;
    if (m_needs.outlets.cancelBtn.isEnabled()) {
        cancel();
    } else if (m_needs.outlets.nextBtn.isEnabled()) {
        comeBackFromQuitWord(); // a Word that runs keeps nobody here
        m_needs.steps.nextState();
    }
    return !m_needs.outlets.window.isVisible();
}

void WizardPages::setBackAndCancel(bool enabled) {
    m_needs.outlets.backBtn.setEnabled(enabled);
    m_needs.outlets.cancelBtn.setEnabled(enabled);
}

void WizardPages::setCont() {
    setNextTitle("Continue");
}

void WizardPages::setNext() {
    setNextTitle("Next");
}

void WizardPages::setDone() {
    disableButtons();
    setNextTitle("Done");
}

void WizardPages::setExit() {
    disableButtons();
    setNextTitle("Exit");
}

void WizardPages::doExit() {
    m_needs.steps.finish();
    m_needs.log.logMessage("Scrivel 21 Installer: Exited Normally");
    m_needs.runner.dethenticate();
    m_needs.session.mResultCode = result::kExited;
    m_needs.outlets.window.orderOut();
}

void WizardPages::doCustExit() {
    m_needs.steps.finish();
    m_needs.runner.dethenticate();
    m_needs.outlets.window.orderOut();
}

void WizardPages::doUninstallExit() {
    doCustExit();
    m_needs.modalLoop.terminate();
}

void WizardPages::installPicture(std::string_view name) {
    controls::ImageView& image = m_needs.outlets.ecImage;
    const std::string path = m_needs.session.m_custResourceDir + std::string(name);
    if (image.picture().path != path && !isPicture(path))
        return;
    image.setPicture({.name = std::string(name), .path = path});
    image.display();
}

void WizardPages::installAppLogo() {
    installPicture("/Customizer.icns");
}

void WizardPages::startToFind() {
    m_needs.session.m_bPMRK_path_added = false;
    m_needs.outlets.backBtn.setEnabled(false);
    m_needs.outlets.nextBtn.setEnabled(false);
    m_needs.outlets.custProgress.startAnimation();
    m_needs.outlets.window.display();
    m_needs.startupFolders.constructWordAndStartupPaths();
    m_needs.driver.installCheck();
    m_needs.components.settleGroups();
    m_needs.steps.doNextState();
}

void WizardPages::beginWork() {
    disableButtons();
    m_needs.outlets.nextBtn.setEnabled(false);
    m_needs.outlets.progress.startAnimation();
    m_needs.outlets.window.display();
}

void WizardPages::startToInitialInstall() {
    beginWork();
    m_needs.driver.initialInstall();
}

void WizardPages::startToMakeChange() {
    beginWork();
    m_needs.driver.makeChange();
}

int WizardPages::doCheckForWord() {
    m_needs.log.logInstall("Searching for Microsoft Word", OpMode::check);
    m_needs.outlets.progress.startAnimation();
    m_needs.outlets.window.display();
    if (!m_needs.discovery.checkWordExists()) {
        m_needs.log.logMessage("Check For Word: does not exist in /Applications");
        m_needs.steps.skipToNextState();
    } else {
        m_needs.steps.skipToState("GotWord");
        m_needs.log.logMessage("Check For Word: exists in /Applications");
    }
    return 0;
}

void WizardPages::comeBackFromQuitWord() {
    if (m_needs.outlets.ecTabView.selected() == page::kQuitWord) {
        m_needs.outlets.backBtn.setEnabled(m_asTheyWere.backEnabled);
        m_needs.outlets.nextBtn.setTitle(m_asTheyWere.nextTitle);
    }
    m_needs.outlets.ecTabView.select(m_needs.steps.currentRow().page);
}

void WizardPages::wordQuitHandler() {
    comeBackFromLocations();
    controls::TabView& tabs = m_needs.outlets.ecTabView;
    const int shown = tabs.selected();
    if (m_needs.discovery.isWordRunning()) {
        if (shown != page::kQuitWord) {
            tabs.select(page::kQuitWord);
            m_asTheyWere = {m_needs.outlets.backBtn.isEnabled(), m_needs.outlets.nextBtn.title()};
            m_needs.outlets.backBtn.setEnabled(false);
            setNextTitle("Retry");
        }
    } else {
        comeBackFromQuitWord();
    }
    tabs.display();
    if ((shown == page::kQuitWord) != (tabs.selected() == page::kQuitWord))
        m_needs.steps.tellRowShown();
}

void WizardPages::showWordLocations() {
    WizardOutlets& outlets = m_needs.outlets;
    if (outlets.ecTabView.selected() != page::kComponents)
        return;
    m_uninstallWasHidden = outlets.uninstallBtn.isHidden();
    outlets.backBtn.setHidden(true);
    outlets.nextBtn.setHidden(true);
    outlets.titleText.setText(m_needs.steps.titleOf(page::kLocations));
    outlets.ecTabView.select(page::kLocations);
    m_needs.steps.tellRowShown();
    m_needs.alternateLocations.doAltPMRK();
}

void WizardPages::hideWordLocations() {
    if (m_needs.outlets.ecTabView.selected() != page::kLocations)
        return;
    comeBackFromLocations();
    m_needs.steps.tellRowShown();
}

void WizardPages::comeBackFromLocations() {
    WizardOutlets& outlets = m_needs.outlets;
    if (outlets.ecTabView.selected() != page::kLocations)
        return;
    outlets.uninstallBtn.setHidden(m_uninstallWasHidden);
    outlets.backBtn.setHidden(false);
    outlets.nextBtn.setHidden(false);
    m_needs.steps.updateTitleText();
    outlets.ecTabView.select(m_needs.steps.currentRow().page);
}

void WizardPages::doAgreeChange() {
    m_needs.outlets.nextBtn.setEnabled(m_needs.outlets.agreeBtns.isOn(kAgreeRow));
}

ActionResult WizardPages::doStartSVWeb() {
    switch (m_needs.outlets.matSVWInstall.selected()) {
    case kUninstallRow:
        return doSVWUninstall();
    case kInstallRow:
        m_needs.steps.skipToState("Custom");
        break;
    default:
        break;
    }
    return ActionResult::nothing;
}

bool WizardPages::agreedToUninstall(ports::TextKey message, std::string_view label) {
    if (m_needs.panels.askUserTitle(localized(kInstallerTitle), localized(message), localized("No"),
                                    localized("Yes"), std::nullopt) != kAlternateAnswer)
        return false;
    m_needs.session.m_bUninstall = true;
    m_needs.outlets.uninstallBtn.setEnabled(false);
    m_needs.outlets.locationsBtn.setEnabled(false);
    m_needs.steps.skipToState(label);
    return true;
}

ActionResult WizardPages::doSVWUninstall() {
    return agreedToUninstall("Uninstall will remove Scrivel Penmark from your computer.  Are you "
                             "sure you want to do this?",
                             "doSVWUninstall")
               ? ActionResult::nothing
               : ActionResult::object;
}

void WizardPages::doUninstall() {
    agreedToUninstall("Uninstall will remove all external Scrivel components from your computer.  "
                      "Are you sure you want to do this?",
                      "Go");
}

} // namespace ec
