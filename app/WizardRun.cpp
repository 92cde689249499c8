#include "app/WizardRun.h"

#include <algorithm>
#include <array>

#include "app/CancelWindow.h"
#include "engine/LogText.h"
#include "wizard/LaunchModes.h"

namespace app {

namespace {

using Result = ec::ComponentOutcome::Result;

std::int32_t openFirstInstall(ec::ecController& wizard, const CommandLine& options) {
    const auto usual =
        options.shortSequence ? ec::launch::kShortInstall : ec::launch::kFirstInstall;
    return wizard.showCustomizerFromMenu(options.launchMode.value_or(usual));
}

struct WizardCommand {
    std::string_view name;
    std::int32_t (*open)(ec::ecController&, const CommandLine&);
};
constexpr std::array kWizardCommands{
    WizardCommand{"customize",
                  [](ec::ecController& wizard, const CommandLine&) {
                      return wizard.showCustomizerFromMenu(ec::launch::kCustomize);
                  }},
    WizardCommand{"penmark",
                  [](ec::ecController& wizard, const CommandLine&) {
                      return wizard.showCustomizerFromMenu(ec::launch::kPenmark);
                  }},
    WizardCommand{"first-install", openFirstInstall},
    WizardCommand{"update", [](ec::ecController& wizard,
                               const CommandLine&) { return wizard.showPatcherFromMenu(); }},
};

const WizardCommand* commandNamed(std::string_view name) {
    const auto* found = std::ranges::find(kWizardCommands, name, &WizardCommand::name);
    return found == kWizardCommands.end() ? nullptr : found;
}

constexpr std::string_view wordFor(Result result) {
    switch (result) {
    case Result::installed:
        return "installed";
    case Result::removed:
        return "removed";
    case Result::unchanged:
        return "unchanged";
    case Result::refused:
        return "refused";
    case Result::failed:
        break;
    }
    return "failed";
}

constexpr std::string_view wordFor(ec::CopyOutcome::State state) {
    using State = ec::CopyOutcome::State;
    switch (state) {
    case State::offered:
        return "offered";
    case State::declined:
        return "declined";
    case State::updated:
        return "updated";
    case State::refused:
        return "refused";
    case State::current:
        return "current";
    case State::unfit:
        return "unfit";
    case State::failed:
        break;
    }
    return "failed";
}

/// In English, whatever the user's language.
std::string reasonOf(const ec::ComponentOutcome& outcome) {
    return outcome.reason ? ec::formatted(outcome.reason->text.english(), {outcome.reason->about})
                          : std::string();
}

std::string reasonOf(const ec::CopyOutcome& copy) {
    const auto reason = copy.reason();
    return reason ? std::string(reason->english()) : std::string();
}

/// The components and copies that failed, each with its reason.
std::string failuresOf(const ec::WizardSession& session) {
    std::string failures;
    const auto add = [&failures](const std::string& name, const std::string& reason) {
        failures += (failures.empty() ? "" : " ") + name + ": " + reason;
    };
    for (const ec::ComponentOutcome& outcome : session.outcomes)
        if (!outcome.succeeded())
            add(outcome.name, reasonOf(outcome));
    for (const ec::CopyOutcome& copy : session.copies)
        if (!copy.succeeded())
            add(copy.folder, reasonOf(copy));
    return failures;
}

bool wasRefused(const ec::WizardSession& session) {
    return std::ranges::any_of(session.outcomes,
                               [](const ec::ComponentOutcome& outcome) {
                                   return outcome.result == Result::refused;
                               }) ||
           std::ranges::any_of(session.copies, [](const ec::CopyOutcome& copy) {
               return copy.state == ec::CopyOutcome::State::refused;
           });
}

Event eventOf(const ec::ComponentOutcome& outcome) {
    return {{"item", outcome.item ? Event(*outcome.item) : Event()},
            {"name", outcome.name},
            {"wanted", !outcome.mode                         ? Event()
                       : *outcome.mode == ec::OpMode::remove ? Event("not installed")
                                                             : Event("installed")},
            {"result", wordFor(outcome.result)},
            {"present", outcome.present},
            {"reason", reasonOf(outcome)}};
}

Event eventOf(const ec::CopyOutcome& copy) {
    return {{"folder", copy.folder},
            {"version", copy.version ? Event(*copy.version) : Event()},
            {"state", wordFor(copy.state)},
            {"reason", reasonOf(copy)}};
}

} // namespace

bool isWizardCommand(std::string_view command) {
    return commandNamed(command) != nullptr;
}

RunOutcome WizardRun::run() {
    ec::ecController wizard(m_program.host(), m_program.rules(), m_program.root());
    const ControlWatcher watcher(wizard.processingText, {&wizard.progress, &wizard.custProgress},
                                 m_program.events());
    const Program::Hooked hooked(
        m_program,
        {.controller = &wizard,
         .cancel =
             [&] {
                 cancelWindow(wizard.outlets);
                 m_program.host().modalLoop.terminate(); // and with it any question
             },
         .showProgress =
             [&wizard](const ports::ToolProgress& progress) {
                 if (wizard.progress.isRunning())
                     wizard.progress.setAmount({progress.done, progress.total, progress.files});
             }});
    const CommandLine& options = m_program.options();
    const std::int32_t result = commandNamed(options.command)->open(wizard, options);
    m_program.finishBackgroundWork();
    m_program.adapters().mainQueue.runPending();
    for (const ec::ComponentOutcome& outcome : wizard.outcomes)
        m_program.events().emit("component", eventOf(outcome));
    for (const ec::CopyOutcome& copy : wizard.copies)
        m_program.events().emit("copy", eventOf(copy));
    return outcomeOfWizard(wizard, {.result = result,
                                    .unfollowed = m_program.driver().failure(),
                                    .cancelled = m_program.driver().cancelled()});
}

// The order is the order in which the codes are given where several hold.
RunOutcome outcomeOfWizard(const ec::ecController& wizard, const WizardEnding& ending) {
    RunOutcome outcome{.result = ending.result,
                       .code = ExitCode::done,
                       .reason = {},
                       .summary = wizard.summary().text()};
    while (outcome.summary.ends_with('\n'))
        outcome.summary.pop_back();
    const auto ended = [&outcome](ExitCode code, std::string reason) {
        outcome.code = code;
        outcome.reason = std::move(reason);
        return outcome;
    };
    if (ending.unfollowed)
        return ended(ExitCode::unfollowed, *ending.unfollowed);
    if (ending.result == ec::result::kNotLoaded)
        return ended(ExitCode::failed, "the interface file Customizer.ui can't be loaded from " +
                                           wizard.m_custResourceDir +
                                           "; get a complete copy of the installer");
    if (wizard.ecTabView.selected() == ec::page::kQuitWord)
        return ended(ExitCode::appsRunning, "Microsoft Word is running; quit it and start again");
    if (ending.cancelled)
        return ended(ExitCode::cancelled, *ending.cancelled);
    if (!wizard.isFinished())
        return ended(ExitCode::cancelled, "the wizard was cancelled");
    const std::string failures = failuresOf(wizard);
    if (failures.empty())
        return outcome;
    if (wasRefused(wizard))
        return ended(ExitCode::refused,
                     "administrator rights were needed and refused. " + failures);
    return ended(ExitCode::failed, failures + " The log tells what the tools said.");
}

} // namespace app
