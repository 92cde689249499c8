#include "app/Program.h"

#include <iostream>
#include <optional>

#include "app/SystemParts.h"
#include "wizard/InstallLog.h"

namespace app {

using namespace std::chrono_literals;

Program::Program(const CommandLine& options, AnswersFile answers, int& argc, char** argv)
    : m_options(options), m_adapters(options, answers.authorize),
      m_signals(m_adapters.mainQueue,
                [this] {
                    if (m_hooks.cancel)
                        m_hooks.cancel();
                }),
      m_printer(std::cout), m_driver(driverNeeds(std::move(answers))),
      m_unattended(
          {.driver = m_driver,
           .background = *m_adapters.backgroundQueue,
           .resourceFolder = m_adapters.bundles->mainResourceFolder(),
           .runPending = [this] { m_adapters.mainQueue.runPending(); },
           .waitForWork = [this](auto longest) { m_adapters.mainQueue.waitForWork(longest); }}),
      m_window(window(argc, argv)),
      m_frontEnd(m_window ? m_window->ports()
                          : FrontEndPorts{m_unattended, m_unattended, m_unattended, m_unattended,
                                          m_unattended, m_unattended, m_unattended}),
      m_alerts(m_frontEnd.alertSheets, m_adapters.events),
      m_choosers(m_frontEnd.fileChoosers, m_adapters.events),
      m_host{.places = m_adapters.places,
             .clock = m_adapters.clock,
             .systemLog = *m_adapters.systemLog,
             .streams = m_adapters.streams,
             .tools = m_adapters.tools,
             .administrator = m_adapters.administrator,
             .applications = *m_adapters.applications,
             .finderFiles = *m_adapters.finderFiles,
             .bundles = *m_adapters.bundles,
             .propertyLists = m_adapters.propertyLists,
             .texts = *m_adapters.texts,
             .mainQueue = m_adapters.mainQueue,
             .backgroundQueue = *m_adapters.backgroundQueue,
             .interfaceFiles = m_frontEnd.interfaceFiles,
             .alertSheets = m_alerts,
             .modalLoop = m_frontEnd.modalLoop,
             .appearance = m_frontEnd.appearance,
             .fileChoosers = m_choosers,
             .reader = m_frontEnd.reader,
             .beeper = m_frontEnd.beeper,
             .watchers = eventWatchers(m_adapters.events)},
      m_rules(ec::ecRules::mainRules(m_adapters.bundles->mainResourceFolder())),
      m_root(ec::ecItem::rootItem(m_rules)) {
    if (m_window)
        m_adapters.keepAlive = m_window->keepAlive();
    m_adapters.showProgress = [this](const ports::ToolProgress& progress) {
        if (m_hooks.showProgress)
            m_hooks.showProgress(progress);
    };
    if (options.events)
        m_adapters.events.addListener(
            [](const Event& event) { std::cout << EventStream::line(event) << std::flush; });
    else if (options.unattended)
        m_adapters.events.addListener([this](const Event& event) { m_printer(event); });
}

AnswersDriver::Needs Program::driverNeeds(AnswersFile answers) {
    return {.events = m_adapters.events,
            .answers = std::move(answers),
            .choices = m_options.choices,
            .agree = m_options.yes,
            .waitForApps = m_options.waitForApps,
            .appsAreRunning = [this] { return m_hooks.appsAreRunning && m_hooks.appsAreRunning(); },
            .pause = [this](auto time) { return pause(time); },
            .firstButton = "m_button",
            .controller = [this] { return m_hooks.controller; }};
}

bool Program::pause(std::chrono::milliseconds time) {
    m_adapters.mainQueue.waitForWork(time);
    m_adapters.mainQueue.runPending();
    return !m_hooks.isOpen || m_hooks.isOpen();
}

std::unique_ptr<WindowFrontEnd> Program::window(int& argc, char** argv) {
    if (m_options.unattended)
        return nullptr;
    return makeWindowFrontEnd(
        {.argc = argc,
         .argv = argv,
         .resourceFolder = m_adapters.bundles->mainResourceFolder(),
         .texts = *m_adapters.texts,
         .mainQueueDescriptor = m_adapters.mainQueue.descriptor(),
         .runPending = [this] { m_adapters.mainQueue.runPending(); },
         .typeOfFile =
             [this](const std::string& path) {
                 return m_adapters.finderFiles->finderInformation(path).information.typeText();
             },
         .desktopIsDark = desktopIsDark,
         .toolkitVersion = toolkitVersion()});
}

void Program::finishBackgroundWork() {
    while (m_adapters.backgroundQueue->isBusy()) {
        m_adapters.mainQueue.waitForWork(50ms);
        m_adapters.mainQueue.runPending();
    }
}

std::string Program::logPath() const {
    return m_adapters.places.expandTilde(ec::gLogName);
}

} // namespace app
