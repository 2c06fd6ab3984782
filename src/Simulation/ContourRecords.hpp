#pragma once

#include <cstdint>
#include <vector>

#include "Simulation/Geometry.hpp"

namespace Merivane::Simulation {

/// A curve of equal illuminance, in the coordinates of the grid's plane [m].
struct IsoCurve {
    double level = 0.0;          ///< [lux]
    std::vector<Point2D> points; ///< of a closed curve the last equals the first
    bool closed = false;
};

/// One area of a band: `outer` counter-clockwise, `holes` clockwise [m].
using BandPolygon = Polygon2D;

/// The area between two neighbouring levels.
struct ColorBand {
    std::uint64_t index = 0; ///< 0 below the first level, n above the last of n
    double lower = 0.0;      ///< [lux]; minus infinity for band 0
    double upper = 0.0;      ///< [lux]; plus infinity for the last band
    std::vector<BandPolygon> polygons;
};

} // namespace Merivane::Simulation
