// Reads from a process that stands at the entry of a system call which files the call is about. For
// TracedCommand's runs; the process must be stopped.
#pragma once

#include <sys/ptrace.h>
#include <sys/types.h>

#include "tests/reliability/TracedCommand.h"

namespace sweep {

/// Fills in the paths of the call, whose shape is known, and what this use of it does. False when
/// it is not about files after all: writing to a pipe, mapping memory.
bool describe(pid_t task, const __ptrace_syscall_info& info, Call& call);

/// Notes what the call, which has succeeded, changed on disk.
void noteInodes(Call& call);

} // namespace sweep
