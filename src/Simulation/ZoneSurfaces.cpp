#include "Simulation/ZoneSurfaces.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Simulation {

namespace {

constexpr double ShortestWall = 0.2;

ZoneSurface BuildWall(const Polygon2D& zone, const Edge2D& edge, double length, double floorLevel,
                      double height) {
    ZoneSurface wall;
    wall.kind = ZoneSurfaceKind::Wall;
    wall.vertical = true;
    wall.directionX = (edge.to.x - edge.from.x) / length;
    wall.directionY = (edge.to.y - edge.from.y) / length;
    wall.normalX = -wall.directionY;
    wall.normalY = wall.directionX;
    const Point2D beside{0.5 * (edge.from.x + edge.to.x) + 0.02 * wall.normalX,
                         0.5 * (edge.from.y + edge.to.y) + 0.02 * wall.normalY};
    if (!IsInsidePolygon(zone, beside)) {
        wall.normalX = -wall.normalX;
        wall.normalY = -wall.normalY;
    }
    const double top = floorLevel + height;
    wall.polygon.outer = {{0.0, floorLevel}, {length, floorLevel}, {length, top}, {0.0, top}};
    wall.pointOriginX = edge.from.x + SurfacePointOffset * wall.normalX;
    wall.pointOriginY = edge.from.y + SurfacePointOffset * wall.normalY;
    wall.wallStart = edge.from;
    wall.wallEnd = edge.to;
    wall.wallNormalX = wall.normalX;
    wall.wallNormalY = wall.normalY;
    return wall;
}

void AppendWalls(const Polygon2D& zone, const std::vector<Point2D>& ring, double floorLevel,
                 double height, std::vector<ZoneSurface>& surfaces) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Edge2D edge{ring[i], ring[i + 1 < ring.size() ? i + 1 : 0]};
        const double length = std::hypot(edge.to.x - edge.from.x, edge.to.y - edge.from.y);
        if (length < ShortestWall) {
            continue;
        }
        surfaces.push_back(BuildWall(zone, edge, length, floorLevel, height));
        surfaces.back().index = static_cast<std::int32_t>(surfaces.size());
    }
}

ZoneSurface BuildHorizontal(ZoneSurfaceKind kind, const Polygon2D& zone, double z) {
    ZoneSurface surface;
    surface.kind = kind;
    surface.polygon = zone;
    surface.facesDown = kind == ZoneSurfaceKind::Ceiling;
    surface.z = z;
    return surface;
}

} // namespace

std::vector<ZoneSurface> BuildZoneSurfaces(const Polygon2D& polygon, double floorLevel,
                                           double height) {
    std::vector<ZoneSurface> surfaces;
    if (polygon.outer.size() < 3 || !(height > 0.0)) {
        return surfaces;
    }
    AppendWalls(polygon, polygon.outer, floorLevel, height, surfaces);
    for (const std::vector<Point2D>& hole : polygon.holes) {
        if (hole.size() >= 3) {
            AppendWalls(polygon, hole, floorLevel, height, surfaces);
        }
    }
    surfaces.push_back(BuildHorizontal(ZoneSurfaceKind::Ceiling, polygon,
                                       floorLevel + height - SurfacePointOffset));
    surfaces.push_back(
        BuildHorizontal(ZoneSurfaceKind::Floor, polygon, floorLevel + SurfacePointOffset));
    return surfaces;
}

GridSettings SurfaceGridSettings(const ZoneSurface& surface, double wallOffset) {
    const Bounds2D bounds = OuterBounds(surface.polygon);
    const double area = std::max(0.0, bounds.maximum.x - bounds.minimum.x) *
                        std::max(0.0, bounds.maximum.y - bounds.minimum.y);
    GridSettings settings;
    settings.workPlaneHeight = 0.0;
    settings.borderBand = 0.0;
    if (surface.kind == ZoneSurfaceKind::Reveal) {
        settings.spacing = std::clamp(std::sqrt(area / 40.0), 0.02, 0.1);
        settings.wallOffset = std::min(0.01, wallOffset);
    } else {
        settings.spacing = std::clamp(std::sqrt(area / 300.0), 0.2, 0.5);
        settings.wallOffset = wallOffset;
    }
    return settings;
}

SurfaceResult BuildSurfaceGrid(const ZoneSurface& surface, double wallOffset) {
    SurfaceResult result;
    result.surface = surface;
    result.grid = BuildCalculationGrid(surface.polygon, surface.vertical ? 0.0 : surface.z,
                                       SurfaceGridSettings(surface, wallOffset));
    return result;
}

SensorPlane SurfaceSensorPlane(const SurfaceResult& result, const std::string& name) {
    const ZoneSurface& surface = result.surface;
    SensorPlane plane;
    plane.name = name;
    plane.grid = result.grid;
    plane.vertical = surface.vertical;
    plane.facesDown = surface.facesDown;
    plane.originX = surface.pointOriginX;
    plane.originY = surface.pointOriginY;
    plane.directionX = surface.directionX;
    plane.directionY = surface.directionY;
    plane.normalX = surface.normalX;
    plane.normalY = surface.normalY;
    return plane;
}

Point3D SurfaceWorldPoint(const ZoneSurface& surface, Point2D point) {
    if (surface.vertical) {
        return {surface.wallStart.x + point.x * surface.directionX,
                surface.wallStart.y + point.x * surface.directionY, point.y};
    }
    const double offset = surface.facesDown ? SurfacePointOffset : -SurfacePointOffset;
    return {point.x, point.y, surface.z + offset};
}

Point3D SurfaceNormal(const ZoneSurface& surface) {
    if (surface.vertical) {
        return {surface.normalX, surface.normalY, 0.0};
    }
    return {0.0, 0.0, surface.facesDown ? -1.0 : 1.0};
}

} // namespace Merivane::Simulation
