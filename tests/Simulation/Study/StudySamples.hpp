#pragma once

#include "Simulation/SimulationRecords.hpp"
#include "Simulation/Study/StudyScene.hpp"

namespace Merivane::Tests {

/// A room of 6 m x 4 m, 3 m high, of activity "s22.2", below one luminaire of 0.6 x 0.6 m, with a
/// loose point, an observer in the room and one outside it, levels of 100 and 300 lux.
Simulation::LightingStudy OfficeStudy();

/// Values of the study's scene: `slope` lux for each metre of x on every plane, over 100 lux; 80
/// lux at every loose point, of which 30 are direct.
Simulation::SimulationResult SlopedResult(const Simulation::StudyScene& built, double slope);

} // namespace Merivane::Tests
