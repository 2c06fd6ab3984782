#include "Simulation/CalculationGrid.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "Simulation/NodeDistances.hpp"
#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Simulation {

namespace {

// A node that stands on a limit counts as beyond it, whatever the rounding of its place.
constexpr double LimitTolerance = 1e-9;

struct GridAxis {
    double origin = 0.0;
    double step = 0.0;
    double nodes = 0.0; // a double, as an absurd polygon gives more than an integer holds
};

struct GridLayout {
    GridAxis x;
    GridAxis y;
};

GridAxis LayAxis(double minimum, double size, double offset, double spacing) {
    double length = size - 2.0 * offset;
    double origin = minimum + offset;
    if (!(length > 1e-9)) {
        length = size;
        origin = minimum;
    }
    const double intervals = std::max(1.0, std::ceil(length / spacing - 1e-9));
    return {origin, length > 0.0 ? length / intervals : spacing, intervals + 1.0};
}

GridLayout LayGrid(const Polygon2D& polygon, const GridSettings& settings) {
    const Bounds2D bounds = OuterBounds(polygon);
    const double width = bounds.maximum.x - bounds.minimum.x;
    const double height = bounds.maximum.y - bounds.minimum.y;
    const double spacing =
        settings.spacing > 0.0 ? settings.spacing : AutomaticSpacing(width, height);
    const double offset = std::max(0.0, settings.wallOffset);
    return {LayAxis(bounds.minimum.x, width, offset, spacing),
            LayAxis(bounds.minimum.y, height, offset, spacing)};
}

bool IsFinite(const Point2D& point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

void MarkNodes(const std::vector<double>& distances, const GridSettings& settings,
               CalculationGrid& grid) {
    for (std::size_t index = 0; index < distances.size(); ++index) {
        const double distance = distances[index];
        if (distance == OutsideNode) {
            continue;
        }
        grid.active[index] = distance >= settings.wallOffset - LimitTolerance;
        grid.task[index] = grid.active[index] && distance >= settings.borderBand - LimitTolerance;
    }
}

bool HasAny(const std::vector<bool>& bits) {
    return std::find(bits.begin(), bits.end(), true) != bits.end();
}

} // namespace

double AutomaticSpacing(double width, double height) {
    const double area = std::max(0.0, width) * std::max(0.0, height);
    if (!(area > 0.0)) {
        return 0.1;
    }
    return std::clamp(std::sqrt(area / 4000.0), 0.1, 0.5);
}

double GridNodeCount(const Polygon2D& polygon, const GridSettings& settings) {
    if (polygon.outer.size() < 3) {
        return 0.0;
    }
    if (!std::all_of(polygon.outer.begin(), polygon.outer.end(), IsFinite)) {
        return std::numeric_limits<double>::infinity();
    }
    const GridLayout layout = LayGrid(polygon, settings);
    return layout.x.nodes * layout.y.nodes;
}

CalculationGrid BuildCalculationGrid(const Polygon2D& polygon, double baseLevel,
                                     const GridSettings& settings) {
    CalculationGrid grid;
    grid.z = baseLevel + settings.workPlaneHeight;
    const double nodeCount = GridNodeCount(polygon, settings);
    if (nodeCount == 0.0 || nodeCount > static_cast<double>(MaximumGridNodes)) {
        return grid;
    }
    const GridLayout layout = LayGrid(polygon, settings);
    grid.originX = layout.x.origin;
    grid.originY = layout.y.origin;
    grid.stepX = layout.x.step;
    grid.stepY = layout.y.step;
    grid.columns = static_cast<std::int32_t>(layout.x.nodes);
    grid.rows = static_cast<std::int32_t>(layout.y.nodes);

    const std::vector<double> distances = NodeDistances(polygon, grid);
    grid.active.assign(distances.size(), false);
    grid.task.assign(distances.size(), false);
    MarkNodes(distances, settings, grid);
    if (!HasAny(grid.active)) {
        // The offset swallows a small or thin polygon: better points near the walls than none.
        for (std::size_t index = 0; index < distances.size(); ++index) {
            grid.active[index] = distances[index] != OutsideNode;
        }
    }
    if (settings.borderBand > 0.0 && !HasAny(grid.task)) {
        grid.task = grid.active;
        grid.narrow = true;
    }
    return grid;
}

std::size_t ActiveNodeCount(const CalculationGrid& grid) {
    return static_cast<std::size_t>(std::count(grid.active.begin(), grid.active.end(), true));
}

std::vector<Point2D> ActivePoints(const CalculationGrid& grid) {
    std::vector<Point2D> points;
    points.reserve(ActiveNodeCount(grid));
    std::size_t index = 0;
    for (std::int32_t j = 0; j < grid.rows; ++j) {
        for (std::int32_t i = 0; i < grid.columns; ++i, ++index) {
            if (index < grid.active.size() && grid.active[index]) {
                points.push_back(NodePosition(grid, i, j));
            }
        }
    }
    return points;
}

std::vector<bool> TaskSelection(const CalculationGrid& grid) {
    std::vector<bool> selection;
    selection.reserve(ActiveNodeCount(grid));
    for (std::size_t index = 0; index < grid.active.size(); ++index) {
        if (grid.active[index]) {
            selection.push_back(index < grid.task.size() && grid.task[index]);
        }
    }
    return selection;
}

} // namespace Merivane::Simulation
