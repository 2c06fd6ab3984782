#pragma once

#include <cstdint>

#include "Workbench/Display/PaperDrawing.hpp"
#include "Workbench/Project/Project.hpp"

namespace Merivane::Workbench {

/// Puts the model on a plan as `DrawPlan` tells.
void AddPlanModel(const Project& project, std::int16_t floorIndex, PaperDrawing& drawing);

/// Puts the lines of sections and elevations on a plan, with their references.
void AddSectionMarks(const Project& project, PaperDrawing& drawing);

} // namespace Merivane::Workbench
