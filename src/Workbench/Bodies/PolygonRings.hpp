#pragma once

#include <vector>

#include "Host/Elements.hpp"
#include "Host/Types.hpp"

/// Contours of the port as rings of straight sides.
namespace Merivane::Workbench {

/// Places in order; the last is joined to the first.
using PlanRing = std::vector<Host::Coordinate>;

/// The largest angle that one chord of an arc stands for [rad]: 72 chords make a circle.
inline constexpr double LargestChordAngle = 0.08726646259971647;

/// The number of equal chords that an arc of `angle` [rad] takes, at least 1.
int ChordCount(double angle);

/// A contour with its arcs in chords; places that follow on themselves are left out.
PlanRing ContourRing(const Host::Contour& contour);

/// Area inside a ring [m2], above 0 for a counter-clockwise one.
double SignedArea(const PlanRing& ring);

/// The rings of a polygon, the outline turned counter-clockwise, holes clockwise. Empty when its
/// outline has no area; holes without one are left out.
std::vector<PlanRing> PolygonRings(const Host::Polygon& polygon);

} // namespace Merivane::Workbench
