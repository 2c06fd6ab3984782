#pragma once

#include "Simulation/Run/RunContext.hpp"

namespace Merivane::Simulation {

/// The steps of a run in their order, one source each. Every one returns whether the run goes on;
/// when not, `run.result.error` says why.

/// Makes the work folder, takes it for this run alone and clears it of an earlier run's files.
bool PrepareWorkFolder(RunContext& run);

/// Writes materials, geometry and calculation points, and counts the points.
bool WriteSceneFiles(RunContext& run);

/// Converts each distinct photometry and places each luminaire.
bool PlaceLuminaires(RunContext& run);

/// Builds the octree of everything written so far.
bool BuildOctree(RunContext& run);

/// Calculates the points of all planes, in one process or several, and shares the values out.
bool CalculatePlanes(RunContext& run);

/// The two ways to fill `illuminance.txt`: in one process, or in several that start from the
/// ambient values of a seed pass.
bool CalculateInOneProcess(RunContext& run);
bool CalculateInProcesses(RunContext& run, std::int32_t count);

/// Calculates the loose points, with and without reflections.
bool CalculateLoosePoints(RunContext& run);

/// Deletes files of the work folder of which this name rule answers true; silent on failure.
void DeleteWorkFiles(const RunContext& run, bool (*chosen)(std::string_view name));

} // namespace Merivane::Simulation
