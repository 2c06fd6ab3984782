#pragma once

#include <cstddef>
#include <vector>

#include "Simulation/SimulationRecords.hpp"
#include "Simulation/Study/StudyScene.hpp"
#include "Simulation/Verification/TaskTable.hpp"
#include "Simulation/Verification/Verification.hpp"

namespace Merivane::Simulation {

/// The statistics of all planes of one kind in a Zone as those of one surface, their means weighed
/// by points; no points where none was calculated. `result` must be that of `built.scene`.
PointStatistics PlaneStatistics(const StudyScene& built, const SimulationResult& result,
                                std::size_t zone, PlaneKind kind);

/// Ceiling and walls of a Zone against the reference illuminances of EN 12464-1, as far as they
/// were calculated: a row for Em and one for U0 of each; all walls count as one surface. `task`
/// chooses the reference; null takes the ordinary one. The rows are recommendations. `result` must
/// be that of `built.scene`.
std::vector<VerificationRow> SurfaceRows(const StudyScene& built, const SimulationResult& result,
                                         std::size_t zone, const TaskRow* task);

} // namespace Merivane::Simulation
