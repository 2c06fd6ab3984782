#include "Simulation/Run/RunSimulation.hpp"

#include <utility>

#include "Simulation/Run/RunSteps.hpp"

namespace Merivane::Simulation {

SimulationResult RunSimulation(const Scene& scene, const SimulationOptions& options,
                               const CancelCallback& cancel, const LogCallback& log,
                               const ProgressCallback& progress) {
    RunContext run{scene, options, cancel, log, progress};
    run.target.radianceBinFolder = options.radianceBinFolder;
    run.target.poll = [&run] { return Poll(run); };
    run.target.result = &run.result;

    if (PrepareWorkFolder(run) && WriteSceneFiles(run) && PlaceLuminaires(run) &&
        BuildOctree(run) && CalculatePlanes(run) && CalculateLoosePoints(run)) {
        Log(run, "calculo concluido");
        run.result.success = true;
    }
    return std::move(run.result);
}

} // namespace Merivane::Simulation
