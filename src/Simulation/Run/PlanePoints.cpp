#include <thread>

#include "Radiance/RtraceOptions.hpp"
#include "Radiance/RtraceOutput.hpp"
#include "Radiance/RtraceShares.hpp"
#include "Simulation/Run/RunSteps.hpp"

namespace Merivane::Simulation {

namespace {

std::int32_t ProcessCount(const RunContext& run, std::uint32_t logicalProcessors) {
    const SimulationOptions& options = run.options;
    if (options.processCount > 0) {
        return options.processCount;
    }
    if (options.useEngineSettings && options.engine.maxProcesses > 0) {
        return options.engine.maxProcesses;
    }
    return Radiance::ProcessCountFor(run.planePoints, logicalProcessors);
}

void LogProcesses(RunContext& run, std::int32_t count, std::uint32_t logicalProcessors) {
    std::string line = "rtrace em " + std::to_string(count) + " processo(s)";
    if (logicalProcessors > 0) {
        line += " (" + std::to_string(logicalProcessors) + " nucleos logicos)";
    }
    Log(run, line);
}

bool ReadPlaneValues(RunContext& run, std::vector<double>& values) {
    std::string text;
    if (!ReadWorkFile(run, "illuminance.txt", text) ||
        !Radiance::ParseIlluminance(text, run.planePoints, values)) {
        return Fail(run, "a saida do rtrace nao tem um valor por ponto");
    }
    return true;
}

// Each plane takes as many values as it has points, in the order in which they were written.
void ShareValuesOut(RunContext& run, const std::vector<double>& values) {
    auto next = values.begin();
    for (const SensorPlane& plane : run.scene.sensorPlanes) {
        const auto end = next + static_cast<std::ptrdiff_t>(ActiveNodeCount(plane.grid));
        ZoneResult zone{.name = plane.name, .illuminance = {next, end}, .statistics = {}};
        zone.statistics = TaskStatistics(plane.grid, zone.illuminance);
        run.result.zones.push_back(std::move(zone));
        next = end;
    }
}

} // namespace

bool CalculateInOneProcess(RunContext& run) {
    EnterStage(run, SimulationStage::Points, {"illuminance.txt"}, run.planePoints);
    std::string error;
    if (!RunRadianceTool(run.target, "rtrace",
                         Radiance::WithLineFlush(Radiance::RtraceOptions(run.options)),
                         "sensors.pts", "illuminance.txt", error)) {
        return Fail(run, "calculo (rtrace): " + error);
    }
    return true;
}

bool CalculatePlanes(RunContext& run) {
    const std::uint32_t logicalProcessors = std::thread::hardware_concurrency();
    const std::int32_t count = ProcessCount(run, logicalProcessors);
    LogProcesses(run, count, logicalProcessors);

    std::vector<double> values;
    if (run.planePoints > 0) {
        const bool calculated =
            count <= 1 ? CalculateInOneProcess(run) : CalculateInProcesses(run, count);
        if (!calculated || !ReadPlaneValues(run, values)) {
            return false;
        }
    }
    ShareValuesOut(run, values);
    return true;
}

} // namespace Merivane::Simulation
