#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Host/Types.hpp"

/// Polylines with status codes, as the statements whose name ends in `_` take them, in plan and in
/// space alike.
namespace Merivane::Workbench {

/// How finely circles are cut into chords.
struct CurveResolution {
    std::int32_t segments = 36; ///< chords of a whole circle (RESOL), 3 or more
    double tolerance = 0.0;     ///< of a chord from its arc [m] (TOLER); 0 = by `segments`
    double radiusLowest = 0.0;  ///< circles up to this get 6 chords (RADIUS) [m]
    double radiusHighest = 0.0; ///< and from this one up 36; 0 = RADIUS not used
};

/// Chords of a whole circle of this radius [m]: 3 to 3600.
std::int32_t CircleSegments(const CurveResolution& resolution, double radius);

/// Chords of an arc that turns through `degrees`, either way: 1 or more.
std::int32_t ArcSegments(const CurveResolution& resolution, double radius, double degrees);

/// One row of a statement: what x and y mean depends on the hundreds of the status.
struct PolylineRow {
    double x = 0.0;
    double y = 0.0;
    std::int32_t status = 0;
};

/// One ring, arcs cut into chords. `status[i]` is the base status (0 to 99) of the edge from point
/// i to the next; an arc's chords have that of the arc's row. `onArc[i]` is true for the points
/// that only an arc put there: between their chords the surface is smooth. The first point is not
/// repeated at the end where a row of -1, a close (700) or a whole circle ended the ring; a ring
/// that just ends with the rows holds every point.
struct PolylineContour {
    std::vector<Host::Coordinate> points;
    std::vector<std::int32_t> status;
    std::vector<bool> onArc;
    bool closed = false;           ///< by -1, 700 or a whole circle
    std::vector<std::size_t> rows; ///< for each edge the row, from 0, that its status is of

    bool operator==(const PolylineContour&) const = default;
};

/// Follows the rows: plain points, -1 (ends a ring), and the additional codes 100 relative point,
/// 200 length and direction, 300 length along the tangent, 600 start point, 700 close, 800 tangent,
/// 900 centre, 1000 tangential arc to a point, 2000 tangential arc by radius and angle, 3000 arc
/// around the centre to the direction of a point (the shorter way), 4000 arc around the centre by
/// an angle or, where no ring is open, a whole circle by its radius. Angles are degrees.
///
/// Returns an empty text and fills `contours`, or why the rows can't be followed, in Portuguese.
/// More than `pointLimit` points are refused.
std::string ExpandPolyline(const std::vector<PolylineRow>& rows, const CurveResolution& resolution,
                           std::size_t pointLimit, std::vector<PolylineContour>& contours);

/// For statements that make closed shapes: drops the last point of each ring where it repeats
/// the first.
void CloseContours(std::vector<PolylineContour>& contours);

} // namespace Merivane::Workbench
