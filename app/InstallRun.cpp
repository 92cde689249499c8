#include "app/InstallRun.h"

#include "app/CancelWindow.h"
#include "app/InstalledProduct.h"
#include "engine/Product.h"

namespace app {

namespace product = ec::product;
using Ending = ScrivelInstaller::Ending;

InstallRun::InstallRun(Program& program)
    : m_program(program),
      m_delegate({.host = program.host(),
                  .rules = program.rules(),
                  .root = program.root(),
                  .finishBackgroundWork = [this] { m_program.finishBackgroundWork(); },
                  .willRun = [this](ScrivelInstaller& installer) { watch(installer); }}) {}

void InstallRun::watch(ScrivelInstaller& installer) {
    m_watcher.emplace(installer.m_statusTextField,
                      std::vector<controls::Progress*>{&installer.m_progressIndicator},
                      m_program.events());
    ec::ecController& wizard = installer.controller();
    m_wizardWatcher.emplace(
        wizard.processingText,
        std::vector<controls::Progress*>{&wizard.progress, &wizard.custProgress},
        m_program.events());
    m_hooked.emplace(
        m_program,
        Program::Hooks{
            .controller = &wizard,
            .appsAreRunning = [&installer] { return installer.isScrivelOrWordRunning(); },
            .isOpen = [&installer] { return installer.ending() == Ending::open; },
            .cancel =
                [this, &installer, &wizard] {
                    if (wizard.window.isVisible()) {
                        cancelWindow(wizard.outlets);
                        m_program.host().modalLoop.terminate(); // and with it any question
                    }
                    installer.window().performClose();
                },
            .showProgress =
                [&installer, &wizard](const ports::ToolProgress& progress) {
                    if (wizard.progress.isRunning())
                        wizard.progress.setAmount({progress.done, progress.total, progress.files});
                    else
                        installer.showProgress(progress);
                }});
}

RunOutcome InstallRun::run() {
    const auto result = m_delegate.applicationDidFinishLaunching();
    m_program.adapters().mainQueue.runPending(); // events that the background told last
    if (result)
        return outcome(*result);
    return {.result = std::nullopt,
            .code = ExitCode::failed,
            .reason = "the interface file ScrivelInstaller.ui can't be loaded from " +
                      m_program.adapters().bundles->mainResourceFolder() +
                      "; get a complete copy of the installer",
            .summary = {}};
}

// The order is the order in which the codes are given where several hold.
RunOutcome InstallRun::outcome(int result) {
    const auto ended = [result](ExitCode code, std::string reason) {
        return RunOutcome{
            .result = result, .code = code, .reason = std::move(reason), .summary = {}};
    };
    if (const auto& failure = m_program.driver().failure())
        return ended(ExitCode::unfollowed, *failure);
    ScrivelInstaller& installer = m_delegate.installer();
    switch (installer.ending()) {
    case Ending::quit:
        return ended(ExitCode::appsRunning, std::string(product::kDisplayName) +
                                                " or Microsoft Word is running; quit both and "
                                                "start again");
    case Ending::kept:
        return ended(ExitCode::cancelled, "the installed copy was kept");
    case Ending::open:
        return ended(ExitCode::cancelled, "the wizard ended the program before the installation");
    case Ending::closed:
        return ended(ExitCode::cancelled, "the window was closed");
    case Ending::finished:
        break;
    }
    if (installer.cancelled())
        return ended(ExitCode::cancelled, "the installation was cancelled");
    if (const auto fault = faultOfInstalledProduct(installer.archive(), product::kArchiveTopFolder,
                                                   installer.destination())) {
        const bool refused = m_program.adapters().administrator.wasRefused();
        return ended(refused ? ExitCode::refused : ExitCode::failed,
                     (refused ? "administrator rights were needed and refused: " : "") + *fault);
    }
    RunOutcome done = ended(ExitCode::done, {});
    done.summary =
        std::string(product::kDisplayName) + " is installed in " + installer.destination();
    return done;
}

} // namespace app
