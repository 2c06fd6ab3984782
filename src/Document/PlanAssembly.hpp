#pragma once

#include <string>
#include <vector>

#include "Document/ResultPlan.hpp"
#include "Document/SceneBuild.hpp"
#include "Simulation/SimulationRecords.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"

namespace Merivane::Document {

/// The plan of results of one floor.
struct FloorPlan {
    double level = 0.0;   ///< of the floor [m]
    std::string fileName; ///< without extension: "planta", or "planta-1", "planta-2" upwards
    PlanContents contents;
};

/// The plans of a calculation, one for each level on which Zones stand (levels within 1 cm are
/// one), from the lowest up. A plan shows the floor's Zones with their values, what a cut 1 m above
/// the floor meets (half-way up where the rooms are lower than 2 m), and the luminaires between
/// the floor and the highest of its ceilings. `notes` go to the foot of each.
///
/// Without Zones there is no plan. `result` must be that of `built.scene`, `analyses` those of the
/// document's Zones, in order.
std::vector<FloorPlan> AssemblePlans(const Simulation::LightingStudy& document,
                                     const Simulation::StudyScene& built,
                                     const Simulation::SimulationResult& result,
                                     const std::vector<Simulation::ZoneAnalysis>& analyses,
                                     const std::vector<std::string>& notes);

} // namespace Merivane::Document
