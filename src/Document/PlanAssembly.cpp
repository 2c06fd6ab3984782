#include "Document/PlanAssembly.hpp"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "Document/PlanScene.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/Study/GlareSummary.hpp"
#include "Simulation/Study/SummaryTexts.hpp"

namespace Merivane::Document {

namespace {

constexpr double SameLevel = 0.01; // m
constexpr double CutHeight = 1.0;  // m above the floor

/// A level with the Zones that stand on it, as indices into the document.
struct Floor {
    double level = 0.0;
    double top = 0.0;    ///< highest ceiling
    double lowest = 0.0; ///< height of the lowest room
    std::vector<std::size_t> zones;
};

std::vector<Floor> GroupFloors(const Simulation::LightingStudy& document) {
    std::vector<std::size_t> order(document.zones.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        order[i] = i;
    }
    std::stable_sort(order.begin(), order.end(), [&document](std::size_t a, std::size_t b) {
        return document.zones[a].floorLevel < document.zones[b].floorLevel;
    });
    std::vector<Floor> floors;
    for (const std::size_t index : order) {
        const Simulation::StudyZone& zone = document.zones[index];
        if (floors.empty() || zone.floorLevel > floors.back().level + SameLevel) {
            floors.push_back({zone.floorLevel, zone.floorLevel, zone.height, {}});
        }
        Floor& floor = floors.back();
        floor.top = std::max(floor.top, zone.floorLevel + zone.height);
        floor.lowest = std::min(floor.lowest, zone.height);
        floor.zones.push_back(index);
    }
    for (Floor& floor : floors) {
        std::sort(floor.zones.begin(), floor.zones.end()); // in the document's order
    }
    return floors;
}

/// Up to where luminaires belong to a floor. Fittings are let into ceilings, so half a metre above
/// the room still counts, but never what stands on the floor above.
double LuminaireLimit(const std::vector<Floor>& floors, const Floor& floor) {
    double limit = floor.top + 0.5;
    for (const Floor& other : floors) {
        if (other.level >= floor.top - SameLevel) {
            limit = std::min(limit, std::max(floor.top, other.level - SameLevel));
        }
    }
    return limit;
}

/// Everything that the plans are made of.
struct PlanSources {
    const Simulation::LightingStudy& document;
    const Simulation::StudyScene& built;
    const Simulation::SimulationResult& result;
    const std::vector<Simulation::ZoneAnalysis>& analyses;
};

PlanVerdict AssembleVerdict(const Simulation::ZoneAnalysis& analysis,
                            Simulation::ReferenceStandard standard) {
    PlanVerdict verdict;
    verdict.activity = analysis.task != nullptr ? analysis.task->activity : "";
    verdict.standard = Simulation::ReferenceStandardName(standard);
    verdict.rows = analysis.verification.rows;
    verdict.notes = Simulation::GlareSummary(analysis);
    for (const std::string& warning : analysis.glare.warnings) {
        verdict.notes.push_back(Simulation::GlareWarningText(warning));
    }
    const std::vector<std::string>& screens = analysis.verification.notes;
    verdict.notes.insert(verdict.notes.end(), screens.begin(), screens.end());
    verdict.surfaces = analysis.surfaces;
    return verdict;
}

PlanZone AssembleZone(const PlanSources& sources, std::size_t zoneIndex) {
    const auto& [document, built, result, analyses] = sources;
    const Simulation::StudyZone& zone = document.zones[zoneIndex];
    PlanZone plan;
    plan.name = zone.name;
    plan.polygon = zone.outline;
    plan.workPlaneHeight = zone.grid.workPlaneHeight;
    plan.borderBand = zone.grid.borderBand;
    for (std::size_t i = 0; i < built.planes.size() && i < result.zones.size(); ++i) {
        if (built.planes[i].zone == zoneIndex &&
            built.planes[i].kind == Simulation::PlaneKind::WorkPlane) {
            plan.grid = built.scene.sensorPlanes[i].grid;
            plan.values = result.zones[i].illuminance;
            plan.statistics = result.zones[i].statistics;
        }
    }
    if (zoneIndex < analyses.size()) {
        plan.verdict = AssembleVerdict(analyses[zoneIndex], document.standard);
    }
    return plan;
}

std::vector<PlanLuminaire> AssembleLuminaires(const Simulation::Scene& scene, double bottom,
                                              double top) {
    Simulation::Scene floorScene;
    for (const Simulation::SceneLuminaire& luminaire : scene.luminaires) {
        const double z = luminaire.z + luminaire.contract.centerZ;
        if (z >= bottom && z <= top) {
            floorScene.luminaires.push_back(luminaire);
        }
    }
    return CollectPlanLuminaires(floorScene);
}

PlanContents AssembleFloor(const PlanSources& sources, const Floor& floor, double luminaireLimit) {
    const Simulation::Scene& scene = sources.built.scene;
    PlanContents contents;
    contents.title = sources.document.name;
    contents.floor = "Nível " + Simulation::FormatDecimal(floor.level, 2) + " m";
    for (const std::size_t zone : floor.zones) {
        contents.zones.push_back(AssembleZone(sources, zone));
    }
    contents.luminaires = AssembleLuminaires(scene, floor.level - SameLevel, luminaireLimit);
    contents.segments = CutSurfaces(scene, floor.level + std::min(CutHeight, floor.lowest / 2.0));
    contents.levels = sources.document.levels;
    return contents;
}

} // namespace

std::vector<FloorPlan> AssemblePlans(const Simulation::LightingStudy& document,
                                     const Simulation::StudyScene& built,
                                     const Simulation::SimulationResult& result,
                                     const std::vector<Simulation::ZoneAnalysis>& analyses,
                                     const std::vector<std::string>& notes) {
    const PlanSources sources{document, built, result, analyses};
    const std::vector<Floor> floors = GroupFloors(document);
    std::vector<FloorPlan> plans;
    for (const Floor& floor : floors) {
        FloorPlan plan;
        plan.level = floor.level;
        plan.fileName =
            floors.size() == 1 ? "planta" : "planta-" + std::to_string(plans.size() + 1);
        plan.contents = AssembleFloor(sources, floor, LuminaireLimit(floors, floor));
        plan.contents.notes = notes;
        plans.push_back(std::move(plan));
    }
    return plans;
}

} // namespace Merivane::Document
