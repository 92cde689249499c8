// Puts one run together: the adapters of this system, the watchers that make events, a front end,
// and the application delegate; then runs it and finds the exit status. The only place that knows
// every class. Main thread.
#pragma once

#include "app/CommandLine.h"

namespace app {

/// Runs the program with these options and answers its exit status (ExitCode). Errors that end the
/// run are told on standard error.
int runProgram(const CommandLine& options, int& argc, char** argv);

} // namespace app
