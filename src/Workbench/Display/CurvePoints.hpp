#pragma once

#include <vector>

#include "Host/Elements.hpp"
#include "Host/Types.hpp"

/// Curves as points so close that the chords between them are nowhere farther from the curve than a
/// tolerance above 0, in the unit of the points.
namespace Merivane::Workbench {

/// The vertices of a contour with what lies on its arcs; the side that closes it only where
/// `closed`. The first point is not repeated.
std::vector<Host::Coordinate> ContourPoints(const Host::Contour& contour, bool closed,
                                            double tolerance);

/// The cubic curve pieces through the points of a spline; a closed one ends with its first point.
/// The points alone where they do not have a direction each.
std::vector<Host::Coordinate> SplinePoints(const std::vector<Host::Coordinate>& points,
                                           const std::vector<Host::SplineDirection>& directions,
                                           bool closed, double tolerance);

} // namespace Merivane::Workbench
