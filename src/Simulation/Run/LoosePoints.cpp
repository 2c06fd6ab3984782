#include "Radiance/RtraceOptions.hpp"
#include "Radiance/RtraceOutput.hpp"
#include "Radiance/SceneText.hpp"
#include "Simulation/Run/RunSteps.hpp"

namespace Merivane::Simulation {

namespace {

bool CalculatePoints(RunContext& run, const std::vector<std::string>& arguments,
                     const std::string& output, const std::string& prefix,
                     std::vector<double>& values) {
    std::string error;
    if (!RunRadianceTool(run.target, "rtrace", Radiance::WithLineFlush(arguments), "points.pts",
                         output, error)) {
        return Fail(run, prefix + error);
    }
    std::string text;
    if (!ReadWorkFile(run, output, text) ||
        !Radiance::ParseIlluminance(text, run.scene.points.size(), values)) {
        return Fail(run, prefix + "a saida do rtrace nao tem um valor por ponto");
    }
    return true;
}

} // namespace

bool CalculateLoosePoints(RunContext& run) {
    const std::size_t count = run.scene.points.size();
    if (count == 0) {
        return true;
    }
    if (!WriteWorkFile(run, "points.pts", Radiance::PointsText(run.scene))) {
        return Fail(run, "nao foi possivel gravar os pontos avulsos");
    }
    const std::vector<std::string> arguments = Radiance::RtraceOptions(run.options);
    EnterStage(run, SimulationStage::Observers, {"points.txt", "points_direct.txt"}, 2 * count);
    if (!CalculatePoints(run, arguments, "points.txt",
                         "pontos avulsos (rtrace): ", run.result.pointIlluminance) ||
        !CalculatePoints(
            run, Radiance::WithoutReflections(arguments), "points_direct.txt",
            "pontos avulsos, luz direta (rtrace): ", run.result.pointDirectIlluminance)) {
        return false;
    }
    Log(run, std::to_string(count) + " ponto(s) avulso(s) calculado(s)");
    return true;
}

} // namespace Merivane::Simulation
