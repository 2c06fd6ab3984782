#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Simulation/Run/RadianceTool.hpp"
#include "Simulation/Run/RunSimulation.hpp"

namespace Merivane::Simulation {

/// All that one run knows: what it was told, where it stands and what it has found so far. Every
/// step of the road takes it, returns whether the run goes on, and says why not in `result.error`.
struct RunContext {
    const Scene& scene;
    const SimulationOptions& options;
    const CancelCallback& cancel;
    const LogCallback& log;
    const ProgressCallback& progress;

    SimulationResult result = {};
    ProcessTarget target = {};                 ///< where the Radiance programs run
    std::shared_ptr<void> folderLock = {};     ///< held while the run uses the work folder
    std::vector<std::string> placedFiles = {}; ///< one for each luminaire, in their order
    std::uint64_t planePoints = 0;

    SimulationStage stage = SimulationStage::Preparing;
    std::vector<std::wstring> watchedFiles = {};         ///< outputs whose lines are counted
    std::uint64_t expectedLines = 0;                     ///< lines in them when the stage is done
    std::chrono::steady_clock::time_point lastPoll = {}; ///< when they were last counted
};

/// Adds a line to the result's log and hands it to the log callback.
void Log(RunContext& run, const std::string& line);

/// Ends the run with this error. Returns false, so that a step can return it.
bool Fail(RunContext& run, const std::string& error);

/// Tells the progress callback how far a stage is, clamped to [0..1].
void ReportProgress(const RunContext& run, SimulationStage stage, double fraction);

/// Begins a stage whose progress is the growing of these files of the work folder.
void EnterStage(RunContext& run, SimulationStage stage, const std::vector<std::string>& files,
                std::uint64_t expectedLines);

/// What the process runner asks while it waits: reports progress, at most twice a second, and
/// answers whether the user stopped the run.
bool Poll(RunContext& run);

/// Path of a file of the work folder.
std::wstring WorkFile(const RunContext& run, std::string_view name);

/// Reads and writes a file of the work folder; false when it can't be done whole.
bool ReadWorkFile(const RunContext& run, std::string_view name, std::string& bytes);
bool WriteWorkFile(const RunContext& run, std::string_view name, std::string_view bytes);

} // namespace Merivane::Simulation
