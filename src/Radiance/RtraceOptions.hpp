#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Radiance {

/// Name of the octree in the work folder: the last entry of every option list.
inline constexpr const char* OctreeName = "scene.oct";

/// Arguments of `rtrace` as an irradiance meter: the fixed list, the ambient parameters of the
/// engine settings (normalised) or of the table by `quality`, the fixed seed where the run is to
/// repeat, and the octree.
std::vector<std::string> RtraceOptions(const Simulation::SimulationOptions& options);

/// `arguments` with "-x", "1" just before the last entry: `rtrace` then writes a line as soon as
/// it is calculated, which is what progress counts.
std::vector<std::string> WithLineFlush(std::vector<std::string> arguments);

/// `RtraceOptions` with line flush and, just before the octree, the ambient file to read and
/// extend.
std::vector<std::string> WithAmbientFile(const Simulation::SimulationOptions& options,
                                         const std::string& ambientFile);

/// `arguments` with the value behind "-ab" replaced by "0": direct light only.
std::vector<std::string> WithoutReflections(std::vector<std::string> arguments);

/// How many times light is reflected under these options: the value of "-ab", 0 where the list has
/// none (the default of `rtrace`).
std::int32_t ReflectionCount(const Simulation::SimulationOptions& options);

} // namespace Merivane::Radiance
