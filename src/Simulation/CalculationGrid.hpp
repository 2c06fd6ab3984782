#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Simulation/Geometry.hpp"

namespace Merivane::Simulation {

/// How a grid is laid over a polygon; all lengths in metres.
struct GridSettings {
    double workPlaneHeight = 0.75; ///< added to the base level
    double borderBand = 0.5;       ///< marginal band kept out of the statistics
    double wallOffset = 0.05;      ///< no point lies nearer than this to the boundary
    double spacing = 0.0;          ///< target distance between points; 0 or less = automatic

    bool operator==(const GridSettings&) const = default;
};

/// The regular set of calculation points over a polygon. Node (i, j) has the index
/// j * columns + i and stands at (originX + i * stepX, originY + j * stepY) [m].
struct CalculationGrid {
    double originX = 0.0;
    double originY = 0.0;
    double stepX = 0.25;
    double stepY = 0.25;
    std::int32_t columns = 0;
    std::int32_t rows = 0;
    double z = 0.0;           ///< height of the plane [m]
    bool narrow = false;      ///< no task area of its own: every point counts
    std::vector<bool> active; ///< columns x rows: the node is a calculation point
    std::vector<bool> task;   ///< columns x rows: the node counts in the statistics

    bool operator==(const CalculationGrid&) const = default;
};

/// Place of node (i, j) [m]: the one rule by which nodes stand.
inline Point2D NodePosition(const CalculationGrid& grid, std::int32_t i, std::int32_t j) {
    return {grid.originX + i * grid.stepX, grid.originY + j * grid.stepY};
}

/// Distance between points for a bounding box of `width` x `height` [m], each at least 0: 0.1 up
/// to 40 m2, then about 4000 nodes, 0.5 from 1000 m2 on.
double AutomaticSpacing(double width, double height);

/// Lays a grid over `polygon` on the height `baseLevel` + `settings.workPlaneHeight` [m].
/// The real steps never exceed the spacing; the first and the last node of an axis stand at the
/// wall offset from the bounding box. Fewer than 3 outer vertices give an empty grid, and so does a
/// lattice beyond `MaximumGridNodes` (see `GridNodeCount`).
CalculationGrid BuildCalculationGrid(const Polygon2D& polygon, double baseLevel,
                                     const GridSettings& settings);

/// Most nodes that a grid may have, active or not.
inline constexpr std::int64_t MaximumGridNodes = 20'000'000;

/// How many nodes `BuildCalculationGrid` would lay; more than `MaximumGridNodes` (or infinity) is
/// to be refused by the caller before building.
double GridNodeCount(const Polygon2D& polygon, const GridSettings& settings);

/// Number of calculation points.
std::size_t ActiveNodeCount(const CalculationGrid& grid);

/// The calculation points [m], rows ascending, columns ascending within a row: the order in which
/// they go to the calculation and in which values come back.
std::vector<Point2D> ActivePoints(const CalculationGrid& grid);

/// One flag for each calculation point, in `ActivePoints` order: it counts in the statistics.
std::vector<bool> TaskSelection(const CalculationGrid& grid);

} // namespace Merivane::Simulation
