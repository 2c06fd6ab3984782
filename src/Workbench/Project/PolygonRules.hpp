#pragma once

#include "Host/Elements.hpp"
#include "Host/Types.hpp"

/// Which polygons the host takes. Arcs count by their chords.
namespace Merivane::Workbench {

/// A polygon with an inside, of Zones and hatches. BadPolygon where there is nothing to build: no
/// contour, a contour of fewer than three vertices, a number that is not finite, an arc of no
/// vertex, of a vertex named twice, or of an angle that is 0 or a whole turn and more.
/// IrregularPolygon where contours cross or overlap themselves or each other, have no area, or a
/// hole lies outside the outline or inside another hole. Contours may touch in single points.
Host::ErrorCode CheckPolygon(const Host::Polygon& polygon);

/// The one contour of a polyline: two vertices, three where closed. It may cross itself.
/// BadPolygon.
Host::ErrorCode CheckPolyLine(const Host::Polygon& polygon, bool closed);

/// True when the two polygons have as many contours, and each as many vertices.
bool HasSameCounts(const Host::Polygon& a, const Host::Polygon& b);

} // namespace Merivane::Workbench
