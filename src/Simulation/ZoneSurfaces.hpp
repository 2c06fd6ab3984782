#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Simulation/CalculationGrid.hpp"
#include "Simulation/Geometry.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

enum class ZoneSurfaceKind : std::uint32_t { Wall = 0, Ceiling = 1, Reveal = 2, Floor = 3 };

/// How far the calculation points stand off the real surface, towards the room [m].
inline constexpr double SurfacePointOffset = 0.01;

/// One surface of a Zone, on which points can be calculated [m]. The polygon of a wall or reveal is
/// in its own coordinates: x along the wall from its first end, y the absolute height. That of a
/// ceiling or floor is in plan coordinates.
struct ZoneSurface {
    ZoneSurfaceKind kind = ZoneSurfaceKind::Wall;
    std::int32_t index = 0; ///< serial number of the wall in its Zone, from 1; 0 on the others
    Polygon2D polygon;
    bool vertical = false;     ///< walls and reveals
    bool facesDown = false;    ///< ceiling
    double pointOriginX = 0.0; ///< plan position of local x = 0, moved into the room
    double pointOriginY = 0.0;
    double directionX = 1.0; ///< unit vector along the wall
    double directionY = 0.0;
    double normalX = 0.0; ///< unit normal towards the room
    double normalY = 1.0;
    double z = 0.0;    ///< of the points of a ceiling or floor; 0 on walls
    Point2D wallStart; ///< the real line of the wall
    Point2D wallEnd;
    double wallNormalX = 0.0; ///< the normal once more, kept with the line
    double wallNormalY = 1.0;
};

/// A surface with its grid and, once calculated, its values.
struct SurfaceResult {
    ZoneSurface surface;
    CalculationGrid grid;
    std::vector<double> values; ///< whole grid, as in `GridField` [lux]; empty before
};

/// The walls of a Zone of the given floor level and ceiling height [m], one for each edge of at
/// least 0.2 m of the outer ring and of the holes, then the ceiling, then the floor. Empty for
/// fewer than 3 outer vertices or a height that is not above 0.
std::vector<ZoneSurface> BuildZoneSurfaces(const Polygon2D& polygon, double floorLevel,
                                           double height);

/// How the grid of a surface is laid; `wallOffset` is that of the calculation [m]. Walls, ceiling
/// and floor get about 300 nodes, steps of 0.2 to 0.5 m; reveals about 40, steps of 0.02 to 0.1 m.
GridSettings SurfaceGridSettings(const ZoneSurface& surface, double wallOffset);

/// Lays the grid of a surface; the values are left empty.
SurfaceResult BuildSurfaceGrid(const ZoneSurface& surface, double wallOffset);

/// The plane at whose points the calculation is made, `SurfacePointOffset` off the real surface.
SensorPlane SurfaceSensorPlane(const SurfaceResult& result, const std::string& name);

/// Place in the project of a point of the surface's own plane, on the real surface [m].
Point3D SurfaceWorldPoint(const ZoneSurface& surface, Point2D point);

/// Unit normal of the surface, towards the room.
Point3D SurfaceNormal(const ZoneSurface& surface);

} // namespace Merivane::Simulation
