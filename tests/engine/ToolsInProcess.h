// What the tools that the engine runs do to the disk, done within the test's process, so that
// thousands of changes are quick: rm, ditto, mkdir, chmod, mv, cp, chown, chflags and the scripts,
// with the arguments that the engine gives them. A test compares it with the real tools.
#pragma once

#include "platform/ports/Tools.h"
#include "tests/fakes/FakeHost.h"

namespace tests {

/// The exit status of the tool; 127 for a tool that is not listed above.
int runInProcess(const ports::ToolCall& call);

/// Lets `runInProcess` do what the user's and the administrator's tools do.
void serveInProcess(fakes::FakeHost& host);

} // namespace tests
