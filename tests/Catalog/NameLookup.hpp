#pragma once

#include <chrono>
#include <string>

namespace Merivane::Tests {

/// Host names that this test program looks up by itself, so that no test asks the network; every
/// other name goes the system's way.
inline const std::string UnknownName = "desconhecido.invalid"; ///< does not resolve
inline const std::string SlowName = "lento.invalid"; ///< nor does this, after `SlowLookUp`
inline constexpr std::chrono::milliseconds SlowLookUp{3000};

} // namespace Merivane::Tests
