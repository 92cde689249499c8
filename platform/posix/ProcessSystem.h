// The few calls around processes that Linux and macOS spell differently. One source file for each:
// ProcessSystem.linux.cpp, ProcessSystem.macos.cpp. Used by the other adapters of this folder.
#pragma once

#include <spawn.h>
#include <sys/types.h>

#include "platform/posix/Descriptor.h"

namespace posix {

/// A pipe whose ends no started program inherits. Both ends are numbered above the standard
/// descriptors and `kProgressDescriptor`, so that a child can be given them there in any order.
struct Pipe {
    Descriptor reading;
    Descriptor writing;

    bool isOpen() const { return reading.isOpen() && writing.isOpen(); }
};

/// Where a tool of our own finds the pipe for its progress lines.
inline constexpr int kProgressDescriptor = 3;

/// A new pipe; with both ends closed when the process has no descriptors left.
Pipe makePipe();

/// A descriptor that becomes readable when the child process `pid` has ended. Not open where the
/// system can't give one; the caller then has to ask now and again.
Descriptor watchEnd(pid_t pid);

/// Sees to it that the child keeps no descriptor from number `first` on, whatever flags it has in
/// the program. Call it after the last other action.
void closeFrom(posix_spawn_file_actions_t& actions, posix_spawnattr_t& attributes, int first);

} // namespace posix
