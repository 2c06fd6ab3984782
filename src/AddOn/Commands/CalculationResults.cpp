#include "AddOn/Commands/CalculationResults.hpp"

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/FloorViews.hpp"
#include "Archicad/LayerCombinations.hpp"
#include "Archicad/ResultDrawing.hpp"
#include "Archicad/ResultLayers.hpp"
#include "Host/Elements.hpp"
#include "Host/Stories.hpp"
#include "Simulation/Study/ZoneLogLines.hpp"

namespace Merivane::Commands {

namespace {

using Simulation::PlaneKind;
using Simulation::ZoneDrawing;

constexpr const char* DrawStep = "Desenhar os resultados";
constexpr const char* ViewStep = "Criar a Vista da simulacao";

/// The floors of the Zones, ascending.
std::vector<std::int32_t> FloorsOf(const Calculation& calculation) {
    std::set<std::int32_t> floors;
    for (const Archicad::ZoneRecord& zone : calculation.zones) {
        floors.insert(zone.floorIndex);
    }
    return {floors.begin(), floors.end()};
}

/// Walls, ceiling and floor of a Zone, as far as they were calculated.
void TellSurfaces(const Calculation& calculation, std::size_t zone) {
    const Simulation::StudyScene& built = calculation.built;
    std::size_t count = 0;
    for (std::size_t i = 0; i < built.planes.size(); ++i) {
        if (built.planes[i].zone == zone && built.planes[i].kind != PlaneKind::WorkPlane) {
            ReportLine(Simulation::PlaneLogLine(built.scene.sensorPlanes[i].name,
                                                calculation.result.zones[i].statistics));
            ++count;
        }
    }
    if (count > 0) {
        Progress("zona " + calculation.zones[zone].name + ": " + std::to_string(count) +
                 " superficie(s) prontas");
    }
}

void TellGlare(const Calculation& calculation, const ZoneDrawing& drawing) {
    if (!calculation.settings.ugr) {
        return;
    }
    for (const std::string& line : drawing.analysis.glare.log) {
        ReportLine(line);
    }
    Progress("zona " + drawing.zone.name + ": UGR pronto");
}

void TellVerification(const ZoneDrawing& drawing) {
    ReportLine(Simulation::ZoneFiguresLogLine(drawing));
    const std::string task = Simulation::ZoneTaskLogLine(drawing);
    if (!task.empty()) {
        ReportLine(task);
    }
    for (const std::string& line : drawing.analysis.verification.log) {
        ReportLine(line);
    }
}

std::vector<const ZoneDrawing*> DrawingsOnFloor(const Calculation& calculation,
                                                std::int32_t floor) {
    std::vector<const ZoneDrawing*> drawings;
    for (std::size_t i = 0; i < calculation.drawings.size(); ++i) {
        if (calculation.zones[i].floorIndex == floor) {
            drawings.push_back(&calculation.drawings[i]);
        }
    }
    return drawings;
}

void DrawFloor(const Calculation& calculation, std::int32_t floor,
               const Archicad::DrawingOptions& options, const Archicad::ResultStructure& structure,
               std::vector<std::string>& warnings) {
    const Archicad::FloorLayout layout =
        Archicad::LayOutFloor(floor, DrawingsOnFloor(calculation, floor), options, structure);
    for (const Archicad::ZonePlacement& zone : layout.zones) {
        Archicad::DrawZone(zone, options, structure, warnings);
    }
    if (options.legend) {
        Archicad::DrawLegend(floor, layout.legend, options, structure, warnings);
    }
}

/// What became of the earlier results' elements.
struct EarlierResults {
    std::int32_t replaced = 0;
    std::int32_t held = 0; ///< by a lock of layer or element: they stand beside the new ones
};

void TellEarlierResults(const EarlierResults& earlier) {
    if (earlier.replaced > 0) {
        ReportLine(std::to_string(earlier.replaced) +
                   " elemento(s) do calculo anterior substituido(s)");
    }
    if (earlier.held > 0) {
        ReportLine(std::to_string(earlier.held) +
                   " elemento(s) do calculo anterior nao puderam ser apagados (bloqueados ou em "
                   "camada bloqueada): continuam no desenho");
    }
}

/// A plan on which nothing stood and nothing could be drawn leaves nothing to undo.
Host::ErrorCode DrawInOneStep(const Calculation& calculation,
                              const Archicad::DrawingOptions& options,
                              const Archicad::ResultStructure& structure, EarlierResults& earlier) {
    const std::vector<std::int32_t> floors = FloorsOf(calculation);
    std::vector<std::string> warnings;
    const Host::ErrorCode code = Host::CallUndoable("Vantoro: resultados do calculo", [&] {
        if (const Host::ErrorCode refused = Archicad::DeleteResultElements(
                structure.layers, floors, earlier.replaced, earlier.held)) {
            return refused;
        }
        for (const std::int32_t floor : floors) {
            DrawFloor(calculation, floor, options, structure, warnings);
        }
        return Host::NoError;
    });
    for (const std::string& warning : warnings) {
        ReportLine(warning);
    }
    return code == Host::NothingToUndo ? Host::NoError : code;
}

/// Layer combinations are attributes: made once, then the user's own.
bool PrepareCombinations(const Archicad::ResultLayers& resultLayers) {
    Archicad::ProjectLayers projectLayers;
    Host::ErrorCode code = Archicad::EnsureProjectLayers(projectLayers);
    if (code == Host::NoError) {
        code = Archicad::EnsureStandardCombinations(resultLayers, projectLayers, {}, false);
    }
    return CheckError(ViewStep, code) == Host::NoError;
}

void UpdateView(const Host::Story& story) {
    bool created = false;
    if (CheckError(ViewStep, Archicad::EnsureSimulationView(story, created)) != Host::NoError) {
        return;
    }
    ReportLine(created
                   ? "Vista da simulacao criada no Mapa de Vistas para o pavimento " + story.name
                   : "Vista da simulacao do pavimento " + story.name +
                         " atualizada (nome e Combinacao de Camadas)");
}

void UpdateViews(const Calculation& calculation) {
    std::vector<Host::Story> stories;
    std::int16_t activeFloor = 0;
    if (CheckError(ViewStep, Host::GetStories(stories, activeFloor)) != Host::NoError) {
        return;
    }
    const std::vector<std::int32_t> floors = FloorsOf(calculation);
    for (const Host::Story& story : stories) {
        if (std::binary_search(floors.begin(), floors.end(), std::int32_t{story.index})) {
            UpdateView(story);
        }
    }
}

void TellWhere(const Calculation& calculation) {
    const auto& names = Archicad::ResultLayerNames;
    ReportLine("resultados nas camadas \"" + std::string(names[0]) + "\", \"" +
               std::string(names[1]) + "\", \"" + std::string(names[2]) + "\" e \"" +
               std::string(names[3]) + "\"; arquivos do calculo em " + calculation.workFolder);
}

/// Points of the task area that no light reaches. They stand inside of bodies, and make Emin and U0
/// zero: whoever reads those should know why.
std::size_t CountDarkPoints(const ZoneDrawing& drawing) {
    std::size_t dark = 0;
    for (std::size_t i = 0; i < drawing.field.size() && i < drawing.grid.task.size(); ++i) {
        dark += drawing.grid.task[i] && drawing.field[i] == 0.0 ? 1 : 0;
    }
    return dark;
}

void TellDarkPoints(const ZoneDrawing& drawing, Calculation& calculation) {
    const std::size_t dark = CountDarkPoints(drawing);
    if (dark > 0 && drawing.analysis.statistics.maximum > 0.0) {
        calculation.notices.push_back("Zona \"" + drawing.zone.name +
                                      "\": " + std::to_string(dark) +
                                      " ponto(s) sem luz alguma, por certo dentro de móveis ou "
                                      "pilares que passam do plano de trabalho");
        ReportLine(calculation.notices.back());
    }
}

} // namespace

void AnalyseZones(Calculation& calculation) {
    for (std::size_t i = 0; i < calculation.zones.size(); ++i) {
        calculation.analyses.push_back(Simulation::AnalyseZone(calculation.study, calculation.built,
                                                               calculation.result, i, true));
        calculation.drawings.push_back(
            Simulation::BuildZoneDrawing(calculation.study, calculation.built, calculation.result,
                                         i, calculation.analyses.back()));
        const ZoneDrawing& drawing = calculation.drawings.back();
        Progress("zona " + drawing.zone.name + ": curvas e faixas prontas");
        ReportLine(Simulation::PlaneLogLine(drawing.zone.name, drawing.analysis.statistics));
        TellDarkPoints(drawing, calculation);
        TellSurfaces(calculation, i);
        TellGlare(calculation, drawing);
    }
    for (const ZoneDrawing& drawing : calculation.drawings) {
        TellVerification(drawing);
    }
}

bool ShowPlan(const Calculation& calculation) {
    Host::Window plan;
    plan.type = Host::WindowType::FloorPlan;
    const auto story = static_cast<std::int16_t>(calculation.zones.front().floorIndex);
    if (Host::ChangeWindow(plan) != Host::NoError ||
        Host::ChangeActiveFloor(story) != Host::NoError) {
        Alert("Nao foi possivel ativar a Planta Baixa para desenhar os resultados.");
        return false;
    }
    return true;
}

void DrawResults(const Calculation& calculation) {
    const Archicad::DrawingOptions options = Archicad::DrawingOptionsOf(calculation.settings);
    Archicad::ResultStructure structure;
    Host::ErrorCode code = Archicad::PrepareResultStructure(options, structure);
    const bool combined = code == Host::NoError && PrepareCombinations(structure.layers);
    EarlierResults earlier;
    if (code == Host::NoError) {
        code = DrawInOneStep(calculation, options, structure, earlier);
    }
    CheckError(DrawStep, code);
    Progress("desenho concluido (erro " + std::to_string(code) + ")");
    if (code == Host::NoError) { // else the step was taken back
        TellEarlierResults(earlier);
    }
    if (combined) {
        UpdateViews(calculation);
    }
    TellWhere(calculation);
}

} // namespace Merivane::Commands
