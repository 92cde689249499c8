#include "app/CompositionRoot.h"

#include <iostream>
#include <memory>
#include <optional>

#include "app/Adapters.h"
#include "app/ExitCode.h"
#include "app/InstalledProduct.h"
#include "app/OptionTable.h"
#include "app/SystemParts.h"
#include "app/WindowFrontEnd.h"
#include "app/myAppDelegate.h"
#include "app/unattended/AnswersDriver.h"
#include "app/unattended/ProgressPrinter.h"
#include "app/unattended/UnattendedFrontEnd.h"
#include "engine/Product.h"
#include "platform/posix/TerminationSignals.h"

namespace app {

namespace {

namespace product = ec::product;
using Ending = ScrivelInstaller::Ending;
using namespace std::chrono_literals;

/// One run, put together: the adapters, a front end and the delegate.
class Run {
  public:
    Run(const CommandLine& options, AnswersFile answers, int& argc, char** argv);

    ExitCode start();

  private:
    void waitForWork(std::chrono::milliseconds longest) {
        m_adapters.mainQueue.waitForWork(longest);
    }
    AnswersDriver::Needs driverNeeds(AnswersFile answers);
    std::unique_ptr<WindowFrontEnd> window(int& argc, char** argv);
    void finishBackgroundWork();
    void watch(ScrivelInstaller& installer);
    ExitCode outcome(std::string& reason);
    void report(std::optional<int> result, ExitCode code, const std::string& reason);

    const CommandLine& m_options;
    Adapters m_adapters;
    ScrivelInstaller* m_installer = nullptr;
    posix::TerminationSignals m_signals;
    ProgressPrinter m_printer{std::cout};
    AnswersDriver m_driver;
    UnattendedFrontEnd m_unattended;
    std::unique_ptr<WindowFrontEnd> m_window;
    FrontEndPorts m_frontEnd;
    ObservedAlerts m_alerts;
    ports::Host m_host;
    myAppDelegate m_delegate;
    std::optional<ControlWatcher> m_watcher;
};

Run::Run(const CommandLine& options, AnswersFile answers, int& argc, char** argv)
    : m_options(options), m_adapters(options, answers.authorize),
      m_signals(m_adapters.mainQueue,
                [this] {
                    if (m_installer)
                        m_installer->window().performClose();
                }),
      m_driver(driverNeeds(std::move(answers))),
      m_unattended({.driver = m_driver,
                    .background = m_adapters.backgroundQueue,
                    .resourceFolder = m_adapters.bundles.mainResourceFolder(),
                    .runPending = [this] { m_adapters.mainQueue.runPending(); },
                    .waitForWork = [this](auto longest) { waitForWork(longest); }}),
      m_window(window(argc, argv)),
      m_frontEnd(m_window ? m_window->ports()
                          : FrontEndPorts{m_unattended, m_unattended, m_unattended, m_unattended,
                                          m_unattended, m_unattended, m_unattended}),
      m_alerts(m_frontEnd.alertSheets, m_adapters.events),
      m_host{.places = m_adapters.places,
             .clock = m_adapters.clock,
             .systemLog = m_adapters.systemLog,
             .streams = m_adapters.streams,
             .tools = m_adapters.tools,
             .administrator = m_adapters.administrator,
             .applications = *m_adapters.applications,
             .finderFiles = *m_adapters.finderFiles,
             .bundles = m_adapters.bundles,
             .texts = *m_adapters.texts,
             .mainQueue = m_adapters.mainQueue,
             .backgroundQueue = m_adapters.backgroundQueue,
             .interfaceFiles = m_frontEnd.interfaceFiles,
             .alertSheets = m_alerts,
             .modalLoop = m_frontEnd.modalLoop,
             .appearance = m_frontEnd.appearance,
             .fileChoosers = m_frontEnd.fileChoosers,
             .reader = m_frontEnd.reader,
             .beeper = m_frontEnd.beeper,
             .watchers = {.logged =
                              [this](std::string_view line) {
                                  m_adapters.events.emit("log", {{"line", line}});
                              }}},
      m_delegate({.host = m_host,
                  .finishBackgroundWork = [this] { finishBackgroundWork(); },
                  .willRun = [this](ScrivelInstaller& installer) { watch(installer); }}) {
    if (m_window)
        m_adapters.keepAlive = m_window->keepAlive();
    if (options.events)
        m_adapters.events.addListener(
            [](const Event& event) { std::cout << EventStream::line(event) << std::flush; });
    else if (options.unattended)
        m_adapters.events.addListener([this](const Event& event) { m_printer(event); });
}

AnswersDriver::Needs Run::driverNeeds(AnswersFile answers) {
    return {.events = m_adapters.events,
            .answers = std::move(answers),
            .agree = m_options.yes,
            .waitForApps = m_options.waitForApps,
            .appsAreRunning = [this] { return m_installer->isScrivelOrWordRunning(); },
            .pause =
                [this](auto time) {
                    waitForWork(time);
                    m_adapters.mainQueue.runPending();
                    return m_installer->ending() == Ending::open;
                },
            .firstButton = "m_button"};
}

std::unique_ptr<WindowFrontEnd> Run::window(int& argc, char** argv) {
    if (m_options.unattended)
        return nullptr;
    return makeWindowFrontEnd({.argc = argc,
                               .argv = argv,
                               .resourceFolder = m_adapters.bundles.mainResourceFolder(),
                               .texts = *m_adapters.texts,
                               .mainQueueDescriptor = m_adapters.mainQueue.descriptor(),
                               .runPending = [this] { m_adapters.mainQueue.runPending(); }});
}

void Run::finishBackgroundWork() {
    while (m_adapters.backgroundQueue.isBusy()) {
        waitForWork(50ms);
        m_adapters.mainQueue.runPending();
    }
}

void Run::watch(ScrivelInstaller& installer) {
    m_installer = &installer;
    m_watcher.emplace(installer.m_statusTextField, installer.m_progressIndicator,
                      m_adapters.events);
    m_adapters.showProgress = [&installer](const ports::ToolProgress& progress) {
        installer.showProgress(progress);
    };
}

// The order is the order in which the codes are given where several hold.
ExitCode Run::outcome(std::string& reason) {
    if (const auto& failure = m_driver.failure()) {
        reason = *failure;
        return ExitCode::unfollowed;
    }
    switch (m_installer->ending()) {
    case Ending::quit:
        reason = std::string(product::kDisplayName) + " or Microsoft Word is running; quit both "
                                                      "and start again";
        return ExitCode::appsRunning;
    case Ending::kept:
        reason = "the installed copy was kept";
        return ExitCode::cancelled;
    case Ending::closed:
    case Ending::open:
        reason = "the window was closed";
        return ExitCode::cancelled;
    case Ending::finished:
        break;
    }
    if (m_installer->cancelled()) {
        reason = "the installation was cancelled";
        return ExitCode::cancelled;
    }
    const auto fault = faultOfInstalledProduct(m_installer->archive(), product::kArchiveTopFolder,
                                               m_installer->destination());
    if (!fault)
        return ExitCode::done;
    const bool refused = m_adapters.administrator.wasRefused();
    reason = (refused ? "administrator rights were needed and refused: " : "") + *fault;
    return refused ? ExitCode::refused : ExitCode::failed;
}

void Run::report(std::optional<int> result, ExitCode code, const std::string& reason) {
    m_adapters.events.emit("finished", {{"result", result ? Event(*result) : Event()},
                                        {"exit", static_cast<int>(code)},
                                        {"reason", reason}});
    if (code != ExitCode::done)
        std::cerr << kProgramName << ": " << reason << std::endl;
    else if (m_options.unattended && !m_options.events)
        std::cout << product::kDisplayName << " is installed in " << m_installer->destination()
                  << "\nThe log is " << m_adapters.places.expandTilde(ec::gLogName) << std::endl;
}

ExitCode Run::start() {
    m_adapters.events.emit("start", {{"command", m_options.command},
                                     {"root", m_options.root},
                                     {"home", m_options.home},
                                     {"version", product::kVersion}});
    const auto result = m_delegate.applicationDidFinishLaunching();
    m_adapters.mainQueue.runPending(); // events that the background told last
    std::string reason;
    ExitCode code = ExitCode::failed;
    if (result)
        code = outcome(reason);
    else
        reason = "the interface file ScrivelInstaller.ui can't be loaded from " +
                 m_adapters.bundles.mainResourceFolder() + "; get a complete copy of the installer";
    report(result, code, reason);
    return code;
}

} // namespace

int runProgram(const CommandLine& options, int& argc, char** argv) {
    AnswersFile answers;
    try {
        if (options.answers)
            answers = AnswersFile::read(*options.answers);
    } catch (const AnswersFileError& error) {
        std::cerr << kProgramName << ": " << error.what() << std::endl;
        return static_cast<int>(ExitCode::usage);
    }
    if (!options.unattended && !(hasWindowFrontEnd() && hasDisplay())) {
        std::cerr << kProgramName << ": " << kNoDisplay << std::endl;
        return static_cast<int>(ExitCode::usage);
    }
    Run run(options, std::move(answers), argc, argv);
    return static_cast<int>(run.start());
}

} // namespace app
