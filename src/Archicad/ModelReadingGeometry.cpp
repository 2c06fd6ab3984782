#include "Archicad/ModelReadingGeometry.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <set>
#include <utility>

#include "Archicad/FaceReading.hpp"
#include "Archicad/FloorPlanDatabase.hpp"
#include "Archicad/HoleJoining.hpp"
#include "Archicad/ModelReadingSurfaces.hpp"
#include "Archicad/OlderNames.hpp"
#include "Archicad/ZoneSight.hpp"
#include "Host/Attributes.hpp"
#include "Host/Elements.hpp"
#include "Host/Model3D.hpp"
#include "Simulation/SurfaceGeometry.hpp"

namespace Merivane::Archicad {

namespace {

using Host::ElementType;
using Simulation::Point3D;

constexpr std::array<ElementType, 16> TypesInOrder = {
    ElementType::Wall,    ElementType::Column, ElementType::Beam,        ElementType::Slab,
    ElementType::Roof,    ElementType::Shell,  ElementType::Mesh,        ElementType::Morph,
    ElementType::Object,  ElementType::Lamp,   ElementType::CurtainWall, ElementType::Stair,
    ElementType::Railing, ElementType::Window, ElementType::Door,        ElementType::Skylight};

/// Those that have no body of their own: their parts have.
bool IsMadeOfParts(ElementType type) {
    return type == ElementType::Column || type == ElementType::Beam ||
           type == ElementType::CurtainWall || type == ElementType::Stair ||
           type == ElementType::Railing;
}

constexpr double SmallestDoubledArea = 1e-12; // m2
constexpr double LevelFace = 0.7;             // of the unit normal's z, from there up

struct Box {
    Host::Coordinate3D lowest;
    Host::Coordinate3D highest;
};

/// What lies around the Zones. Meets nothing when there are none.
Box BoxAround(const std::vector<ZoneRecord>& zones) {
    constexpr double far = std::numeric_limits<double>::infinity();
    Box box{{far, far, far}, {-far, -far, -far}};
    for (const ZoneRecord& zone : zones) {
        box.lowest.x = std::min(box.lowest.x, zone.minX - 1.0);
        box.lowest.y = std::min(box.lowest.y, zone.minY - 1.0);
        box.lowest.z = std::min(box.lowest.z, zone.baseLevel - 0.6);
        box.highest.x = std::max(box.highest.x, zone.maxX + 1.0);
        box.highest.y = std::max(box.highest.y, zone.maxY + 1.0);
        box.highest.z = std::max(box.highest.z, zone.baseLevel + zone.height + 1.5);
    }
    return box;
}

bool Meet(const Box& a, const Box& b) {
    return a.lowest.x <= b.highest.x && b.lowest.x <= a.highest.x && a.lowest.y <= b.highest.y &&
           b.lowest.y <= a.highest.y && a.lowest.z <= b.highest.z && b.lowest.z <= a.highest.z;
}

double LowestFloor(const std::vector<ZoneRecord>& zones) {
    double lowest = std::numeric_limits<double>::infinity();
    for (const ZoneRecord& zone : zones) {
        lowest = std::min(lowest, zone.baseLevel);
    }
    return lowest;
}

/// Layers that hold results of earlier calculations; those must not shade the new one.
std::set<Host::AttributeIndex> FindOwnLayers() {
    std::set<Host::AttributeIndex> own;
    std::vector<Host::AttributeIndex> layers;
    Host::ListAttributes(Host::AttributeType::Layer, layers);
    for (const Host::AttributeIndex index : layers) {
        Host::Layer layer;
        if (Host::GetLayer(index, layer) == Host::NoError && IsOwnLayerName(layer.name)) {
            own.insert(index);
        }
    }
    return own;
}

struct GeometryCounts {
    int elements = 0;
    int faces = 0;
    int withOpenings = 0;
    int own = 0;
    int withoutSurface = 0;
    int refused = 0; ///< on a hidden or locked layer
};

class GeometryCollector {
public:
    GeometryCollector(const std::vector<ZoneRecord>& zones,
                      const std::vector<Host::Guid>& excludedGuids, double ceilingMargin,
                      Simulation::Scene& filled,
                      std::vector<Simulation::SurfaceReflectance>& records)
        : excluded(excludedGuids.begin(), excludedGuids.end()), ownLayers(FindOwnLayers()),
          rooms(RoomsOfZones(zones)), around(BoxAround(zones)),
          floorPlane(LowestFloor(zones) + ceilingMargin), scene(filled),
          reflectances(records), mapper{&records, {}, {}} {}

    void CollectType(ElementType type) {
        std::vector<Host::Guid> guids;
        Host::ListElements(type, Host::ElementFilter::In3D, guids);
        for (const Host::Guid& guid : guids) {
            CollectElement(guid);
        }
    }

    void Tell(std::vector<std::string>& log) const {
        log.push_back("geometria: " + std::to_string(counts.elements) + " elemento(s), " +
                      std::to_string(counts.faces) + " face(s) (" +
                      std::to_string(counts.withOpenings) + " com aberturas), " +
                      std::to_string(reflectances.size()) + " superficie(s)");
        if (counts.own > 0) {
            log.push_back(std::to_string(counts.own) +
                          " elemento(s) do proprio Vantoro (camadas \"Vantoro - ...\") fora da "
                          "cena");
        }
        if (counts.withoutSurface > 0) {
            log.push_back(std::to_string(counts.withoutSurface) +
                          " face(s) sem Superficie: refletancia pela orientacao (piso 20%, parede "
                          "50%, teto 70%)");
        }
        if (counts.refused > 0) {
            log.push_back(std::to_string(counts.refused) +
                          " elemento(s) em camada oculta ou travada ficaram fora da cena");
        }
    }

private:
    bool IsAround(const Host::Guid& guid) const {
        Box box;
        return Host::GetBounds(guid, box.lowest, box.highest) == Host::NoError && Meet(box, around);
    }

    void CollectElement(const Host::Guid& guid) {
        Host::Element element;
        if (excluded.contains(guid) || Host::GetElement(guid, element) != Host::NoError) {
            return;
        }
        if (ownLayers.contains(element.header.layer)) {
            ++counts.own;
            return;
        }
        if (!IsAround(guid)) {
            return;
        }
        std::vector<Host::Guid> parts;
        if (IsMadeOfParts(element.header.type)) {
            Host::ListParts(guid, parts);
        }
        if (parts.empty()) {
            CollectBodies({guid});
            return;
        }
        parts.erase(std::remove_if(parts.begin(), parts.end(),
                                   [&](const Host::Guid& part) { return !IsAround(part); }),
                    parts.end());
        CollectBodies(parts);
    }

    /// The bodies of one element; it is told as refused when none of its parts gave its own.
    void CollectBodies(const std::vector<Host::Guid>& parts) {
        bool read = false;
        for (const Host::Guid& part : parts) {
            std::vector<Host::Body> bodies;
            if (Host::GetBodies(part, bodies) != Host::NoError) {
                continue;
            }
            read = true;
            for (const Host::Body& body : bodies) {
                for (const Host::BodyFace& face : body.faces) {
                    CollectFace(body, face);
                }
            }
        }
        counts.elements += read ? 1 : 0;
        counts.refused += read || parts.empty() ? 0 : 1;
    }

    void CollectFace(const Host::Body& body, const Host::BodyFace& face) {
        const std::vector<std::vector<Point3D>> contours = ReadContours(body, face);
        std::vector<Point3D> joined = JoinHoles(contours);
        if (joined.size() < 3) {
            return;
        }
        const Point3D normal = Simulation::NewellNormal(joined);
        const double length =
            std::sqrt(normal.x * normal.x + normal.y * normal.y + normal.z * normal.z);
        if (!(length >= SmallestDoubledArea)) {
            return;
        }
        const Point3D unit{normal.x / length, normal.y / length, normal.z / length};
        const Point3D middle = MeanPlace(contours[0]);
        const std::size_t record = RecordOf(face.surface, unit, middle);
        reflectances[record].area += length / 2.0;
        counts.faces += 1;
        counts.withOpenings += contours.size() > 1 ? 1 : 0;
        Simulation::SceneSurface& surface = scene.surfaces.emplace_back();
        surface.materialIndex = static_cast<std::int32_t>(record);
        surface.vertices = std::move(joined);
        surface.exteriorFace = !LooksIntoRoom(rooms, middle, unit);
    }

    std::size_t RecordOf(std::int32_t surface, const Point3D& unit, const Point3D& middle) {
        const std::int32_t record = SurfaceRecord(mapper, surface);
        if (record >= 0) {
            return static_cast<std::size_t>(record);
        }
        ++counts.withoutSurface;
        if (std::abs(unit.z) <= LevelFace) {
            return AddOrFindReflectance(reflectances, Simulation::MakeWallReflectance());
        }
        return AddOrFindReflectance(reflectances, middle.z < floorPlane
                                                      ? Simulation::MakeFloorReflectance()
                                                      : Simulation::MakeCeilingReflectance());
    }

    std::set<Host::Guid> excluded;
    std::set<Host::AttributeIndex> ownLayers;
    std::vector<ZoneRoom> rooms;
    Box around;
    double floorPlane = 0.0; ///< under it a level face without surface is floor [m]
    Simulation::Scene& scene;
    std::vector<Simulation::SurfaceReflectance>& reflectances;
    SurfaceMapper mapper;
    GeometryCounts counts;
};

} // namespace

void CollectGeometry(const std::vector<ZoneRecord>& zones,
                     const std::vector<Host::Guid>& excludedGuids, double ceilingMargin,
                     Simulation::Scene& scene,
                     std::vector<Simulation::SurfaceReflectance>& reflectances,
                     std::vector<std::string>& log) {
    const FloorPlanDatabase plan;
    GeometryCollector collector(zones, excludedGuids, ceilingMargin, scene, reflectances);
    for (const ElementType type : TypesInOrder) {
        collector.CollectType(type);
    }
    collector.Tell(log);
}

} // namespace Merivane::Archicad
