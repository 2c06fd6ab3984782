#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Simulation/EngineSettings.hpp"
#include "Simulation/PointStatistics.hpp"

namespace Merivane::Simulation {

/// The stages of one calculation, as the progress window names them.
enum class SimulationStage : std::uint32_t { Preparing = 0, Seed = 1, Points = 2, Observers = 3 };

/// Title of a stage as the user sees it; `pointCount` stands in the title of `Points`.
std::string StageTitle(SimulationStage stage, std::uint64_t pointCount);

/// How to run one calculation.
struct SimulationOptions {
    std::uint32_t quality = 1; ///< fixed table of options, when `useEngineSettings` is clear
    std::wstring workFolder;   ///< where all files go; made when missing
    std::wstring radianceBinFolder;
    std::wstring radianceLibFolder;
    std::int32_t processCount = 0; ///< above 0: forces the number of rtrace processes
    bool useEngineSettings = true;
    EngineSettings engine;
    bool repeatable = false; ///< fixed random seed: one process repeats byte for byte
};

/// The values of one sensor plane.
struct ZoneResult {
    std::string name;
    std::vector<double> illuminance; ///< [lux], in `ActivePoints` order
    PointStatistics statistics;      ///< over the task area
};

/// What one calculation gives back.
struct SimulationResult {
    bool success = false;
    bool cancelled = false;                     ///< `error` then says so
    std::string error;                          ///< one Portuguese sentence; empty on success
    std::vector<ZoneResult> zones;              ///< one for each plane, same order
    std::vector<double> pointIlluminance;       ///< [lux], one for each loose point
    std::vector<double> pointDirectIlluminance; ///< [lux], the same without reflections
    std::vector<std::string> log;
};

} // namespace Merivane::Simulation
