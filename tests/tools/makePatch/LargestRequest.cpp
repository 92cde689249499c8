#include "tests/tools/makePatch/LargestRequest.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> s_largest = 0;

void* requested(std::size_t size) noexcept {
    std::size_t largest = s_largest;
    while (size > largest && !s_largest.compare_exchange_weak(largest, size)) {
    }
    return std::malloc(size == 0 ? 1 : size);
}

void* requestedOrThrown(std::size_t size) {
    if (void* const memory = requested(size))
        return memory;
    throw std::bad_alloc();
}

} // namespace

// All of them: sanitizers complain where only some are replaced.
void* operator new(std::size_t size) {
    return requestedOrThrown(size);
}
void* operator new[](std::size_t size) {
    return requestedOrThrown(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return requested(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return requested(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
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
