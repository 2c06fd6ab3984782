#pragma once

#include <cstddef>

namespace Merivane::Tests {

/// How often this test program has asked for memory with `new` so far.
std::size_t AllocationCount();

} // namespace Merivane::Tests
