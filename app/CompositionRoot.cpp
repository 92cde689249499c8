#include "app/CompositionRoot.h"

#include <iostream>
#include <optional>

#include "app/ComponentList.h"
#include "app/ExitCode.h"
#include "app/InstallRun.h"
#include "app/OptionTable.h"
#include "app/Program.h"
#include "app/SystemParts.h"
#include "app/WindowFrontEnd.h"
#include "app/WizardRun.h"
#include "engine/Product.h"

namespace app {

namespace {

constexpr std::string_view kListCommand = "list";

int refuse(std::string_view why) {
    std::cerr << kProgramName << ": " << why << std::endl;
    return static_cast<int>(ExitCode::usage);
}

/// What is wrong with the names of --select and --deselect.
Refusal faultOfChoices(Program& program) {
    controls::OutlineView view;
    const ec::ComponentOutline outline({.root = program.root(), .ecOutlineView = view});
    for (const auto& [name, on] : program.options().choices) {
        ec::ecItem* item = nullptr;
        if (const auto refusal = lookUpComponent(outline, name, item))
            return (on ? "--select: " : "--deselect: ") + *refusal;
    }
    return std::nullopt;
}

RunOutcome run(Program& program) {
    const std::string& command = program.options().command;
    if (isWizardCommand(command))
        return WizardRun(program).run();
    if (command == kListCommand)
        return ComponentList(program).run();
    return InstallRun(program).run();
}

void report(Program& program, const RunOutcome& outcome) {
    const CommandLine& options = program.options();
    program.events().emit("finished",
                          {{"result", outcome.result ? Event(*outcome.result) : Event()},
                           {"exit", static_cast<int>(outcome.code)},
                           {"reason", outcome.reason}});
    if (options.unattended && !options.events && !outcome.summary.empty()) {
        std::cout << outcome.summary << std::endl;
        if (options.command != kListCommand)
            std::cout << "The log is " << program.logPath() << std::endl;
    }
    if (outcome.code != ExitCode::done)
        std::cerr << kProgramName << ": " << outcome.reason << std::endl;
}

} // namespace

int runProgram(const CommandLine& options, int& argc, char** argv) {
    AnswersFile answers;
    try {
        if (options.answers)
            answers = AnswersFile::read(*options.answers);
    } catch (const AnswersFileError& error) {
        return refuse(error.what());
    }
    if (!options.unattended && !(hasWindowFrontEnd() && hasDisplay()))
        return refuse(kNoDisplay);
    Program program(options, std::move(answers), argc, argv);
    if (const auto fault = faultOfChoices(program))
        return refuse(*fault);
    program.events().emit("start", {{"command", options.command},
                                    {"root", options.root},
                                    {"home", options.home},
                                    {"version", ec::product::kVersion}});
    const RunOutcome outcome = run(program);
    report(program, outcome);
    return static_cast<int>(outcome.code);
}

} // namespace app
