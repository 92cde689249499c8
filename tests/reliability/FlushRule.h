// What can be said of a loss of power without one: from the calls of a run, whether everything was
// on the disk before it counted. A disk keeps changes in any order until it is told to flush, so a
// change may come before one that it needs.
#pragma once

#include <string>
#include <vector>

#include "tests/reliability/TracedCommand.h"

namespace sweep {

/// Judges a run that was only watched and put a new version at `copy`. Complains
///  - of a file or folder that was changed but not flushed when the copy's name came to stand for
///    the new version (the folder that holds the copy excepted: it changes by that very step);
///  - of something that was removed after that step but before the folder that holds the copy was
///    flushed: the disk could know of the removal, and still have the old version at its place;
///  - of a folder that holds the copy and was not flushed at all after that step.
/// A hint that lets the disk begin early is no flush.
std::vector<std::string> unflushed(const Outcome& outcome, const std::string& copy);

} // namespace sweep
