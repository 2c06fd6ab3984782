#pragma once

#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

#include "Simulation/Geometry.hpp"

/// Polygons by chance, the same in every run of the same seed.
namespace Merivane::Tests {

using Random = std::mt19937;

inline double Uniform(Random& random, double low, double high) {
    return low + (high - low) * (static_cast<double>(random()) / 4294967295.0);
}

inline int UniformInt(Random& random, int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
}

/// A ring around `centre` that does not cross itself, its vertices between the two radii.
inline std::vector<Simulation::Point2D> StarRing(Random& random, Simulation::Point2D centre,
                                                 double smallest, double largest, int vertices) {
    std::vector<Simulation::Point2D> ring;
    ring.reserve(static_cast<std::size_t>(vertices));
    for (int k = 0; k < vertices; ++k) {
        const double angle = 6.283185307179586 * (k + Uniform(random, 0.0, 0.9)) / vertices;
        const double radius = Uniform(random, smallest, largest);
        ring.push_back({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
    }
    return ring;
}

/// A ring of vertices anywhere in the box, crossing itself at will, on a raster of 5 cm so that
/// nodes fall on edges and limits.
inline std::vector<Simulation::Point2D> RasterRing(Random& random, int width, int height,
                                                   int vertices) {
    std::vector<Simulation::Point2D> ring;
    ring.reserve(static_cast<std::size_t>(vertices));
    for (int k = 0; k < vertices; ++k) {
        ring.push_back(
            {0.05 * UniformInt(random, 0, 20 * width), 0.05 * UniformInt(random, 0, 20 * height)});
    }
    return ring;
}

/// Now a star with holes, now a self-crossing ring on the raster with holes of any form.
inline Simulation::Polygon2D RandomPolygon(Random& random) {
    Simulation::Polygon2D polygon;
    const int holes = UniformInt(random, 0, 3);
    if (UniformInt(random, 0, 1) == 0) {
        const Simulation::Point2D centre{Uniform(random, -50, 50), Uniform(random, -50, 50)};
        polygon.outer = StarRing(random, centre, 1.0, 4.0, UniformInt(random, 3, 40));
        for (int k = 0; k < holes; ++k) {
            const Simulation::Point2D place{centre.x + Uniform(random, -2, 2),
                                            centre.y + Uniform(random, -2, 2)};
            polygon.holes.push_back(StarRing(random, place, 0.1, 0.8, UniformInt(random, 3, 12)));
        }
    } else {
        polygon.outer = RasterRing(random, 4, 3, UniformInt(random, 3, 9));
        for (int k = 0; k < holes; ++k) {
            polygon.holes.push_back(RasterRing(random, 4, 3, UniformInt(random, 0, 5)));
        }
    }
    return polygon;
}

} // namespace Merivane::Tests
