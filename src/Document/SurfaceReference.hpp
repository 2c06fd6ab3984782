#pragma once

#include <cstddef>
#include <vector>

#include "Document/SceneBuild.hpp"
#include "Simulation/SimulationRecords.hpp"
#include "Simulation/Verification/TaskTable.hpp"
#include "Simulation/Verification/Verification.hpp"

namespace Merivane::Document {

/// Ceiling and walls of a Zone against the reference illuminances of EN 12464-1, as far as they
/// were calculated: a row for Em and one for U0 of each. All walls count as one surface, their
/// means weighed by points. `task` chooses the reference; null takes the ordinary one. The rows
/// are recommendations. `result` must be that of `built.scene`.
std::vector<Simulation::VerificationRow> SurfaceRows(const BuiltScene& built,
                                                     const Simulation::SimulationResult& result,
                                                     std::size_t zone,
                                                     const Simulation::TaskRow* task);

} // namespace Merivane::Document
