#pragma once

#include <cstdint>

#include "Workbench/Project/Project.hpp"

namespace Merivane::Tests {

/// A project in which everything that a project file can hold stands at least once, by chance at
/// other places and with other values for every seed. As the host keeps it: elements hold only
/// values that differ from their part's.
Workbench::Project MakeRandomProject(std::uint32_t seed);

} // namespace Merivane::Tests
