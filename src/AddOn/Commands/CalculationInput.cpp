#include "AddOn/Commands/CalculationInput.hpp"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <utility>

#include "AddOn/Commands/CalculationDialog.hpp"
#include "AddOn/Commands/ReflectanceDialog.hpp"
#include "AddOn/Commands/ZoneRequirementDialog.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/AddOnFolder.hpp"
#include "Archicad/ModelReadingCeilings.hpp"
#include "Archicad/ModelReadingGeometry.hpp"
#include "Archicad/ModelReadingLuminaires.hpp"
#include "Archicad/ReviewReflectances.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Archicad/ZoneTaskStorage.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/Run/ReflectionEstimate.hpp"

namespace Merivane::Commands {

namespace {

using Simulation::StudyZone;

void ReportLines(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        ReportLine(line);
    }
}

bool Refuse(const std::string& text) {
    Alert(text);
    return false;
}

bool Cancel(Calculation& calculation) {
    calculation.end = CalculationEnd::Cancelled;
    return false;
}

/// The pieces of a continuous line are one luminaire to its user.
std::size_t CountLuminaires(const std::vector<Simulation::SceneLuminaire>& luminaires) {
    std::set<std::string> guids;
    for (const Simulation::SceneLuminaire& luminaire : luminaires) {
        guids.insert(luminaire.guid);
    }
    return guids.size();
}

/// Of the lines on luminaires, those that tell of one left out.
bool TellsOfMissingLight(const std::string& line) {
    return line.find("fora do calculo") != std::string::npos ||
           line.find(" ignorada: ") != std::string::npos;
}

StudyZone StudyZoneOf(const Archicad::ZoneRecord& zone) {
    StudyZone study;
    study.name = zone.name;
    study.outline = {zone.outline, zone.holes};
    study.floorLevel = zone.baseLevel;
    study.height = zone.height;
    return study;
}

/// The activities by Zone, `suggested` ones told apart.
void TakeActivities(const std::vector<Simulation::ZoneRequirementRow>& rows,
                    Simulation::LightingStudy& study) {
    for (std::size_t i = 0; i < rows.size() && i < study.zones.size(); ++i) {
        study.zones[i].task = {rows[i].requirement, rows[i].suggested};
    }
}

/// What the settings, and the ceilings since found, mean for each Zone.
void CompleteZones(Calculation& calculation) {
    const Simulation::CalculationSettings& settings = calculation.settings;
    for (std::size_t i = 0; i < calculation.zones.size(); ++i) {
        StudyZone& zone = calculation.study.zones[i];
        zone.height = calculation.zones[i].height;
        zone.grid.workPlaneHeight = settings.workPlaneHeight;
        zone.grid.borderBand = settings.borderBand;
        zone.grid.wallOffset = settings.wallOffset;
        zone.calculateWalls = settings.surfaces;
        zone.calculateCeiling = settings.surfaces;
        zone.calculateFloor = settings.surfaces;
    }
}

/// A Zone without room for a point, or with its work plane in the ceiling, would look like one
/// without light.
std::string ZoneNotice(const Calculation& calculation, std::size_t zone) {
    const StudyZone& studied = calculation.study.zones[zone];
    const std::size_t plane = Simulation::WorkPlaneOf(calculation.built, zone);
    if (Simulation::ActiveNodeCount(calculation.built.scene.sensorPlanes[plane].grid) == 0) {
        return "Zona \"" + studied.name + "\": nenhum ponto de cálculo cabe no contorno";
    }
    if (studied.grid.workPlaneHeight >= studied.height) {
        return "Zona \"" + studied.name + "\": o plano de trabalho a " +
               Simulation::FormatDecimal(studied.grid.workPlaneHeight, 2) +
               " m não fica abaixo do teto, a " + Simulation::FormatDecimal(studied.height, 2) +
               " m";
    }
    return "";
}

std::string ReflectionNotice(const Calculation& calculation) {
    Simulation::SimulationOptions options;
    options.engine = calculation.study.engine;
    return Simulation::ReflectionWarning(calculation.built.scene, options);
}

/// What the reader of the results should know of the points and of the engine.
std::vector<std::string> PointNotices(const Calculation& calculation) {
    std::vector<std::string> notices = calculation.built.notices;
    for (std::size_t i = 0; i < calculation.study.zones.size(); ++i) {
        notices.push_back(ZoneNotice(calculation, i));
    }
    notices.push_back(ReflectionNotice(calculation));
    std::erase(notices, "");
    return notices;
}

} // namespace

bool CollectZonesAndLuminaires(Calculation& calculation, std::vector<Host::Guid>& luminaireGuids) {
    std::vector<std::string> log;
    calculation.zones = Archicad::CollectZones(log);
    if (calculation.zones.empty()) {
        return Refuse("Nenhuma Zona para calcular. Selecione as Zonas (ou deixe a selecao vazia "
                      "para usar todas do pavimento atual).");
    }
    std::set<std::int32_t> floors;
    for (const Archicad::ZoneRecord& zone : calculation.zones) {
        floors.insert(zone.floorIndex);
        calculation.study.zones.push_back(StudyZoneOf(zone));
    }
    calculation.study.luminaires =
        Archicad::CollectLuminaires({floors.begin(), floors.end()}, luminaireGuids, log);
    ReportLines(log);
    std::copy_if(log.begin(), log.end(), std::back_inserter(calculation.notices),
                 TellsOfMissingLight);
    if (calculation.study.luminaires.empty()) {
        return Refuse("Nenhuma luminaria Vantoro ligada no(s) pavimento(s) das Zonas. Crie "
                      "luminarias com \"Importar luminaria\" ou \"Adicionar fotometria IES\".");
    }
    return true;
}

bool FindRadiance(Calculation& calculation) {
    calculation.installation = Radiance::FindInstallation(Archicad::AddOnFolder());
    if (!calculation.installation.complete) {
        return Refuse("Radiance nao encontrado ou incompleto. Rode \"Diagnostico: verificar "
                      "instalacao do Radiance\".");
    }
    return true;
}

bool AskSettings(Calculation& calculation) {
    CalculationDialog dialog(std::to_string(calculation.zones.size()) + " zona(s) e " +
                                 std::to_string(CountLuminaires(calculation.study.luminaires)) +
                                 " luminaria(s) Vantoro ligada(s) no(s) pavimento(s) dessas zonas.",
                             false, false);
    if (!dialog.Invoke()) {
        return Cancel(calculation);
    }
    calculation.settings = dialog.Settings();
    calculation.study.levels = calculation.settings.levels;
    calculation.study.glare = calculation.settings.ugr;
    calculation.study.engine = Archicad::LoadEngineSettings();
    return true;
}

bool AskActivities(Calculation& calculation) {
    Simulation::ReferenceStandard standard = Simulation::ReferenceStandard::Brazilian;
    Simulation::ZoneRequirementMap stored = Archicad::LoadZoneTasks(standard);
    calculation.study.standard = standard;
    if (!calculation.settings.verify) {
        return true;
    }
    std::vector<Simulation::ZoneName> names;
    for (const Archicad::ZoneRecord& zone : calculation.zones) {
        names.push_back({Archicad::ZoneKey(zone.guid), zone.name});
    }
    ZoneRequirementDialog dialog(Simulation::PrepareRequirements(names, stored), standard);
    if (!dialog.Invoke()) {
        return Cancel(calculation);
    }
    calculation.study.standard = dialog.Standard();
    TakeActivities(dialog.Rows(), calculation.study);
    Simulation::StoreRequirements(dialog.Rows(), stored);
    CheckError("Guardar as atividades das Zonas no projeto",
               Archicad::SaveZoneTasks(stored, dialog.Standard()));
    return true;
}

bool CollectModel(Calculation& calculation, const std::vector<Host::Guid>& luminaireGuids) {
    Progress("dialogos aceitos; coletando geometria");
    Simulation::Scene scene;
    std::vector<std::string> log;
    Archicad::CollectGeometry(calculation.zones, luminaireGuids,
                              calculation.settings.workPlaneHeight, scene, calculation.reflectances,
                              log);
    Progress("geometria coletada: " + std::to_string(scene.surfaces.size()) + " triangulo(s)");
    calculation.ceilings = Archicad::DetectCeilings(calculation.zones, scene.surfaces,
                                                    calculation.settings.surfaces, log);
    const bool goesOn = Archicad::ReviewReflectances(calculation.reflectances, calculation.settings,
                                                     ShowReflectanceDialog, scene.materials, log);
    ReportLines(log);
    calculation.study.surfaces = std::move(scene.surfaces);
    calculation.study.materials = std::move(scene.materials);
    return goesOn || Cancel(calculation);
}

void BuildPoints(Calculation& calculation) {
    CompleteZones(calculation);
    calculation.built = Simulation::BuildStudyScene(calculation.study);
    const std::vector<std::string> notices = PointNotices(calculation);
    calculation.notices.insert(calculation.notices.end(), notices.begin(), notices.end());
    ReportLines(notices);
    ReportLine("calculo: " + std::to_string(calculation.zones.size()) + " zona(s), " +
               std::to_string(CountLuminaires(calculation.study.luminaires)) + " luminaria(s)");
    Progress("radiance: " + std::to_string(calculation.built.scene.sensorPlanes.size()) +
             " malha(s)");
}

} // namespace Merivane::Commands
