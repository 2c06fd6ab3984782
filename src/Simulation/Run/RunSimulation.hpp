#pragma once

#include <functional>
#include <string>

#include "Simulation/Scene.hpp"
#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Simulation {

/// Asked at least every 200 ms while a Radiance program runs; true stops the run.
using CancelCallback = std::function<bool()>;

/// Gets every line of the run's log as it is written.
using LogCallback = std::function<void(const std::string& line)>;

/// Gets how far a stage is [0..1]; 0 when the stage begins.
using ProgressCallback = std::function<void(SimulationStage stage, double fraction)>;

/// Calculates a scene with the Radiance programs: writes it to the work folder, converts and places
/// the luminaires, builds the octree, asks for the irradiance at every point and gives the values
/// back in lux. Blocks until all is done; any of the three callbacks may be empty.
///
/// The work folder is made when missing and is the run's own until it returns: a second run in it
/// is refused. Files of an earlier run are deleted first, those of this one stay for inspection.
///
/// On failure `success` is false and `error` one Portuguese sentence; when the user stopped the run
/// `cancelled` is set too. What was logged stays in `log`.
SimulationResult RunSimulation(const Scene& scene, const SimulationOptions& options,
                               const CancelCallback& cancel, const LogCallback& log,
                               const ProgressCallback& progress);

} // namespace Merivane::Simulation
