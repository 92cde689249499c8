#include "tests/tools/makePatch/LargestRequest.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> s_largest = 0;

} // namespace

void* operator new(std::size_t size) {
    std::size_t largest = s_largest;
    while (size > largest && !s_largest.compare_exchange_weak(largest, size)) {
    }
    if (void* const memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace tests {

void resetLargestRequest() {
    s_largest = 0;
}

std::size_t largestRequest() {
    return s_largest;
}

} // namespace tests
