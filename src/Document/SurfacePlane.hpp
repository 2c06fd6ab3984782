#pragma once

#include <cstddef>
#include <vector>

#include "Simulation/Geometry.hpp"

namespace Merivane::Document {

/// How flat a polygon is.
struct SurfaceFlatness {
    double area = 0.0;           ///< of its projection on its mean plane [m2]
    double deviation = 0.0;      ///< of the vertex that strays farthest from that plane [m]
    std::size_t worstVertex = 0; ///< that vertex
    double tolerance = 0.0;      ///< largest deviation of a flat surface of this size [m]
};

/// Smallest area of a surface [m2].
inline constexpr double SmallestSurface = 1e-8;

/// Measures a polygon against its mean plane: Newell's normal, through the mean of the vertices.
/// A flat one strays by at most 1 mm and 0.01 mm for each metre of its extent. Without an area
/// there is no plane and the deviation is 0.
SurfaceFlatness MeasureFlatness(const std::vector<Simulation::Point3D>& vertices);

} // namespace Merivane::Document
