#include "Document/SceneBuild.hpp"

#include <algorithm>
#include <optional>
#include <utility>

#include "Document/DocumentFields.hpp"
#include "Simulation/Glare/ZoneGlare.hpp"
#include "Simulation/ZoneSurfaces.hpp"

namespace Merivane::Document {

namespace {

using Simulation::SensorPlane;
using Simulation::ZoneSurface;
using Simulation::ZoneSurfaceKind;

/// The Zone as a sentence names it: "zonas[1] (\"Sala\")".
std::string ZoneText(const SceneDocument& document, std::size_t zone) {
    return "zonas[" + std::to_string(zone) + "] (\"" + document.zones[zone].name + "\")";
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

bool AddWorkPlane(const SceneDocument& document, std::size_t zoneIndex, BuiltScene& built,
                  std::string& error) {
    const DocumentZone& zone = document.zones[zoneIndex];
    const std::string zoneText = ZoneText(document, zoneIndex);
    if (!CheckNodeCount(zoneText, PlaneKind::WorkPlane, zone.outline, zone.grid, error)) {
        return false;
    }
    SensorPlane plane;
    plane.name = zone.name;
    plane.grid = Simulation::BuildCalculationGrid(zone.outline, zone.floorLevel, zone.grid);
    if (Simulation::ActiveNodeCount(plane.grid) == 0) {
        error = zoneText + ": a Zona está vazia: nenhum ponto de cálculo cabe no contorno " +
                "(diminua o espacamento)";
        return false;
    }
    built.scene.sensorPlanes.push_back(std::move(plane));
    built.planes.push_back({zoneIndex, PlaneKind::WorkPlane, 0});
    return true;
}

PlaneKind KindOf(const ZoneSurface& surface) {
    switch (surface.kind) {
    case ZoneSurfaceKind::Ceiling:
        return PlaneKind::Ceiling;
    case ZoneSurfaceKind::Floor:
        return PlaneKind::Floor;
    default:
        return PlaneKind::Wall;
    }
}

bool IsWanted(const DocumentZone& zone, PlaneKind kind) {
    switch (kind) {
    case PlaneKind::Wall:
        return zone.calculateWalls;
    case PlaneKind::Ceiling:
        return zone.calculateCeiling;
    case PlaneKind::Floor:
        return zone.calculateFloor;
    default:
        return false;
    }
}

std::string SurfaceName(const DocumentZone& zone, PlaneKind kind, int wall) {
    const std::string name = zone.name + " " + PlaneKindName(kind);
    return kind == PlaneKind::Wall ? name + " " + std::to_string(wall) : name;
}

bool AddSurfaces(const SceneDocument& document, std::size_t zoneIndex, BuiltScene& built,
                 std::string& error) {
    const DocumentZone& zone = document.zones[zoneIndex];
    const double offset = zone.grid.wallOffset;
    for (const ZoneSurface& surface :
         Simulation::BuildZoneSurfaces(zone.outline, zone.floorLevel, zone.height)) {
        const PlaneKind kind = KindOf(surface);
        if (!IsWanted(zone, kind)) {
            continue;
        }
        if (!CheckNodeCount(ZoneText(document, zoneIndex), kind, surface.polygon,
                            Simulation::SurfaceGridSettings(surface, offset), error)) {
            return false;
        }
        built.scene.sensorPlanes.push_back(Simulation::SurfaceSensorPlane(
            Simulation::BuildSurfaceGrid(surface, offset), SurfaceName(zone, kind, surface.index)));
        built.planes.push_back({zoneIndex, kind, surface.index});
    }
    return true;
}

/// The views of the document's observers, each made when the first Zone holds it.
using PlacedViews = std::vector<std::optional<std::size_t>>;

std::size_t AddView(const Simulation::UgrObserver& observer, BuiltScene& built) {
    built.scene.points.push_back(Simulation::ObserverView(observer));
    return built.scene.points.size() - 1;
}

void AddObserversOfZone(const SceneDocument& document, std::size_t zone, PlacedViews& views,
                        BuiltScene& built) {
    const Simulation::ZoneSpace space = SpaceOf(document.zones[zone]);
    for (const Simulation::UgrObserver& observer : Simulation::MidWallObservers(space)) {
        built.observers.push_back({zone, AddView(observer, built), false, observer});
    }
    for (std::size_t i = 0; i < views.size(); ++i) {
        const Simulation::UgrObserver& observer = document.observers[i];
        if (!Simulation::HoldsObserver(space, observer)) {
            continue;
        }
        if (!views[i]) {
            views[i] = AddView(observer, built);
        }
        built.observers.push_back({zone, *views[i], true, observer});
    }
}

void AddObservers(const SceneDocument& document, BuiltScene& built) {
    PlacedViews views(document.observers.size());
    for (std::size_t zone = 0; zone < document.zones.size(); ++zone) {
        AddObserversOfZone(document, zone, views, built);
    }
    const auto ignored = std::count(views.begin(), views.end(), std::nullopt);
    if (ignored > 0) {
        built.notices.push_back(std::to_string(ignored) +
                                " observador(es) UGR fora das Zonas calculadas (ou com o olho fora "
                                "da altura da Zona): ignorado(s)");
    }
}

} // namespace

Simulation::ZoneSpace SpaceOf(const DocumentZone& zone) {
    return {zone.name, zone.outline, zone.floorLevel, zone.height};
}

std::string PlaneKindName(PlaneKind kind) {
    switch (kind) {
    case PlaneKind::WorkPlane:
        return "plano de trabalho";
    case PlaneKind::Wall:
        return "parede";
    case PlaneKind::Ceiling:
        return "teto";
    case PlaneKind::Floor:
        return "piso";
    }
    return "";
}

bool BuildScene(const SceneDocument& document, BuiltScene& built, std::string& error) {
    built = {};
    built.scene.materials = document.materials;
    built.scene.surfaces = document.surfaces;
    built.scene.luminaires = document.luminaires;
    built.scene.points = document.points;
    built.pointCount = document.points.size();
    for (std::size_t zone = 0; zone < document.zones.size(); ++zone) {
        if (!AddWorkPlane(document, zone, built, error) ||
            !AddSurfaces(document, zone, built, error)) {
            return false;
        }
    }
    AddObservers(document, built);
    return true;
}

} // namespace Merivane::Document
