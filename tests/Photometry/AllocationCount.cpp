#include "AllocationCount.hpp"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t>& Counter() {
    static std::atomic<std::size_t> count{0};
    return count;
}

} // namespace

namespace Merivane::Tests {

std::size_t AllocationCount() {
    return Counter();
}

} // namespace Merivane::Tests

// The arrays' forms of the library call these.
void* operator new(std::size_t size) {
    ++Counter();
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
