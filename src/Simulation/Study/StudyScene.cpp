#include "Simulation/Study/StudyScene.hpp"

#include <algorithm>
#include <optional>
#include <utility>

#include "Simulation/Glare/RoomObservers.hpp"

namespace Merivane::Simulation {

namespace {

bool IsWanted(const StudyZone& zone, PlaneKind kind) {
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

std::string SurfaceName(const StudyZone& zone, PlaneKind kind, int wall) {
    const std::string name = zone.name + " " + PlaneKindName(kind);
    return kind == PlaneKind::Wall ? name + " " + std::to_string(wall) : name;
}

void AddWorkPlane(const LightingStudy& study, std::size_t zoneIndex, StudyScene& built) {
    const StudyZone& zone = study.zones[zoneIndex];
    SensorPlane plane;
    plane.name = zone.name;
    plane.grid = BuildCalculationGrid(zone.outline, zone.floorLevel, zone.grid);
    built.scene.sensorPlanes.push_back(std::move(plane));
    built.planes.push_back({zoneIndex, PlaneKind::WorkPlane, 0});
}

void AddSurfaces(const LightingStudy& study, std::size_t zoneIndex, StudyScene& built) {
    const StudyZone& zone = study.zones[zoneIndex];
    for (const ZoneSurface& surface : WantedSurfaces(zone)) {
        const PlaneKind kind = KindOfSurface(surface);
        built.scene.sensorPlanes.push_back(
            SurfaceSensorPlane(BuildSurfaceGrid(surface, zone.grid.wallOffset),
                               SurfaceName(zone, kind, surface.index)));
        built.planes.push_back({zoneIndex, kind, surface.index});
    }
}

/// The views of the study's observers, each made when the first Zone holds it.
using PlacedViews = std::vector<std::optional<std::size_t>>;

std::size_t AddView(const UgrObserver& observer, StudyScene& built) {
    built.scene.points.push_back(ObserverView(observer));
    return built.scene.points.size() - 1;
}

void AddObserversOfZone(const LightingStudy& study, std::size_t zone, PlacedViews& views,
                        StudyScene& built) {
    const ZoneSpace space = SpaceOf(study.zones[zone]);
    for (const UgrObserver& observer : MidWallObservers(space)) {
        built.observers.push_back({zone, AddView(observer, built), false, observer});
    }
    for (std::size_t i = 0; i < views.size(); ++i) {
        const UgrObserver& observer = study.observers[i];
        if (!HoldsObserver(space, observer)) {
            continue;
        }
        if (!views[i]) {
            views[i] = AddView(observer, built);
        }
        built.observers.push_back({zone, *views[i], true, observer});
    }
}

void AddObservers(const LightingStudy& study, StudyScene& built) {
    PlacedViews views(study.observers.size());
    for (std::size_t zone = 0; zone < study.zones.size(); ++zone) {
        AddObserversOfZone(study, zone, views, built);
    }
    const auto ignored = std::count(views.begin(), views.end(), std::nullopt);
    if (ignored > 0) {
        built.notices.push_back(std::to_string(ignored) +
                                " observador(es) UGR fora das Zonas calculadas (ou com o olho fora "
                                "da altura da Zona): ignorado(s)");
    }
}

} // namespace

ZoneSpace SpaceOf(const StudyZone& zone) {
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

PlaneKind KindOfSurface(const ZoneSurface& surface) {
    switch (surface.kind) {
    case ZoneSurfaceKind::Ceiling:
        return PlaneKind::Ceiling;
    case ZoneSurfaceKind::Floor:
        return PlaneKind::Floor;
    default:
        return PlaneKind::Wall;
    }
}

std::vector<ZoneSurface> WantedSurfaces(const StudyZone& zone) {
    std::vector<ZoneSurface> surfaces =
        BuildZoneSurfaces(zone.outline, zone.floorLevel, zone.height);
    std::erase_if(surfaces, [&zone](const ZoneSurface& surface) {
        return !IsWanted(zone, KindOfSurface(surface));
    });
    return surfaces;
}

StudyScene BuildStudyScene(const LightingStudy& study) {
    StudyScene built;
    built.scene.materials = study.materials;
    built.scene.surfaces = study.surfaces;
    built.scene.luminaires = study.luminaires;
    built.scene.points = study.points;
    built.pointCount = study.points.size();
    for (std::size_t zone = 0; zone < study.zones.size(); ++zone) {
        AddWorkPlane(study, zone, built);
        AddSurfaces(study, zone, built);
    }
    if (study.glare) {
        AddObservers(study, built);
    }
    return built;
}

std::size_t WorkPlaneOf(const StudyScene& built, std::size_t zone) {
    const auto found =
        std::find_if(built.planes.begin(), built.planes.end(), [zone](const PlaneRole& role) {
            return role.zone == zone && role.kind == PlaneKind::WorkPlane;
        });
    return static_cast<std::size_t>(found - built.planes.begin());
}

} // namespace Merivane::Simulation
