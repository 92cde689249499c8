// Writes resource forks, for the composition root to hand to ForkedFinderFiles. Implemented beside
// the other calls on extended attributes, in FinderFileCalls.cpp.
#pragma once

#include <cstddef>
#include <span>

namespace macoshost {

/// The bytes become the resource fork of the open file, which must have none yet: of a longer one
/// the rest would stay. They must not be none. 0 or an errno value. Any thread.
int writeResourceFork(int file, std::span<const std::byte> fork);

} // namespace macoshost
