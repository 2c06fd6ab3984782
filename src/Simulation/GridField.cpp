#include "Simulation/GridField.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>

namespace Merivane::Simulation {

namespace {

struct NodeIndex {
    std::int64_t i;
    std::int64_t j;
};

// Far enough outside every grid that no window reaches back, near enough for an integer.
constexpr double FarAway = 1e9;

std::int64_t FloorToIndex(double position) {
    return static_cast<std::int64_t>(std::floor(std::clamp(position, -FarAway, FarAway)));
}

bool IsActive(const CalculationGrid& grid, const std::vector<double>& field, NodeIndex node) {
    if (node.i < 0 || node.i >= grid.columns || node.j < 0 || node.j >= grid.rows) {
        return false;
    }
    const auto index = static_cast<std::size_t>(node.j * grid.columns + node.i);
    return index < grid.active.size() && index < field.size() && grid.active[index];
}

double FieldValue(const CalculationGrid& grid, const std::vector<double>& field, NodeIndex node) {
    return field[static_cast<std::size_t>(node.j * grid.columns + node.i)];
}

// Mean of the active nodes of the window of `reach` nodes to each side of the cell of `node`,
// weighted by inverse squared distance; nothing where the window has no active node.
std::optional<double> WindowMean(const CalculationGrid& grid, const std::vector<double>& field,
                                 Point2D point, NodeIndex node, std::int64_t reach) {
    const std::int64_t firstColumn = std::max<std::int64_t>(node.i + 1 - reach, 0);
    const std::int64_t lastColumn = std::min<std::int64_t>(node.i + reach, grid.columns - 1);
    const std::int64_t firstRow = std::max<std::int64_t>(node.j + 1 - reach, 0);
    const std::int64_t lastRow = std::min<std::int64_t>(node.j + reach, grid.rows - 1);
    double sum = 0.0;
    double weights = 0.0;
    for (std::int64_t j = firstRow; j <= lastRow; ++j) {
        for (std::int64_t i = firstColumn; i <= lastColumn; ++i) {
            if (!IsActive(grid, field, {i, j})) {
                continue;
            }
            const Point2D place =
                NodePosition(grid, static_cast<std::int32_t>(i), static_cast<std::int32_t>(j));
            const double x = place.x - point.x;
            const double y = place.y - point.y;
            const double squared = x * x + y * y;
            const double value = FieldValue(grid, field, {i, j});
            if (squared < 1e-12) {
                return value;
            }
            sum += value / squared;
            weights += 1.0 / squared;
        }
    }
    if (weights > 0.0) {
        return sum / weights;
    }
    return std::nullopt;
}

} // namespace

GridField MakeGridField(const CalculationGrid& grid, const std::vector<double>& values) {
    GridField field;
    field.grid = &grid;
    field.values.assign(grid.active.size(), std::numeric_limits<double>::quiet_NaN());
    std::size_t next = 0;
    for (std::size_t index = 0; index < grid.active.size() && next < values.size(); ++index) {
        if (grid.active[index]) {
            field.values[index] = values[next++];
        }
    }
    return field;
}

double SampleGrid(const CalculationGrid& grid, const std::vector<double>& field, Point2D point) {
    const double columnPosition = (point.x - grid.originX) / grid.stepX;
    const double rowPosition = (point.y - grid.originY) / grid.stepY;
    if (std::isnan(columnPosition) || std::isnan(rowPosition)) {
        return 0.0;
    }
    const std::int64_t i = FloorToIndex(columnPosition);
    const std::int64_t j = FloorToIndex(rowPosition);

    if (IsActive(grid, field, {i, j}) && IsActive(grid, field, {i + 1, j}) &&
        IsActive(grid, field, {i, j + 1}) && IsActive(grid, field, {i + 1, j + 1})) {
        const double u = columnPosition - static_cast<double>(i);
        const double v = rowPosition - static_cast<double>(j);
        const double below =
            (1.0 - u) * FieldValue(grid, field, {i, j}) + u * FieldValue(grid, field, {i + 1, j});
        const double above = (1.0 - u) * FieldValue(grid, field, {i, j + 1}) +
                             u * FieldValue(grid, field, {i + 1, j + 1});
        return below * (1.0 - v) + above * v;
    }
    const std::int64_t limit = std::max<std::int64_t>(grid.columns, grid.rows) + 2;
    for (std::int64_t reach = 2; reach <= limit; reach *= 2) {
        if (const std::optional<double> mean = WindowMean(grid, field, point, {i, j}, reach)) {
            return *mean;
        }
    }
    return 0.0;
}

} // namespace Merivane::Simulation
