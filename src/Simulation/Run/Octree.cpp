#include "Radiance/RtraceOptions.hpp"
#include "Simulation/Run/RunSteps.hpp"
#include "Text/NativeFile.hpp"

namespace Merivane::Simulation {

namespace {

// `oconv` takes 255 files, older releases 127. More luminaires than this go into one file.
constexpr std::size_t MostPlacedFiles = 120;
constexpr const char* JoinedName = "luminaires.rad";

// The placed luminaires as files for `oconv`.
bool LuminaireFiles(RunContext& run, std::vector<std::string>& files) {
    if (run.placedFiles.size() <= MostPlacedFiles) {
        files = run.placedFiles;
        return true;
    }
    std::string joined;
    for (const std::string& placed : run.placedFiles) {
        std::string text;
        if (!ReadWorkFile(run, placed, text)) {
            return false;
        }
        joined += text;
    }
    files = {JoinedName};
    return WriteWorkFile(run, JoinedName, joined);
}

} // namespace

bool BuildOctree(RunContext& run) {
    std::vector<std::string> luminaires;
    if (!LuminaireFiles(run, luminaires)) {
        return Fail(run, "nao foi possivel gravar os arquivos da cena");
    }
    std::vector<std::string> arguments = {"materials.rad", "geometry.rad"};
    arguments.insert(arguments.end(), luminaires.begin(), luminaires.end());

    std::string error;
    if (!RunRadianceTool(run.target, "oconv", arguments, "", Radiance::OctreeName, error)) {
        // What a failing `oconv` leaves looks like an octree and is none.
        Text::RemoveFile(WorkFile(run, Radiance::OctreeName));
        return Fail(run, "montagem da cena (oconv): " + error);
    }
    ReportProgress(run, SimulationStage::Preparing, 1.0);
    Log(run, "octree montado; calculando " +
                 std::to_string(run.planePoints + run.scene.points.size()) + " ponto(s)");
    return true;
}

} // namespace Merivane::Simulation
