// What the signals that ask a program to end do to a run: before the new version is in place it
// cleans up and ends, afterwards it goes on. Process-wide, as signals are.
#pragma once

namespace tools {

/// Thrown where work can be left.
struct Interrupted {
    int signal;
};

/// From now on SIGINT, SIGTERM and SIGHUP are remembered instead of ending the process, but for
/// those that were ignored already; a write to nobody and a file beyond the limit are errors of
/// their calls.
void rememberSignals();

/// Throws Interrupted when one came. Any thread.
void leaveIfInterrupted();

/// One that comes from here on changes nothing; throws Interrupted when one came before.
void passPointOfNoReturn();

} // namespace tools
