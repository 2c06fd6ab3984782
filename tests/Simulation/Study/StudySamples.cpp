#include "StudySamples.hpp"

#include "Simulation/Verification/ZoneRequirement.hpp"

namespace Merivane::Tests {

using namespace Simulation;

namespace {

/// A square panel of 1000 cd straight down, cosine all round.
SceneLuminaire Panel() {
    SceneLuminaire luminaire;
    luminaire.id = "painel";
    luminaire.displayName = "Painel";
    Photometry::IesFile& ies = luminaire.photometry;
    ies.lampCount = 1;
    ies.lumensPerLamp = 3141.6;
    ies.verticalAngles = {0.0, 45.0, 90.0};
    ies.horizontalAngles = {0.0};
    ies.candela = {{1000.0, 707.1, 0.0}};
    ies.width = 0.6;
    ies.length = 0.6;
    luminaire.x = 3.0;
    luminaire.y = 2.0;
    luminaire.z = 2.9;
    return luminaire;
}

} // namespace

LightingStudy OfficeStudy() {
    LightingStudy study;
    StudyZone zone;
    zone.name = "Sala";
    zone.outline = {{{0, 0}, {6, 0}, {6, 4}, {0, 4}}, {}};
    zone.height = 3.0;
    zone.grid.spacing = 0.25;
    zone.task.requirement = RequirementFromTask("s22.2");
    study.zones.push_back(zone);
    study.luminaires.push_back(Panel());
    study.points.push_back({1.0, 1.0, 1.0, 0.0, 0.0, 1.0});
    study.observers = {{1.0, 2.0, 1.2, 1.0, 0.0, "Mesa"}, {9.0, 2.0, 1.2, 1.0, 0.0, "Rua"}};
    study.levels = {100.0, 300.0};
    return study;
}

SimulationResult SlopedResult(const StudyScene& built, double slope) {
    SimulationResult result;
    result.success = true;
    for (const SensorPlane& plane : built.scene.sensorPlanes) {
        ZoneResult zone{plane.name, {}, {}};
        for (const Point2D& point : ActivePoints(plane.grid)) {
            zone.illuminance.push_back(100.0 + slope * point.x);
        }
        zone.statistics = TaskStatistics(plane.grid, zone.illuminance);
        result.zones.push_back(zone);
    }
    result.pointIlluminance.assign(built.scene.points.size(), 80.0);
    result.pointDirectIlluminance.assign(built.scene.points.size(), 30.0);
    return result;
}

} // namespace Merivane::Tests
