// Puts what was written onto the disk, so that it outlasts a loss of power; implemented once for
// each system by the file of the same name in its folder. Each throws std::system_error.
#pragma once

namespace tools {

/// For each file and folder that was made, when it is complete. What it does not finish at once
/// flushAll waits for.
void flushSoon(int file);

/// Waits until all that was given to flushSoon, and every name in the folder that `folder` is and
/// in those below, is on the disk.
void flushAll(int folder);

/// Waits until the names in the folder are on the disk.
void flushFolder(int folder);

} // namespace tools
