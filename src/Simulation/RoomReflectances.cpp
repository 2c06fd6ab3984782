#include "Simulation/RoomReflectances.hpp"

#include <cmath>
#include <cstddef>
#include <vector>

#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/SurfaceGeometry.hpp"

namespace Merivane::Simulation {

namespace {

// How far outside the Zone's box the middle of a face may lie [m]: Zones are often drawn to the
// middle of walls or to their inner faces, and slabs are thick.
constexpr double Margin = 0.3;

// |Nz| / |N| of a face: below the first it is a wall, from the second up it is level.
constexpr double WallLimit = 0.3;
constexpr double LevelLimit = 0.7;

/// Area-weighed sum of one kind of surface; areas are doubled throughout.
struct MeanSum {
    double area = 0.0;
    double reflected = 0.0;
};

void Add(MeanSum& sum, double area, const SceneMaterial& material) {
    sum.area += area;
    sum.reflected += GreyReflectance(material) * area;
}

void SetMean(const MeanSum& sum, double& mean) {
    if (sum.area > 0.0) {
        mean = sum.reflected / sum.area;
    }
}

Point3D MiddleOf(const std::vector<Point3D>& vertices) {
    Point3D middle;
    for (const Point3D& vertex : vertices) {
        middle.x += vertex.x;
        middle.y += vertex.y;
        middle.z += vertex.z;
    }
    const auto count = static_cast<double>(vertices.size());
    return {middle.x / count, middle.y / count, middle.z / count};
}

bool IsNear(const ZoneSpace& zone, const Bounds2D& plan, const Point3D& place) {
    constexpr double reach = Margin + OnBoundary; // the mean of coordinates is rounded
    return place.x >= plan.minimum.x - reach && place.x <= plan.maximum.x + reach &&
           place.y >= plan.minimum.y - reach && place.y <= plan.maximum.y + reach &&
           place.z >= zone.floorLevel - reach && place.z <= zone.floorLevel + zone.height + reach;
}

/// The opaque material of a surface that has at least 3 vertices, otherwise null.
const SceneMaterial* DiffuseMaterial(const Scene& scene, const SceneSurface& surface) {
    const auto index = static_cast<std::size_t>(surface.materialIndex);
    if (surface.materialIndex < 0 || index >= scene.materials.size() ||
        surface.vertices.size() < 3 || scene.materials[index].isGlass) {
        return nullptr;
    }
    return &scene.materials[index];
}

} // namespace

RoomReflectances MeanSurfaceReflectances(const Scene& scene, const ZoneSpace& zone,
                                         double splitHeight) {
    const Bounds2D plan = OuterBounds(zone.polygon);
    MeanSum ceiling;
    MeanSum walls;
    MeanSum floor;
    for (const SceneSurface& surface : scene.surfaces) {
        const SceneMaterial* material = DiffuseMaterial(scene, surface);
        if (material == nullptr) {
            continue;
        }
        const Point3D normal = NewellNormal(surface.vertices);
        const double area = std::hypot(normal.x, normal.y, normal.z);
        const Point3D middle = MiddleOf(surface.vertices);
        if (!(area > 0.0) || !IsNear(zone, plan, middle)) {
            continue;
        }
        const double levelness = std::abs(normal.z) / area;
        if (levelness < WallLimit) {
            Add(walls, area, *material);
        } else if (levelness >= LevelLimit) {
            const bool isLow = middle.z < zone.floorLevel + splitHeight;
            Add(isLow ? floor : ceiling, area, *material);
        }
    }
    RoomReflectances means;
    SetMean(ceiling, means.ceiling);
    SetMean(walls, means.walls);
    SetMean(floor, means.floor);
    return means;
}

} // namespace Merivane::Simulation
