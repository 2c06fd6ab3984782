#pragma once

#include <vector>

namespace Merivane::Simulation {

/// A place in a plane [m].
struct Point2D {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Point2D&) const = default;
};

/// A place in the project, z upwards and absolute [m].
struct Point3D {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    bool operator==(const Point3D&) const = default;
};

/// A planar region: rings are closed implicitly and may turn either way.
struct Polygon2D {
    std::vector<Point2D> outer;
    std::vector<std::vector<Point2D>> holes;

    bool operator==(const Polygon2D&) const = default;
};

} // namespace Merivane::Simulation
