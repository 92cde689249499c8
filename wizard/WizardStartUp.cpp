#include "wizard/WizardStartUp.h"

#include <filesystem>

#include "engine/AtomicFile.h"
#include "engine/FileBytes.h"
#include "engine/LogText.h"
#include "engine/Product.h"

namespace ec {

namespace fs = std::filesystem;

namespace {

/// The text about the product, beside the resources; it may be missing.
constexpr std::string_view gAboutPath = "/About.txt";

/// The modes of `startState:`.
constexpr std::uint32_t kFirstInstallMode = 0;
constexpr std::uint32_t kCustomizerMode = 1;
constexpr std::uint32_t kPatcherMode = 3;
constexpr std::uint32_t kPenmarkMode = 4;

constexpr std::string_view kCustomLine = "**  Custom Install from menu                        **";
constexpr std::string_view kPenmarkLine = "**  Install Scrivel Penmark                         **";
constexpr std::string_view kPatchLine = "**  Patcher Started                                 **";

} // namespace

std::int32_t WizardStartUp::showCustomizerFromMenu(std::uint32_t launchMode) {
    return show(launchMode, [&] {
        if (launchMode == launch::kCustomize) {
            beginAnew();
            m_needs.components.attach();
            startCustomState();
        } else if (launchMode == launch::kPenmark) {
            beginAnew();
            startSVWebInstallState();
        }
    });
}

std::int32_t WizardStartUp::showPatcherFromMenu() {
    return show(launch::kFirstInstall, [this] {
        beginAnew();
        startPatchState();
    });
}

std::int32_t WizardStartUp::show(std::uint32_t launchMode, const std::function<void()>& startMode) {
    m_needs.session.m_mode = launchMode;
    if (!m_loaded) {
        m_loaded = m_needs.interfaceFiles.load("Customizer", m_needs.outlets.outlets);
        if (!m_loaded) {
            m_needs.systemLog.write("Load of Customizer NIB failed");
            return result::kNotLoaded;
        }
        awakeFromNib();
    }
    m_needs.components.attach();
    startMode();

    controls::Window& window = m_needs.outlets.window;
    const auto session = m_needs.modalLoop.beginModalSession(window);
    while (m_needs.modalLoop.runModalSession(session) == ports::ModalLoop::kContinues &&
           window.isVisible())
        ;
    m_needs.modalLoop.endModalSession(session);
    window.orderOut(); // and with it any sheet that still hangs on it
    return m_needs.session.mResultCode;
}

/// What an earlier run of the same wizard has decided must not lead this one: a confirmed uninstall
/// above all, nor must a copy be offered that was found then.
void WizardStartUp::beginAnew() {
    m_needs.session.m_bUninstall = false;
    m_needs.session.outcomes.clear();
    m_needs.session.copies.clear();
    m_needs.patcher.forgetScrivels();
    m_needs.outlets.uninstallBtn.setEnabled(true);
    m_needs.outlets.locationsBtn.setEnabled(true);
    m_needs.outlets.cancelBtn.setEnabled(true);
}

void WizardStartUp::awakeFromNib() {
    WizardOutlets& outlets = m_needs.outlets;
    outlets.outlineText.setText({});
    outlets.titleText.setText({});
    outlets.window.setTitle(
        formatted(m_needs.localizedTexts.lookUp("%@ Customizer"), {product::kDisplayName}));
    outlets.acChange.setEnabled(false);
    outlets.acMinusBtn.setEnabled(false);
    outlets.acResetBtn.setEnabled(false);
    outlets.uninstallBtn.setHidden(true);
    outlets.logBtn.setHidden(true);
    m_needs.startupFolders.readCustomizerData();
    m_needs.breadcrumbs.readBreadcrumbs();
    readAboutFile();
    m_needs.texts.showDocuments();
    outlets.window.orderFront();
    m_needs.steps.startState(kFirstInstallMode);
}

void WizardStartUp::readAboutFile() {
    m_needs.session.m_aboutFileString =
        bytesOfFile(m_needs.session.m_custResourceDir + std::string(gAboutPath));
}

void WizardStartUp::start(std::string_view modeLine, std::uint32_t mode) {
    m_needs.log.logBanner(modeLine);
    m_needs.outlets.uninstallBtn.setHidden(mode != kCustomizerMode); // others have nowhere to go
    m_needs.steps.startState(mode);
}

void WizardStartUp::startCustomState() {
    start(kCustomLine, kCustomizerMode);
}

void WizardStartUp::startSVWebInstallState() {
    start(kPenmarkLine, kPenmarkMode);
}

void WizardStartUp::startPatchState() {
    start(kPatchLine, kPatcherMode);
}

bool WizardStartUp::isOnDiskImage() const {
    if (!m_needs.session.m_execPath.starts_with(m_needs.session.places.system("/Volumes/Scrivel")))
        return false;
    const fs::path probe = fs::path(m_needs.session.m_appResourceDir) / ".testro";
    (void)writeAtomically(probe.string(), probe.string());
    std::error_code ignored;
    if (!fs::exists(probe, ignored))
        return true;
    fs::remove(probe, ignored);
    return false;
}

} // namespace ec
