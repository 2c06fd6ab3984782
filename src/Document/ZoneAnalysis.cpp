#include "Document/ZoneAnalysis.hpp"

#include <algorithm>

#include "Document/SurfaceReference.hpp"
#include "Simulation/Verification/TaskSearch.hpp"

namespace Merivane::Document {

namespace {

Simulation::PointStatistics WorkPlaneStatistics(const BuiltScene& built,
                                                const Simulation::SimulationResult& result,
                                                std::size_t zone) {
    for (std::size_t i = 0; i < built.planes.size() && i < result.zones.size(); ++i) {
        if (built.planes[i].zone == zone && built.planes[i].kind == PlaneKind::WorkPlane) {
            return result.zones[i].statistics;
        }
    }
    return {};
}

/// Reflected light alone makes the background. Both values are estimates, so that their difference
/// can fall below 0 where next to nothing is reflected.
double ReflectedIlluminance(const Simulation::SimulationResult& result, std::size_t point) {
    if (point >= result.pointIlluminance.size() || point >= result.pointDirectIlluminance.size()) {
        return 0.0;
    }
    return std::max(result.pointIlluminance[point] - result.pointDirectIlluminance[point], 0.0);
}

std::vector<Simulation::RoomObserver>
ObserversOf(const BuiltScene& built, const Simulation::SimulationResult& result, std::size_t zone) {
    std::vector<Simulation::RoomObserver> observers;
    for (const SceneObserver& seen : built.observers) {
        if (seen.zone == zone) {
            observers.push_back(
                {seen.observer, seen.placed, ReflectedIlluminance(result, seen.point)});
        }
    }
    return observers;
}

} // namespace

ZoneAnalysis AnalyseZone(const SceneDocument& document, const BuiltScene& built,
                         const Simulation::SimulationResult& result, std::size_t zone,
                         bool explain) {
    const DocumentZone& asked = document.zones[zone];
    const Simulation::ZoneSpace space = SpaceOf(asked);
    ZoneAnalysis analysis;
    analysis.task = Simulation::FindTask(asked.task.requirement.taskId);
    analysis.statistics = WorkPlaneStatistics(built, result, zone);
    analysis.glare = Simulation::AnalyseZoneGlare(
        space, built.scene, ObserversOf(built, result, zone), analysis.task != nullptr,
        analysis.task != nullptr ? analysis.task->ugrLimit : 0, explain);
    analysis.verification = Simulation::VerifyZoneOfScene(
        space, built.scene,
        {asked.task.requirement, analysis.statistics, analysis.glare.hasUgr, analysis.glare.ugr,
         asked.grid.workPlaneHeight});
    analysis.surfaces = SurfaceRows(built, result, zone, analysis.task);
    return analysis;
}

bool MeetsRequirements(const ZoneAnalysis& analysis) {
    return Simulation::VerificationPasses(analysis.verification.rows);
}

std::string OverallState(const ZoneAnalysis& analysis) {
    if (analysis.verification.rows.empty()) {
        return "";
    }
    return MeetsRequirements(analysis) ? "ATENDE" : "NÃO ATENDE";
}

ExplainedRoom ExplainZone(const std::string& zoneName, const ZoneAnalysis& analysis,
                          const Simulation::Scene& scene) {
    ExplainedRoom room;
    room.title = "Ofuscamento na Zona \"" + zoneName + "\", posições reais";
    for (const Simulation::ZoneLight& light : analysis.glare.lights) {
        room.lights.push_back({scene.luminaires[light.luminaire].displayName, light.center});
    }
    for (const Simulation::ObserverGlareRecord& record : analysis.glare.observers) {
        room.observers.push_back({record.observer.observer, record.result, record.terms});
    }
    return room;
}

} // namespace Merivane::Document
