#pragma once

#include <filesystem>

#include "Workbench/Project/Project.hpp"

namespace Merivane::Tests {

/// A project of one small room, 3 m x 2 m, with walls, floor and ceiling, two lamps and the Zone
/// "Sala" (number "01", an activity is not chosen); a Zone "Depósito" (number "02") beside it
/// without a lamp; on the floor above a Zone "Sala" (number "11") without any.
Workbench::Project SmallProject();

/// Saves a project, which has to work.
void SaveSample(const std::filesystem::path& path, const Workbench::Project& project);

} // namespace Merivane::Tests
