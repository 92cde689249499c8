// The largest piece of memory that the program asked for at once since the last reset, so that a
// test can say that a broken file makes nobody ask for much. Counts operator new, not malloc.
#pragma once

#include <cstddef>

namespace tests {

void resetLargestRequest();
std::size_t largestRequest();

} // namespace tests
