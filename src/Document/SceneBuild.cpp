#include "Document/SceneBuild.hpp"

#include "Document/DocumentFields.hpp"

namespace Merivane::Document {

namespace {

using Simulation::LightingStudy;
using Simulation::PlaneKind;
using Simulation::StudyZone;

/// The Zone as a sentence names it: "zonas[1] (\"Sala\")".
std::string ZoneText(const LightingStudy& study, std::size_t zone) {
    return "zonas[" + std::to_string(zone) + "] (\"" + study.zones[zone].name + "\")";
}

/// Refuses a lattice that would take all memory before it is laid.
bool CheckNodeCount(const std::string& zoneText, PlaneKind kind,
                    const Simulation::Polygon2D& polygon, const Simulation::GridSettings& settings,
                    std::string& error) {
    const double count = Simulation::GridNodeCount(polygon, settings);
    if (count <= static_cast<double>(Simulation::MaximumGridNodes)) {
        return true;
    }
    error = zoneText + ": " + PlaneKindName(kind) + " com " + NumberText(count) +
            " nós; espera-se no máximo " +
            NumberText(static_cast<double>(Simulation::MaximumGridNodes)) +
            (kind == PlaneKind::WorkPlane ? " (aumente o espacamento)" : "");
    return false;
}

bool CheckNodeCounts(const LightingStudy& study, std::string& error) {
    for (std::size_t index = 0; index < study.zones.size(); ++index) {
        const StudyZone& zone = study.zones[index];
        const std::string zoneText = ZoneText(study, index);
        if (!CheckNodeCount(zoneText, PlaneKind::WorkPlane, zone.outline, zone.grid, error)) {
            return false;
        }
        for (const Simulation::ZoneSurface& surface : Simulation::WantedSurfaces(zone)) {
            if (!CheckNodeCount(zoneText, Simulation::KindOfSurface(surface), surface.polygon,
                                Simulation::SurfaceGridSettings(surface, zone.grid.wallOffset),
                                error)) {
                return false;
            }
        }
    }
    return true;
}

bool CheckWorkPlanes(const LightingStudy& study, const Simulation::StudyScene& built,
                     std::string& error) {
    for (std::size_t zone = 0; zone < study.zones.size(); ++zone) {
        const std::size_t plane = Simulation::WorkPlaneOf(built, zone);
        if (Simulation::ActiveNodeCount(built.scene.sensorPlanes[plane].grid) == 0) {
            error = ZoneText(study, zone) +
                    ": a Zona está vazia: nenhum ponto de cálculo cabe no contorno " +
                    "(diminua o espacamento)";
            return false;
        }
    }
    return true;
}

} // namespace

bool BuildScene(const LightingStudy& study, Simulation::StudyScene& built, std::string& error) {
    if (!CheckNodeCounts(study, error)) {
        return false;
    }
    built = Simulation::BuildStudyScene(study);
    return CheckWorkPlanes(study, built, error);
}

} // namespace Merivane::Document
