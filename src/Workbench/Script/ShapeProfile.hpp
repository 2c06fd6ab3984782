#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Workbench/Bodies/PolygonRings.hpp"
#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeLoft.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// The plane polygons and lines that statements give in rows of x, y and more.
namespace Merivane::Workbench {

/// Where things stand in a row, behind x and y.
struct RowLayout {
    std::size_t columns = 2;
    std::size_t status = 0; ///< column of the status; 0 = it has none and everything is there
};

/// The fewest rows that can tell a polygon: a centre and a whole circle, where there are codes.
inline constexpr std::size_t FewestRows(const RowLayout& layout) {
    return layout.status > 0 ? 2 : 3;
}

/// One ring. Edge i runs from point i to the next.
struct ShapeRing {
    PlanRing points;
    std::vector<std::size_t> pointRows; ///< the row that made a point
    std::vector<std::int32_t> status;   ///< of the edges
    std::vector<std::size_t> edgeRows;  ///< the row that an edge's status is of
    bool closed = true;
};

/// The rows of a statement, the arguments that are left.
struct ShapeProfile {
    std::vector<ShapeRing> rings;
    std::size_t firstRow = 0; ///< its place among the arguments
    std::size_t columns = 0;
};

/// The bit of a prism's status that keeps the side face.
inline constexpr std::int32_t SideFaceBit = 8;
inline constexpr std::int32_t WholeStatus = 15;

/// Reads `count` rows, which must be all that is left, and follows their codes. Points that follow
/// on themselves count once.
std::string ReadProfile(ShapeInput& input, const ShapeSketch& sketch, std::size_t count,
                        const RowLayout& layout, ShapeProfile& profile);

/// Closes the rings and turns the outline counter-clockwise, holes clockwise. False when the
/// outline has no area; holes without one are left out.
bool CloseProfile(ShapeProfile& profile);

/// Leaves open lines open, their ends apart, and turns holes against the outline, which stays as it
/// is. False when the first ring has fewer than 2 points.
bool KeepProfileOpen(ShapeProfile& profile);

/// A value of a row beside x, y and status.
double RowNumber(const ShapeInput& input, const ShapeProfile& profile, std::size_t row,
                 std::size_t column);

/// A loft of the profile's points, all edges of one surface and present; of an open line the last
/// edge is present where `closing` says so.
Loft ProfileLoft(const ShapeProfile& profile, std::int32_t surface, bool closing);

/// All points of the rings, one after the other, as the loft counts them.
PlanRing ProfilePoints(const ShapeProfile& profile);

/// Moves every side of a closed ring to its left by a distance of its own [m]. False when a side
/// would have to turn around.
bool MoveSides(const PlanRing& ring, const std::vector<double>& distances, PlanRing& moved);

} // namespace Merivane::Workbench
